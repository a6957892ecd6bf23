# Adapts what the protobuf compiler generated for one schema file:
#
# - a parse drops what it does not know: unknown fields, and enum values out of range. The runtime
#   would keep both and write them back. Its unknown-field parser takes a null sink, and means by it
#   "drop";
# - the file has its registration functions, and a static registrar that calls them at load;
# - a list that comes one element at a time, as the large tables do, gets room at once for what the
#   engine takes of it, and its values are read in line. By itself it would double, step by step, to
#   twice what a full table needs, and call a function for most values.
#
# Takes SCHEMA (a name without extension), PROTO_DIR, RAW_DIR (the compiler's output) and
# GENERATED_DIR (where the adapted sources go). It counts what it changes against the schema and
# stops the build when the two differ, so that another release of the compiler cannot bring the
# runtime's own behaviour back unnoticed.
cmake_minimum_required(VERSION 3.22)

include(${CMAKE_CURRENT_LIST_DIR}/ZorcsReadSchema.cmake)

zorcs_read_schema(${PROTO_DIR}/${SCHEMA}.proto proto namespace)
file(READ ${RAW_DIR}/${SCHEMA}.pb.cc source)
file(READ ${RAW_DIR}/${SCHEMA}.pb.h header)

# Sets out to how often needle, taken literally, stands in text.
function(count_text out text needle)
  string(LENGTH "${text}" all)
  string(REPLACE "${needle}" "" rest "${text}")
  string(LENGTH "${rest}" left)
  string(LENGTH "${needle}" width)
  math(EXPR count "(${all} - ${left}) / ${width}")
  set(${out} ${count} PARENT_SCOPE)
endfunction()

function(expect_count text needle expected what)
  count_text(found "${text}" "${needle}")
  if(NOT found EQUAL expected)
    message(FATAL_ERROR
      "${SCHEMA}.pb: ${what}: ${found} found, ${expected} expected. "
      "The protobuf compiler generates code of another form than the build knows how to adapt; "
      "cmake/ZorcsAdaptGenerated.cmake must learn it.")
  endif()
endfunction()

# What the schema says must be there: a parse function a message, and a range test an enum field.
string(REGEX MATCHALL "(^|\n) *message +[A-Za-z0-9_]+" messages "${proto}")
list(LENGTH messages message_count)
string(REGEX MATCHALL "(^|\n) *enum +[A-Za-z0-9_]+" enums "${proto}")
set(enum_field_count 0)
foreach(enum IN LISTS enums)
  string(REGEX REPLACE ".* " "" enum "${enum}")
  string(REGEX MATCHALL "(required|optional|repeated) +${enum} " fields "${proto}")
  list(LENGTH fields count)
  math(EXPR enum_field_count "${enum_field_count} + ${count}")
endforeach()

# Drop unknown fields.
set(sink "_internal_metadata_.mutable_unknown_fields<std::string>(),")
set(no_sink "static_cast<std::string*>(nullptr),")
expect_count("${source}" "UnknownFieldParse(" ${message_count} "unknown-field parse sites")
expect_count("${source}" "UnknownFieldParse(\n        tag,\n        ${sink}" ${message_count}
             "unknown-field sinks")
string(REPLACE "${sink}" "${no_sink}" source "${source}")
expect_count("${source}" "${no_sink}" ${message_count} "unknown-field sinks that drop")

# Drop enum values out of range.
set(dropped "static_cast<void>(val);  // out of range: dropped")
string(REGEX REPLACE
  "[:A-Za-z_]+::WriteVarint\\([0-9]+, val, mutable_unknown_fields\\(\\)\\);" "${dropped}"
  source "${source}")
expect_count("${source}" "${dropped}" ${enum_field_count} "enum values that drop")

expect_count("${source}" "mutable_unknown_fields" 0 "unknown-field sinks left over")

# Registration: the functions in the package's namespace, the imports in their order.
set(IMPORT_CALLS "")
string(REGEX MATCHALL "import +\"[A-Za-z0-9_]+\\.proto\"" imports "${proto}")
foreach(import IN LISTS imports)
  string(REGEX REPLACE ".*\"(.+)\\.proto\"" "\\1" import "${import}")
  zorcs_read_schema(${PROTO_DIR}/${import}.proto imported namespace)
  string(APPEND IMPORT_CALLS "  ::${namespace}::protobuf_AddDesc_${import}_2eproto();\n")
endforeach()

function(insert_at point text_variable inserted)
  set(marker "// @@protoc_insertion_point(${point})\n")
  expect_count("${${text_variable}}" "${marker}" 1 "insertion points '${point}'")
  string(REPLACE "${marker}" "${inserted}${marker}" text "${${text_variable}}")
  set(${text_variable} "${text}" PARENT_SCOPE)
endfunction()

# The tables: room, and values read in line. Room never for more elements than the bytes that are left
# can hold: one takes two bytes of tag, as field numbers from 16 on do, and at least one of value.
file(READ ${CMAKE_CURRENT_LIST_DIR}/../jni/ZorEngineStructs.h structs)
string(REPLACE ";" "|" statements "${proto}")
string(REGEX MATCHALL "repeated +sint32 +[A-Za-z0-9_]+ = [0-9]+[|]" tables "${statements}")
foreach(table IN LISTS tables)
  string(REGEX REPLACE ".* ([A-Za-z0-9_]+) = .*" "\\1" table "${table}")
  if(NOT structs MATCHES " ${table}\\[([0-9]+)\\];")
    message(FATAL_ERROR "${SCHEMA}.proto: ${table} is not packed and no array of the engine's")
  endif()
  set(room "std::min(1 + ctx->BytesUntilLimit(ptr) / 3, ${CMAKE_MATCH_1})")
  set(loop "ptr -= 2;\n          do {\n            ptr += 2;\n            _internal_add_${table}(")
  set(value "::PROTOBUF_NAMESPACE_ID::internal::ReadVarintZigZag32(&ptr)")
  expect_count("${source}" "${loop}${value}" 1 "loops that add to ${table}")
  string(REPLACE "${loop}${value}"
    "_internal_mutable_${table}()->Reserve(${room});\n          ${loop}ReadTableValue(&ptr)"
    source "${source}")
endforeach()
if(tables)
  file(READ ${CMAKE_CURRENT_LIST_DIR}/table_value.cc.in value_reader)
  insert_at(includes source "${value_reader}")
endif()

file(READ ${CMAKE_CURRENT_LIST_DIR}/registration.h.in declarations)
string(CONFIGURE "${declarations}" declarations @ONLY)
file(READ ${CMAKE_CURRENT_LIST_DIR}/registration.cc.in definitions)
string(CONFIGURE "${definitions}" definitions @ONLY)

insert_at(includes header "#include \"ZorcsExport.h\"\n")
insert_at(namespace_scope header "${declarations}")
insert_at(namespace_scope source "${definitions}")

file(WRITE ${GENERATED_DIR}/${SCHEMA}.pb.h "${header}")
file(WRITE ${GENERATED_DIR}/${SCHEMA}.pb.cc "${source}")
