# 64-bit, big endian.
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(ZORCS_DEBIAN_ARCH s390x)
set(ZORCS_TRIPLET s390x-linux-gnu)
set(ZORCS_QEMU qemu-s390x)
include(${CMAKE_CURRENT_LIST_DIR}/debian.cmake)
