// JSON to message, with errors at their line and column.
#pragma once

#include <google/protobuf/message.h>

#include <string>

// Throws Trouble(kNotParsed) that names file, line, column and field. Required fields may be unset.
void parseJson(const std::string& name, const std::string& text,
               google::protobuf::Message* message);
