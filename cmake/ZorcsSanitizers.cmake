# zorcs_sanitizers: the flags that ZORCS_SANITIZERS asks for, for every object and every link.
add_library(zorcs_sanitizers INTERFACE)
if(ZORCS_SANITIZERS)
  target_compile_options(zorcs_sanitizers INTERFACE
    -fsanitize=${ZORCS_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer -g)
  target_link_options(zorcs_sanitizers INTERFACE -fsanitize=${ZORCS_SANITIZERS})
endif()
