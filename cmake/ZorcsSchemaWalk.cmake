# Writes OUTPUT, a header that names every field of every message in FILES (schema files), message by
# message and in the order of the schema: what the checker walks.
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/ZorcsReadSchema.cmake)

set(scalars sint32 int32 uint32 float string)
set(body "")
foreach(file IN LISTS FILES)
  zorcs_read_schema(${file} proto namespace)
  string(REGEX MATCHALL
    "(message|enum) +[A-Za-z0-9_]+|(required|optional|repeated) +[A-Za-z0-9_.]+ +[a-z0-9_]+ +="
    tokens "${proto}")
  set(open FALSE)
  foreach(token IN LISTS tokens)
    string(REGEX REPLACE " +=?" ";" token "${token}")
    list(GET token 0 what)
    list(GET token 1 type)
    if(what STREQUAL "enum")
      continue()
    endif()
    if(what STREQUAL "message")
      if(open)
        string(APPEND body "  }\n};\n\n")
      endif()
      set(open TRUE)
      string(APPEND body
        "template <>\nstruct Schema<::${namespace}::${type}> {\n"
        "  using Message = ::${namespace}::${type};\n\n"
        "  template <class Visitor>\n  static constexpr void each(Visitor&& visit) {\n")
      continue()
    endif()
    list(GET token 2 name)
    if(what STREQUAL "required")
      set(kind "Singular<Label::kRequired, &Message::has_${name}, &Message::${name}>")
    elseif(what STREQUAL "optional")
      set(kind "Singular<Label::kOptional, &Message::has_${name}, &Message::${name}>")
    elseif(type IN_LIST scalars)
      set(kind "Values<Message, &Message::${name}>")
    else()
      string(REPLACE "." "::" class "${type}")
      if(NOT class MATCHES "::")
        set(class "${namespace}::${class}")
      endif()
      set(kind "Messages<Message, ::${class}, &Message::${name}>")
    endif()
    string(APPEND body "    visit(${kind}{\"${name}\"});\n")
  endforeach()
  if(open)
    string(APPEND body "  }\n};\n\n")
  endif()
endforeach()

file(WRITE ${OUTPUT}
"// Every field of every message, in the order of the schema. Made from the schema by the build.
#pragma once

#include \"ZorPbSchemaKinds.h\"
#include \"onyx.pb.h\"

namespace zorpb {

${body}}  // namespace zorpb
")
