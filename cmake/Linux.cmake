# Builds for Linux on another processor, with the distribution's cross compiler, for the tests alone: an emulator runs
# them. Aarch64.cmake, I686.cmake and S390x.cmake say which: processor is its name there, emulator what runs its programs.
set(LinuxToolchain ${CMAKE_CURRENT_LIST_FILE})
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR ${processor})
set(tools ${processor}-linux-gnu)
set(CMAKE_C_COMPILER ${tools}-gcc)
set(CMAKE_CXX_COMPILER ${tools}-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR ${emulator};-L;/usr/${tools})

# Of this machine's libraries, none are for that processor.
set(CMAKE_FIND_ROOT_PATH /usr/${tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} /usr/${tools}/lib/pkgconfig)

# So SDL has no kind of window, but its dummy and offscreen drivers.
set(SDL_UNIX_CONSOLE_BUILD ON CACHE BOOL "Build SDL without windows")
