# Builds for 32-bit x86.
set(processor i686)
set(emulator qemu-i386)
include(${CMAKE_CURRENT_LIST_DIR}/Linux.cmake)
