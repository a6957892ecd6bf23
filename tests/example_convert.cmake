# Encodes CONFIGURATION with PROTOC, converts it with CONVERT and holds the output to EXPECTED, line
# by line; addresses differ from run to run.
cmake_minimum_required(VERSION 3.22)

execute_process(
  COMMAND ${PROTOC} --proto_path=${PROTO_DIR} --encode=com.zor.onyx.fxp_std.Onyx onyx.proto
  INPUT_FILE ${CONFIGURATION} OUTPUT_FILE ${ENCODED} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CONVERT} ${ENCODED}
                OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "0x[0-9a-f]+" "ADDRESS" output "${output}")
file(READ ${EXPECTED} expected)
if(NOT output STREQUAL expected)
  file(WRITE ${ENCODED}.output "${output}")
  message(FATAL_ERROR "${ENCODED}.output differs from ${EXPECTED}")
endif()
