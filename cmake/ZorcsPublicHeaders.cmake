# zorcs_public_headers(file...): the headers that a user of the libraries includes. They stand side
# by side in one folder, for they include each other by their bare names.
set(ZORCS_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/zorcs)

function(zorcs_public_headers)
  if(ZORCS_INSTALL)
    install(FILES ${ARGN} DESTINATION ${ZORCS_INSTALL_INCLUDEDIR} COMPONENT development)
  endif()
endfunction()
