// The schema at run time: descriptors, and messages that know their fields by name. The message
// classes of the library are the lite ones, which do not.
#pragma once

#include <google/protobuf/descriptor.h>
#include <google/protobuf/message.h>
#include <google/protobuf/util/type_resolver.h>

#include <memory>
#include <string>

namespace schema {

// An empty com.zor.onyx.fxp_std.Onyx.
std::unique_ptr<google::protobuf::Message> newConfiguration();

// Takes a full name; null where there is no such message.
const google::protobuf::Descriptor* findMessage(const std::string& name);

// The types as JSON conversions take them. No field is required there: what is missing is for the
// checker to say, all of it and by path.
google::protobuf::util::TypeResolver* jsonTypes();
std::string jsonTypeUrl();

}  // namespace schema
