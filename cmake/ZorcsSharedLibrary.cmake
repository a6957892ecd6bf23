# What the libraries have in common.
#
# zorcs_library_code(target): how their objects are compiled.
# zorcs_library_link(target map): how they are linked, with the symbols that the version script map
#   lets out.
# zorcs_shared_library(target map): the link, the name that the loader knows them by, and the size
#   of a page.

# Before 1.0 a minor release may change the binary interface, so both numbers stand in the name:
# libzorcs.so.0.1. From 1.0 on the major number does.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(ZORCS_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
else()
  set(ZORCS_SOVERSION ${PROJECT_VERSION_MAJOR})
endif()

function(zorcs_library_code target)
  set_target_properties(${target} PROPERTIES
    POSITION_INDEPENDENT_CODE ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  # What is let out may be replaced by the program, and by default is compiled so that it can be. The
  # wrappers are classes with a layout, not hooks: their calls to each other may be inlined.
  target_compile_options(${target} PRIVATE -fno-semantic-interposition)
endfunction()

function(zorcs_library_link target map)
  set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
  # The same at the link: a call that stays within the library is a plain call, and needs no
  # relocation. Data stays as it is, so that a type has one typeinfo in the whole process.
  target_link_options(${target} PRIVATE
    LINKER:--version-script=${map} LINKER:-Bsymbolic-functions ${zorcs_no_undefined})
endfunction()

function(zorcs_shared_library target map)
  zorcs_library_link(${target} ${map})
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
