# How the tests are compiled and declared.

# The tests' own code is compiled for a short wait, whatever the game around it is compiled for. A debugger and a
# sanitizer tell its lines.
add_library(test_options INTERFACE)
target_link_libraries(test_options INTERFACE compile_options SDL3::Headers GTest::gtest)
target_compile_definitions(test_options INTERFACE SOURCE_TREE="${PROJECT_SOURCE_DIR}")
if(NOT MSVC)
    target_compile_options(test_options INTERFACE -g1 $<IF:$<CXX_COMPILER_ID:Clang>,-O0,-Og>)
endif()

# The programs of the rooms' tests.
add_custom_target(rooms_tests)

# Test programs are linked again after every change. Compilers for other systems have their own linker alone.
if(NOT CMAKE_CROSSCOMPILING)
    find_program(KESTREL_LINKER NAMES mold ld.lld)
    mark_as_advanced(KESTREL_LINKER)
endif()
if(KESTREL_LINKER MATCHES "mold$")
    target_link_options(test_options INTERFACE -fuse-ld=mold)
elseif(KESTREL_LINKER)
    target_link_options(test_options INTERFACE -fuse-ld=lld)
endif()

# What nearly every test includes is compiled once: by test_support, for all.
function(kestrel_compile_as_test target)
    target_link_libraries(${target} PRIVATE test_options)
    if(target STREQUAL "test_support")
        target_precompile_headers(test_support PRIVATE
            <SDL3/SDL.h> <gtest/gtest.h> <algorithm> <array> <filesystem> <fstream> <functional> <map> <optional>
            <sstream> <string> <string_view> <tuple> <vector>)
    else()
        target_precompile_headers(${target} REUSE_FROM test_support)
    endif()
endfunction()

# kestrel_test_library(<target> <sources>...): what several test programs share, linked whole.
function(kestrel_test_library target)
    add_library(${target} OBJECT ${ARGN})
    kestrel_compile_as_test(${target})
    target_link_libraries(${target} PUBLIC compile_options SDL3::SDL3 GTest::gtest)
endfunction()

# A job of ctest stands for a quarter of a core (the Makefile asks for four times as many as there are cores): most tests
# in the window wait most of the time. What computes takes four.
set(jobs_of_a_core 4)

# kestrel_tests(<name> [LABEL <label>] [SHARDS <number>] [SOURCES <sources>...] [LINKS <targets>...])
# The test program <name>_tests, of every source file in the folder <name> here unless others are named, and what runs
# it: each shard is a process that takes every <number>-th of its tests. Label "rooms" unless another is given.
function(kestrel_tests name)
    cmake_parse_arguments(PARSE_ARGV 1 tests "" "LABEL;SHARDS" "SOURCES;LINKS")
    if(NOT tests_SOURCES)
        file(GLOB tests_SOURCES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
    endif()
    add_executable(${name}_tests ${tests_SOURCES})
    target_link_libraries(${name}_tests PRIVATE ${tests_LINKS} GTest::gtest_main)
    kestrel_compile_as_test(${name}_tests)
    if(WIN32) # paths as the game has them, by its manifest
        target_sources(${name}_tests PRIVATE ${PROJECT_BINARY_DIR}/app/kestrel-volley.rc)
    endif()
    if(NOT tests_LABEL)
        set(tests_LABEL rooms)
        add_dependencies(rooms_tests ${name}_tests)
    endif()
    if(NOT tests_SHARDS)
        set(tests_SHARDS 1)
    endif()
    set(command ${name}_tests)
    set(timeout 600)
    if(WIN32 AND CMAKE_CROSSCOMPILING) # there words tell what has passed (below), so a bad result becomes some as well
        set(command sh -c [["$0" "$@" || echo "[  FAILED  ] with the result $?"]]
            ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:${name}_tests>)
    elseif(CMAKE_CROSSCOMPILING)
        set(timeout 3600) # a processor that is emulated takes its time
    endif()
    # Where a program that counts what it reaches leaves that (preset coverage): a file for all of its shards.
    set(counted LLVM_PROFILE_FILE=${PROJECT_BINARY_DIR}/profiles/${name}-%m.profraw)
    foreach(shard RANGE 1 ${tests_SHARDS})
        math(EXPR index "${shard} - 1")
        add_test(NAME ${name}.${shard}of${tests_SHARDS} COMMAND ${command} --gtest_brief=1)
        set_tests_properties(${name}.${shard}of${tests_SHARDS} PROPERTIES
            LABELS "${tests_LABEL}" TIMEOUT ${timeout} PROCESSORS ${jobs_of_a_core}
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${tests_SHARDS};GTEST_SHARD_INDEX=${index};${counted}")
        if(WIN32 AND CMAKE_CROSSCOMPILING) # wine gives the result 0 where another thread than the first has crashed
            set_tests_properties(${name}.${shard}of${tests_SHARDS} PROPERTIES
                PASS_REGULAR_EXPRESSION "\\[  PASSED  \\]" FAIL_REGULAR_EXPRESSION "\\[  FAILED  \\];Unhandled")
        endif()
    endforeach()
endfunction()
