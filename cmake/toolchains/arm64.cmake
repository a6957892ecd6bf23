# 64-bit ARM.
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(ZORCS_DEBIAN_ARCH arm64)
set(ZORCS_TRIPLET aarch64-linux-gnu)
set(ZORCS_QEMU qemu-aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
