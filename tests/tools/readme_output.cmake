# Runs COMMAND ARGUMENTS in WORKING_DIR and expects README to show what it prints, to the letter.
cmake_minimum_required(VERSION 3.22)

execute_process(COMMAND ${COMMAND} ${ARGUMENTS} WORKING_DIRECTORY ${WORKING_DIR}
                OUTPUT_VARIABLE output)
file(READ ${README} readme)
string(REPLACE ";" " " shown "$ zorcs ${ARGUMENTS}\n")
string(FIND "${readme}" "${shown}${output}```" at)
if(output STREQUAL "" OR at EQUAL -1)
  message(FATAL_ERROR "${README} does not show what this prints:\n${shown}${output}")
endif()
