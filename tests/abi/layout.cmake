# Holds what COMMAND prints to KEPT.
include(${CMAKE_CURRENT_LIST_DIR}/hold.cmake)
execute_process(COMMAND ${COMMAND} OUTPUT_FILE ${ACTUAL} COMMAND_ERROR_IS_FATAL ANY)
hold(${ACTUAL} ${KEPT} diff -u)
