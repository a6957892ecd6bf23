# Holds the dynamic symbol table of LIBRARY, as NM prints it, to what the library means to export:
# everything that EXPECTED names, and nothing but what INTERFACE matches.
cmake_minimum_required(VERSION 3.22)

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY}
                OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
# A semicolon or bracket would upset the list of lines.
string(REGEX REPLACE "[][;]" "?" table "${table}")
string(REGEX MATCHALL "[^\n]+" lines "${table}")
set(strangers "")
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^[0-9a-f ]+ [A-Za-z] " "" symbol "${line}")
  if(NOT symbol MATCHES "^((vtable|typeinfo|typeinfo name) for )?(${INTERFACE})")
    string(APPEND strangers "\n  ${symbol}")
  endif()
endforeach()
if(strangers)
  message(SEND_ERROR "exported, but not part of the interface:${strangers}")
endif()

set(missing "")
file(STRINGS ${EXPECTED} symbols REGEX "^[^#]")
foreach(symbol IN LISTS symbols)
  string(FIND "${table}" " ${symbol}\n" at)
  if(at EQUAL -1)
    string(APPEND missing "\n  ${symbol}")
  endif()
endforeach()
if(missing)
  message(SEND_ERROR "part of the interface, but not exported:${missing}")
endif()
