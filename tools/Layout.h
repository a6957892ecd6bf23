// The engine structs as data, derived from the lists that the conversions derive from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct MemberRow {
  std::string structName;
  std::string member;
  std::string type;
  std::size_t offset;
  std::size_t size;
  int capacity = 0;          // how many values of a list fit; 0 for what is no list
  std::string message = {};  // full name; empty, like field, where no message field goes there
  std::string field = {};
  int number = 0;
};

// Every member of every struct, those of a struct in their order. Offsets are this machine's.
const std::vector<MemberRow>& layoutRows();

// The 64-bit FNV-1a hash of all rows, in hexadecimal: equal for equal layouts.
std::string layoutHash();

// How many values of a list the engine takes; 0 where no capacity is known.
int capacityOf(const std::string& message, const std::string& field);
