# 32-bit x86.
set(CMAKE_SYSTEM_PROCESSOR i686)
set(ZORCS_DEBIAN_ARCH i386)
set(ZORCS_TRIPLET i686-linux-gnu)
set(ZORCS_QEMU qemu-i386)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
