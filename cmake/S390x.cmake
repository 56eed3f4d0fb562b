# Builds for IBM Z, which stores numbers with their highest byte first.
set(processor s390x)
set(emulator qemu-s390x)
include(${CMAKE_CURRENT_LIST_DIR}/Linux.cmake)
