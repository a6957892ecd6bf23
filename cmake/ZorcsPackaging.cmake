# Debian packages, one a component of the installation, by cpack in a build of the preset "package".
find_program(ZORCS_GZIP gzip REQUIRED)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zorcs)
set(CPACK_PACKAGE_VENDOR "libzorcs developers")
set(CPACK_PACKAGE_CONTACT "libzorcs developers <libzorcs@example.org>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL library development tools)
set(CPACK_COMPONENTS_GROUPING IGNORE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# libzorcs-check.so needs libzorcs.so, which no installed package brings.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/jni)
# Tells the packages of other programs which libzorcs they need, and the loader that it has come.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/triggers)

# zorcs_package_gzip(file component destination): file compressed, without its name and date.
function(zorcs_package_gzip file component destination)
  execute_process(COMMAND ${ZORCS_GZIP} -9 --no-name --force --keep ${file}
                  COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${file}.gz DESTINATION ${destination} COMPONENT ${component})
endfunction()

# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

# zorcs_package(component name section summary description): the package and its papers, which are
# made from packaging/.
function(zorcs_package component name section summary description)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section} PARENT_SCOPE)
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)

  set(source ${PROJECT_SOURCE_DIR}/packaging)
  set(folder ${PROJECT_BINARY_DIR}/packaging/${name})
  set(docdir ${CMAKE_INSTALL_DATADIR}/doc/${name})
  set(ZORCS_PACKAGE ${name})
  string(TIMESTAMP ZORCS_PACKAGE_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
  configure_file(${source}/changelog.in ${folder}/changelog @ONLY)
  zorcs_package_gzip(${folder}/changelog ${component} ${docdir})
  install(FILES ${source}/copyright DESTINATION ${docdir} COMPONENT ${component})
  set(ZORCS_MORE_OVERRIDES "")
  if(EXISTS ${source}/${name}.lintian-overrides)
    file(READ ${source}/${name}.lintian-overrides ZORCS_MORE_OVERRIDES)
  endif()
  configure_file(${source}/lintian-overrides.in ${folder}/lintian-overrides @ONLY)
  install(FILES ${folder}/lintian-overrides RENAME ${name}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component})
endfunction()

set(what "libzorcs converts audio post-processing configurations between Protocol
Buffers messages and the plain C structs that an audio engine takes.")
zorcs_package(library libzorcs libs
  "audio configurations between messages and engine structs"
  "${what}
.
libzorcs-check tells beforehand what a conversion would lose or endanger.")

zorcs_package(development libzorcs-dev libdevel
  "audio configurations to engine structs (development files)"
  "${what}
.
This package has the headers, the schema files, and what CMake and pkg-config
need to find the libraries.")
# The generated headers are for this release of protobuf alone.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "libzorcs (= ${PROJECT_VERSION}), libprotobuf-dev (>= 3.21), libprotobuf-dev (<< 3.22)")

zorcs_package(tools zorcs-tools utils
  "look into audio configurations for an audio engine"
  "zorcs inspects, checks, builds, compares and converts audio post-processing
configurations: Protocol Buffers messages, their text and JSON forms, and
images of the structs that an audio engine takes.")
set(manual ${PROJECT_BINARY_DIR}/packaging/zorcs.1)
configure_file(${PROJECT_SOURCE_DIR}/tools/zorcs.1 ${manual} COPYONLY)
zorcs_package_gzip(${manual} tools ${CMAKE_INSTALL_MANDIR}/man1)

include(CPack)
