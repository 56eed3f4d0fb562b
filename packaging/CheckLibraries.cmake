# Lists what the portable program takes from the system that it runs on, refuses what packaging/libraries does not name,
# and writes the read-me that tells players of it. Takes PROGRAM, README and VERSION.
cmake_minimum_required(VERSION 3.25)

include(${CMAKE_CURRENT_LIST_DIR}/Allowed.cmake)

# Without brackets: in a list of CMake's they would hold its elements together.
execute_process(COMMAND readelf --wide --dynamic --version-info "${PROGRAM}"
    OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[][]" "" said "${said}")
string(REGEX MATCHALL "Shared library: [^\n]+" linked "${said}")
list(TRANSFORM linked REPLACE ".*: " "")
string(REGEX MATCHALL "Name: GLIBC_[A-Z0-9_.]+" symbols "${said}")
list(TRANSFORM symbols REPLACE "Name: GLIBC_" "")
list(SORT symbols COMPARE NATURAL ORDER DESCENDING)
list(GET symbols 0 glibc)

# What it loads while it runs, by the names that stand in it: SDL tells of most in notes, but not of all.
file(STRINGS "${PROGRAM}" loaded REGEX "^lib[A-Za-z0-9_.+-]+\\.so(\\.[0-9]+)*$")
list(REMOVE_DUPLICATES loaded)
list(REMOVE_ITEM loaded ${linked})

Check(linked ${linked})
Check(loaded ${loaded})
message(STATUS "newest symbols of glibc: ${glibc}")
ReadAllowed(glibc newest)
if(glibc VERSION_GREATER newest OR NOT glibc MATCHES "^[0-9]") # a word, as PRIVATE, comes before all versions
    Refuse("glibc ${glibc}")
endif()
StopIfRefused(linked loaded)
configure_file("${CMAKE_CURRENT_LIST_DIR}/README.txt.in" "${README}" @ONLY)
