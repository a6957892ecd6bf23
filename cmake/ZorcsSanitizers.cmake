# zorcs_sanitizers: the flags that ZORCS_SANITIZERS asks for, for every object and every link.
add_library(zorcs_sanitizers INTERFACE)
if(ZORCS_SANITIZERS)
  # g++ takes variables of the standard library for uninitialised when the checks stand between.
  target_compile_options(zorcs_sanitizers INTERFACE
    -fsanitize=${ZORCS_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer -g
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(zorcs_sanitizers INTERFACE -fsanitize=${ZORCS_SANITIZERS})
endif()

# A library says at its own link what it lacks. With clang++ the sanitizers' functions are found in
# the program alone, so that a library has to leave them open.
set(zorcs_no_undefined LINKER:--no-undefined)
if(ZORCS_SANITIZERS AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  set(zorcs_no_undefined)
endif()
