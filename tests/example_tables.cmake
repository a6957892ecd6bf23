# Runs MAKE_TABLES TABLE and expects what it prints to stand in CONFIGURATION, to the letter.
cmake_minimum_required(VERSION 3.22)

execute_process(COMMAND ${MAKE_TABLES} ${TABLE} OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
file(READ ${CONFIGURATION} configuration)
string(FIND "${configuration}" "${table}" at)
if(table STREQUAL "" OR at EQUAL -1)
  message(FATAL_ERROR "${CONFIGURATION} does not hold what 'make_tables ${TABLE}' prints")
endif()
