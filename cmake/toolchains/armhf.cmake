# 32-bit ARM, with hardware floating point.
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(ZORCS_DEBIAN_ARCH armhf)
set(ZORCS_TRIPLET arm-linux-gnueabihf)
set(ZORCS_QEMU qemu-arm)
# No notes on how releases of the compiler before 7 passed arguments.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
