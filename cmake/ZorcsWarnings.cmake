# zorcs_warnings: the warnings that all code written by hand is compiled with.
add_library(zorcs_warnings INTERFACE)
target_compile_options(zorcs_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<BOOL:${ZORCS_WARNINGS_AS_ERRORS}>:-Werror>)
