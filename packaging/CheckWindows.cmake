# Lists the libraries that the program for Windows takes from the system, and refuses what packaging/libraries does not
# name; and a program that opens a console, or whose manifest asks for no paths in UTF-8. Takes OBJDUMP and PROGRAM.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/Allowed.cmake)

execute_process(COMMAND ${OBJDUMP} --private-headers "${PROGRAM}" OUTPUT_VARIABLE said COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "DLL Name: [^\r\n]+" imported "${said}")
list(TRANSFORM imported REPLACE "DLL Name: " "")
list(TRANSFORM imported TOLOWER) # Windows does not tell them apart either

if(NOT said MATCHES "Subsystem[ \t]+00000002")
    Refuse("a console of its own")
endif()
file(STRINGS "${PROGRAM}" manifest REGEX "<activeCodePage [^>]*>UTF-8<")
if(NOT manifest)
    Refuse("another code page than UTF-8")
endif()
Check(imported ${imported})
StopIfRefused(imported)
