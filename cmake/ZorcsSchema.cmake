# zorcs_messages: the message classes, generated from proto/*.proto into <build>/proto/gen and
# adapted there by ZorcsAdaptGenerated.cmake.
# A cross build runs the host's protobuf compiler, never one that came with the target's libraries.
if(CMAKE_CROSSCOMPILING)
  find_program(Protobuf_PROTOC_EXECUTABLE protoc
    NO_CMAKE_PATH NO_CMAKE_ENVIRONMENT_PATH NO_CMAKE_FIND_ROOT_PATH)
endif()
find_package(Protobuf 3.21 REQUIRED)
include(GenerateExportHeader)

# In the order in which the files register when the library is loaded: it is the link order of their
# static registrars.
set(ZORCS_SCHEMA_FILES
  peq coefXeq coefHpf coefDeep coefVantixXover
  techLeveler techContour2 techVantix techGeq10b techXeq techOrb
  onyx vrm)

set(ZORCS_PROTO_DIR ${CMAKE_CURRENT_SOURCE_DIR}/proto)
set(ZORCS_GENERATED_DIR ${CMAKE_CURRENT_BINARY_DIR}/proto/gen)
set(zorcs_raw_dir ${CMAKE_CURRENT_BINARY_DIR}/proto/raw)
file(MAKE_DIRECTORY ${ZORCS_GENERATED_DIR} ${zorcs_raw_dir})

set(zorcs_adapt_script ${CMAKE_CURRENT_LIST_DIR}/ZorcsAdaptGenerated.cmake)
set(zorcs_adapt_inputs
  ${zorcs_adapt_script}
  ${CMAKE_CURRENT_SOURCE_DIR}/jni/ZorEngineStructs.h
  ${CMAKE_CURRENT_LIST_DIR}/ZorcsReadSchema.cmake
  ${CMAKE_CURRENT_LIST_DIR}/registration.h.in
  ${CMAKE_CURRENT_LIST_DIR}/registration.cc.in
  ${CMAKE_CURRENT_LIST_DIR}/table_value.cc.in)
list(TRANSFORM ZORCS_SCHEMA_FILES REPLACE "(.+)" "${ZORCS_PROTO_DIR}/\\1.proto"
     OUTPUT_VARIABLE ZORCS_PROTO_FILES)

# The compiler writes to one folder and the adapted sources go to another, so that a step that fails
# leaves nothing behind that a later build would take for finished.
set(zorcs_generated_sources)
foreach(schema IN LISTS ZORCS_SCHEMA_FILES)
  add_custom_command(
    OUTPUT ${ZORCS_GENERATED_DIR}/${schema}.pb.cc ${ZORCS_GENERATED_DIR}/${schema}.pb.h
    COMMAND protobuf::protoc --proto_path=${ZORCS_PROTO_DIR}
            --cpp_out=dllexport_decl=ZORCS_EXPORT:${zorcs_raw_dir} ${schema}.proto
    COMMAND ${CMAKE_COMMAND} -D SCHEMA=${schema} -D PROTO_DIR=${ZORCS_PROTO_DIR}
            -D RAW_DIR=${zorcs_raw_dir} -D GENERATED_DIR=${ZORCS_GENERATED_DIR}
            -P ${zorcs_adapt_script}
    DEPENDS ${ZORCS_PROTO_FILES} ${zorcs_adapt_inputs}
    COMMENT "Generating ${schema}.pb.cc"
    VERBATIM)
  list(APPEND zorcs_generated_sources ${ZORCS_GENERATED_DIR}/${schema}.pb.cc)
endforeach()

add_library(zorcs_messages OBJECT ${zorcs_generated_sources})
generate_export_header(zorcs_messages
  BASE_NAME zorcs EXPORT_FILE_NAME ${ZORCS_GENERATED_DIR}/ZorcsExport.h)
target_compile_features(zorcs_messages PUBLIC cxx_std_17)
# The classes are not ours to mend: what the compiler wrote gets no warnings, here or where it is
# included.
target_compile_options(zorcs_messages PRIVATE -w)
target_include_directories(zorcs_messages SYSTEM PUBLIC $<BUILD_INTERFACE:${ZORCS_GENERATED_DIR}>)
target_link_libraries(zorcs_messages
  PUBLIC protobuf::libprotobuf-lite
  PRIVATE zorcs_sanitizers)
zorcs_library_code(zorcs_messages)
