// A configuration, read from a file in any of its three forms.
#pragma once

#include <google/protobuf/message.h>

#include <memory>
#include <string>

#include "onyx.pb.h"

struct Configuration {
  std::string name;  // of the file, as messages to people name it
  // With fields by name; keeps unknown fields. Required fields may be unset.
  std::unique_ptr<google::protobuf::Message> message;
  // The same as the library takes it, without unknown fields.
  com::zor::onyx::fxp_std::Onyx onyx;
};

// Reads text format (.txtpb), JSON (.json), or the binary form (.binpb); of a file with another
// name, the content tells. Throws Trouble: kCannotRun where there is nothing to read, kNotParsed
// with line, column and field where it is no configuration.
Configuration loadConfiguration(const std::string& path);

// Throws kNotParsed, with the path of each required field that is unset.
void requireComplete(const Configuration& configuration);

// A message with fields by name, from one of the library's.
std::unique_ptr<google::protobuf::Message> withNames(const com::zor::onyx::fxp_std::Onyx& onyx);
