# Builds for 64-bit ARM.
set(processor aarch64)
set(emulator qemu-aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/Linux.cmake)
