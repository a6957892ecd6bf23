# Holds the functions and types that LIBRARY exports, as ABIDW reads them from its debug information,
# to KEPT. Also what old callers survive is a change.
include(${CMAKE_CURRENT_LIST_DIR}/hold.cmake)
execute_process(
  COMMAND ${ABIDW} --suppressions ${CMAKE_CURRENT_LIST_DIR}/interface.suppr
          --headers-dir ${SOURCE_DIR}/jni --headers-dir ${SOURCE_DIR}/check
          --exported-interfaces-only --drop-private-types --drop-undefined-syms
          --no-comp-dir-path --no-corpus-path --no-show-locs --no-parameter-names --no-elf-needed
          --type-id-style hash --out-file ${ACTUAL} ${LIBRARY}
  COMMAND_ERROR_IS_FATAL ANY)
file(READ ${ACTUAL} text)
string(REGEX REPLACE "path='[^']*/" "path='" text "${text}")
file(WRITE ${ACTUAL} "${text}")
hold(${ACTUAL} ${KEPT} ${ABIDIFF} --harmless --leaf-changes-only)
