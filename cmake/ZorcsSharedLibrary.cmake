# zorcs_shared_library(target map): what both libraries have in common at their link: the symbols
# that the version script map lets out, the name that the loader knows them by, the size of a page.

# Before 1.0 a minor release may change the binary interface, so both numbers stand in the name:
# libzorcs.so.0.1. From 1.0 on the major number does.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(ZORCS_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
else()
  set(ZORCS_SOVERSION ${PROJECT_VERSION_MAJOR})
endif()

function(zorcs_shared_library target map)
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
  target_link_options(${target} PRIVATE LINKER:--version-script=${map} ${zorcs_no_undefined})
  if(ANDROID)
    # Android's packages take no file that does not end in ".so", so the name bears no version there.
    # A segment has to begin on a page of the device, and that has 16 KB on recent ones. A library
    # laid out so loads from 4 KB pages too.
    target_link_options(${target} PRIVATE LINKER:-z,max-page-size=16384)
  else()
    set_target_properties(${target} PROPERTIES
      VERSION ${PROJECT_VERSION}
      SOVERSION ${ZORCS_SOVERSION})
  endif()
endfunction()
