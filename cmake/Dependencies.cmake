# Finds what the game is built on. scripts/setup writes build/Dependencies.cmake, which names the folders of the
# libraries that it built itself; without that file only what the system has installed is looked at. For another system
# there is build/Dependencies<its toolchain file's name>.cmake, and nothing beyond those folders is looked at.
if(CMAKE_CROSSCOMPILING)
    cmake_path(GET CMAKE_TOOLCHAIN_FILE STEM other_system)
endif()
include(${CMAKE_SOURCE_DIR}/build/Dependencies${other_system}.cmake OPTIONAL)
if(CMAKE_CROSSCOMPILING)
    list(APPEND CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH})
endif()

# A found folder is remembered by CMake. When the set-up has moved on to another one, look again.
if(NOT "${CMAKE_PREFIX_PATH}" STREQUAL "${KESTREL_SEARCHED_PREFIXES}")
    if(DEFINED KESTREL_SEARCHED_PREFIXES) # else it is one that was named on the command line
        unset(SDL3_DIR CACHE)
        unset(SDL3_mixer_DIR CACHE)
    endif()
    set(KESTREL_SEARCHED_PREFIXES "${CMAKE_PREFIX_PATH}" CACHE INTERNAL "Prefixes that SDL was last looked for in")
endif()

# Stops the configuration with the one thing there is to do about a missing dependency.
function(StopWithoutDependency Name Command)
    if(CMAKE_CROSSCOMPILING)
        set(Command everywhere)
    endif()
    if(WIN32)
        set(Command windows)
    endif()
    message(FATAL_ERROR "${Name} was not found. Run scripts/setup ${Command}, which fetches what is missing, "
        "and configure again.")
endfunction()

find_package(Threads REQUIRED)
find_package(SDL3 3.4 CONFIG QUIET)
if(NOT SDL3_FOUND)
    StopWithoutDependency("SDL3 (3.4 or newer)" run)
endif()
find_package(SDL3_mixer 3.2 CONFIG QUIET)
if(NOT SDL3_mixer_FOUND)
    StopWithoutDependency("SDL3_mixer (3.2 or newer)" run)
endif()

# The static mixer does not name SDL itself as its dependency, and one-pass linkers want it behind the mixer.
if(TARGET SDL3_mixer::SDL3_mixer-static AND NOT TARGET SDL3_mixer::SDL3_mixer-shared)
    set_property(TARGET SDL3_mixer::SDL3_mixer-static APPEND PROPERTY
        INTERFACE_LINK_LIBRARIES SDL3::SDL3 Threads::Threads)
endif()

# SDL asks for its headers to be treated like our own; our warnings are not for them.
if(TARGET SDL3::Headers)
    set_property(TARGET SDL3::Headers PROPERTY SYSTEM ON)
endif()

# Real key presses: the tour and the end-to-end tests send them to a window through the XTest extension.
if(UNIX AND NOT APPLE AND NOT CMAKE_CROSSCOMPILING AND (KESTREL_BUILD_TOOLS OR KESTREL_BUILD_TESTS))
    find_package(X11 QUIET)
    if(NOT TARGET X11::X11 OR NOT TARGET X11::Xtst)
        StopWithoutDependency("X11 with its XTest extension (libx11-dev, libxtst-dev)" test)
    endif()
endif()

# Nobody has GoogleTest compiled for another system or another standard library: its sources are those of the
# distribution.
if(KESTREL_BUILD_TESTS AND (CMAKE_CROSSCOMPILING OR CMAKE_CXX_FLAGS MATCHES "-stdlib="))
    if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
        StopWithoutDependency("GoogleTest" everywhere)
    endif()
    add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
elseif(KESTREL_BUILD_TESTS)
    find_package(GTest CONFIG QUIET)
    if(NOT TARGET GTest::gtest)
        StopWithoutDependency("GoogleTest" test)
    endif()
endif()

if(KESTREL_BUILD_TESTS AND NOT CMAKE_CROSSCOMPILING)
    find_library(VORBISFILE_LIBRARY vorbisfile)
    find_library(EBUR128_LIBRARY ebur128)
    find_path(VORBISFILE_FOLDER vorbis/vorbisfile.h)
    find_path(EBUR128_FOLDER ebur128.h)
    if(NOT VORBISFILE_LIBRARY OR NOT EBUR128_LIBRARY OR NOT VORBISFILE_FOLDER OR NOT EBUR128_FOLDER)
        StopWithoutDependency("libvorbisfile or libebur128" test)
    endif()
endif()

if(KESTREL_BUILD_BENCH)
    find_package(benchmark CONFIG QUIET)
    if(NOT TARGET benchmark::benchmark)
        StopWithoutDependency("Google Benchmark" test)
    endif()
    find_path(SIMPLEINI_FOLDER SimpleIni.h)
    if(NOT SIMPLEINI_FOLDER)
        StopWithoutDependency("SimpleIni" test)
    endif()
endif()
