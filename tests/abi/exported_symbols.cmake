# Holds what LIBRARY exports, as NM prints it, to KEPT. A virtual table stands with its size in
# pointers: two precede its slots. Of weak functions only strangers to INTERFACE are listed, for
# whether an inline function has a symbol is the compiler's choice.
include(${CMAKE_CURRENT_LIST_DIR}/hold.cmake)
execute_process(COMMAND ${NM} --dynamic --defined-only --print-size --demangle ${LIBRARY}
                OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
# A semicolon or bracket would upset the list of lines.
string(REGEX REPLACE "[][;]" "?" table "${table}")
string(REGEX MATCHALL "[^\n]+" lines "${table}")
list(FILTER lines EXCLUDE REGEX "^[0-9a-f ]+ W (${INTERFACE})")
set(symbols "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^[0-9a-f ]+ [A-Za-z] " "" symbol "${line}")
  if(line MATCHES "^[0-9a-f]+ ([0-9a-f]+) [A-Za-z] vtable for ")
    math(EXPR pointers "0x${CMAKE_MATCH_1} / ${POINTER_BYTES}")
    string(APPEND symbol ", ${pointers} pointers")
  endif()
  list(APPEND symbols "${symbol}\n")
endforeach()
list(SORT symbols)
list(REMOVE_DUPLICATES symbols)
file(WRITE ${ACTUAL} ${symbols})
hold(${ACTUAL} ${KEPT} diff -u)
