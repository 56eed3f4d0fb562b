# How every target of ours is compiled, and the one way to declare a room.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

add_library(compile_options INTERFACE)
target_include_directories(compile_options INTERFACE ${PROJECT_SOURCE_DIR})
if(WIN32) # less of the system's header, and no macros in it that take the names of functions
    target_compile_definitions(compile_options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX)
endif()
if(MSVC)
    target_compile_options(compile_options INTERFACE /W4 /permissive- /utf-8 /fp:precise
        $<$<BOOL:${KESTREL_WERROR}>:/WX>)
else()
    target_compile_options(compile_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wdouble-promotion -Wcast-align
        -Wnon-virtual-dtor -Wold-style-cast -Wnull-dereference -Wformat=2 -Wimplicit-fallthrough
        $<$<BOOL:${KESTREL_WERROR}>:-Werror>
        # A fused multiply-add rounds once where two operations round twice: with it, the same run would
        # come out differently from one optimisation level or processor to the next.
        -ffp-contract=off)
    if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND CMAKE_SYSTEM_PROCESSOR MATCHES "^(i[3-6]86|x86|x86_64|amd64|AMD64)$")
        # The same goes for the old floating-point unit of 32-bit x86, which rounds later; sim/Step.cpp refuses it.
        target_compile_options(compile_options INTERFACE -msse2 -mfpmath=sse)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # This GCC sees overlapping copies in std::string's operator+ where there are none.
        target_compile_options(compile_options INTERFACE -Wno-restrict)
    endif()
endif()

if(KESTREL_SANITIZE)
    # Optimised just enough that a played minute does not last two, and checked by the standard library as well.
    target_compile_options(compile_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
    target_compile_definitions(compile_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(compile_options INTERFACE -fsanitize=address,undefined)
endif()

# A compiler cache, where the machine has one, shortens the second build of the same sources, in this folder or another.
# Clang's precompiled headers name the folder that they were made in, so they must not come from another one's build.
find_program(KESTREL_CCACHE ccache)
mark_as_advanced(KESTREL_CCACHE)
if(KESTREL_CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros ${KESTREL_CCACHE})
endif()

# These rooms, which what is read from a file passes through, are compiled so that the fuzzer sees which code an input
# reached. The others would only be slowed down by it.
set(readers quillini state store text)

# kestrel_room(<folder> <links>...): the library of one room, made of every source file in its folder but a main
# program's, so that the tests can link it.
function(kestrel_room name)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.hpp)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(${name} STATIC ${sources})
    set_property(GLOBAL APPEND PROPERTY KESTREL_ROOMS ${name})
    target_link_libraries(${name} PUBLIC compile_options ${ARGN})
    if(KESTREL_BUILD_FUZZ AND name IN_LIST readers)
        target_compile_options(${name} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()
