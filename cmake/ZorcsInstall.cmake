# Installs libraries, schema and command for three kinds of machine, as components: one that runs
# programs with the libraries (library), one that builds them (development), and one that has the
# command alone (tools). The public headers are installed where they are listed.
include(CMakePackageConfigHelpers)

install(TARGETS zorcs zorcs-check EXPORT zorcs-targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          COMPONENT library
          NAMELINK_COMPONENT development)

list(TRANSFORM ZORCS_SCHEMA_FILES REPLACE "(.+)" "${ZORCS_GENERATED_DIR}/\\1.pb.h"
     OUTPUT_VARIABLE zorcs_generated_headers)
zorcs_public_headers(${zorcs_generated_headers} ${ZORCS_GENERATED_DIR}/ZorcsExport.h)
set(zorcs_install_protodir ${CMAKE_INSTALL_DATADIR}/zorcs/proto)
install(FILES ${ZORCS_PROTO_FILES} DESTINATION ${zorcs_install_protodir} COMPONENT development)

# For find_package.
set(zorcs_install_configdir ${CMAKE_INSTALL_LIBDIR}/cmake/zorcs)
set(zorcs_config_dir ${PROJECT_BINARY_DIR}/config)
configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/zorcs-config.cmake.in ${zorcs_config_dir}/zorcs-config.cmake
  INSTALL_DESTINATION ${zorcs_install_configdir}
  PATH_VARS zorcs_install_protodir
  NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# By the same rule as the name that the loader knows: see ZorcsSharedLibrary.cmake.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(compatibility SameMinorVersion)
else()
  set(compatibility SameMajorVersion)
endif()
write_basic_package_version_file(${zorcs_config_dir}/zorcs-config-version.cmake
  COMPATIBILITY ${compatibility})
install(FILES ${zorcs_config_dir}/zorcs-config.cmake ${zorcs_config_dir}/zorcs-config-version.cmake
  DESTINATION ${zorcs_install_configdir} COMPONENT development)
install(EXPORT zorcs-targets NAMESPACE zorcs::
  DESTINATION ${zorcs_install_configdir} COMPONENT development)

# For pkg-config. The paths are relative to the file, so that the tree may be installed or moved
# anywhere.
set(zorcs_install_pcdir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH zorcs_pc_to_prefix /prefix/${zorcs_install_pcdir} /prefix)
string(REGEX REPLACE "/$" "" zorcs_pc_to_prefix ${zorcs_pc_to_prefix})
foreach(name IN ITEMS zorcs zorcs-check)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${name}.pc.in ${zorcs_config_dir}/${name}.pc @ONLY)
  install(FILES ${zorcs_config_dir}/${name}.pc
    DESTINATION ${zorcs_install_pcdir} COMPONENT development)
endforeach()

if(ZORCS_BUILD_TOOLS)
  install(TARGETS zorcs-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
  if(NOT ZORCS_PACKAGING)  # which brings it compressed
    install(FILES ${PROJECT_SOURCE_DIR}/tools/zorcs.1
      DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
  endif()
  install(FILES ${PROJECT_SOURCE_DIR}/tools/zorcs.bash
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
    RENAME zorcs COMPONENT tools)
endif()
