# zorcs_embed_descriptor_set(out schema): sets out to a generated source that holds the descriptors
# of schema (a file below proto/) and of all that it imports:
#
#   extern const unsigned char kZorcsDescriptorSet[];
#   extern const std::size_t kZorcsDescriptorSetSize;
#
# Run as a script it makes the source OUTPUT from the bytes of INPUT.
cmake_minimum_required(VERSION 3.22)

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
  file(READ ${INPUT} bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(REGEX REPLACE "((0x..,)(0x..,)(0x..,)(0x..,)(0x..,)(0x..,)(0x..,)(0x..,))" "\\1\n" bytes
         "${bytes}")
  file(WRITE ${OUTPUT}
    "#include <cstddef>\n"
    "extern const unsigned char kZorcsDescriptorSet[];\n"
    "extern const std::size_t kZorcsDescriptorSetSize;\n"
    "const unsigned char kZorcsDescriptorSet[] = {\n${bytes}};\n"
    "const std::size_t kZorcsDescriptorSetSize = sizeof(kZorcsDescriptorSet);\n")
  return()
endif()

set(zorcs_descriptor_set_script ${CMAKE_CURRENT_LIST_FILE})

function(zorcs_embed_descriptor_set out schema)
  set(set_file ${CMAKE_CURRENT_BINARY_DIR}/${schema}.binpb)
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${schema}.descriptors.cpp)
  file(GLOB protos CONFIGURE_DEPENDS ${ZORCS_PROTO_DIR}/*.proto)
  add_custom_command(
    OUTPUT ${source}
    COMMAND protobuf::protoc --proto_path=${ZORCS_PROTO_DIR} --include_imports
            --descriptor_set_out=${set_file} ${schema}
    COMMAND ${CMAKE_COMMAND} -D INPUT=${set_file} -D OUTPUT=${source}
            -P ${zorcs_descriptor_set_script}
    DEPENDS ${protos} ${zorcs_descriptor_set_script}
    BYPRODUCTS ${set_file}
    COMMENT "Embedding the descriptors of ${schema}"
    VERBATIM)
  set(${out} ${source} PARENT_SCOPE)
endfunction()
