# A cross build with Debian's compiler, against the libraries that scripts/sysroot unpacked.
# Included with CMAKE_SYSTEM_PROCESSOR set, and
#   ZORCS_DEBIAN_ARCH   Debian's name of the machine type
#   ZORCS_TRIPLET       the prefix of its compiler
#   ZORCS_QEMU          the emulator that runs its programs
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_CXX_COMPILER ${ZORCS_TRIPLET}-g++)

get_filename_component(CMAKE_SYSROOT
  ${CMAKE_CURRENT_LIST_DIR}/../../build/sysroot/${ZORCS_DEBIAN_ARCH} ABSOLUTE)
if(NOT EXISTS ${CMAKE_SYSROOT})
  message(FATAL_ERROR "There is no ${CMAKE_SYSROOT}: scripts/sysroot ${ZORCS_DEBIAN_ARCH} makes it")
endif()

# Programs, protoc among them, are the host's; all else is the sysroot's.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_CROSSCOMPILING_EMULATOR ${ZORCS_QEMU} -L ${CMAKE_SYSROOT})
