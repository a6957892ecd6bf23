# hold(actual kept compare...): fails when the command compare finds a difference between the files.
# With ZORCS_ACCEPT_ABI in the environment, as scripts/accept-abi sets it, kept is rewritten first.
cmake_minimum_required(VERSION 3.22)

function(hold actual kept)
  if(DEFINED ENV{ZORCS_ACCEPT_ABI})
    file(COPY_FILE ${actual} ${kept} ONLY_IF_DIFFERENT)
  endif()
  execute_process(COMMAND ${ARGN} ${kept} ${actual} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "The binary interface changed. If it should, run scripts/accept-abi.")
  endif()
endfunction()
