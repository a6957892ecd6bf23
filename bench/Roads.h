// The roads between bytes, messages and structs, as a user takes them: one function each, for the
// programs that measure them. And the floors: what no road can do without.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "Inputs.h"

namespace zorbench {

namespace roads {

// Constructs the wrapper from the struct and destroys it.
void structToMessage(const Engine& from);
// Constructs the wrapper from the message, fills the struct and destroys the wrapper.
void messageToStruct(const Postmix& from, Engine& to);
void bytesToStruct(const std::string& bytes, Engine& to);
// Returns the number of bytes; to has room for kBytesCapacity.
std::size_t structToBytes(const Engine& from, uint8_t* to);

void parse(const std::string& bytes);
// The parse, and the runtime's own copy of what it gave: a wrapper has to hold a copy, too.
void parseAndCopy(const std::string& bytes);

}  // namespace roads

namespace floors {

// Allocates a struct, copies from into it and releases it.
void copyOnce(const Engine& from);
// As copyOnce, and then copies what it allocated to to.
void copyThrough(const Engine& from, Engine& to);
// As copyOnce twice, the second time from the first copy, then to to.
void copyTwice(const Engine& from, Engine& to);

}  // namespace floors

}  // namespace zorbench
