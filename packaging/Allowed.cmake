# What a program may take from the system that it runs on stands in packaging/libraries.

# The second field of each line of that kind.
function(ReadAllowed Kind Result)
    file(STRINGS "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/libraries" lines REGEX "^${Kind} ")
    list(TRANSFORM lines REPLACE "^[^|]*\\| *([^ |]*).*" "\\1")
    set(${Result} "${lines}" PARENT_SCOPE)
endfunction()

# Notes what is refused.
function(Refuse What)
    set_property(GLOBAL APPEND PROPERTY refused "${What}")
endfunction()

# Prints what the program needs of a kind; refuses what is not allowed.
function(Check Kind)
    ReadAllowed(${Kind} allowed)
    foreach(name IN LISTS ARGN)
        message(STATUS "${Kind}: ${name}")
        if(NOT name IN_LIST allowed)
            Refuse("${name}")
        endif()
    endforeach()
endfunction()

# Stops if anything was refused, or if one of the named lists is empty: every program needs something.
function(StopIfRefused)
    get_property(refused GLOBAL PROPERTY refused)
    foreach(list IN LISTS ARGN)
        if(NOT ${list})
            list(APPEND refused "no ${list}")
        endif()
    endforeach()
    if(refused)
        list(JOIN refused ", " refused)
        message(FATAL_ERROR "Refused: ${refused}\nWhat a program may take stands in packaging/libraries.")
    endif()
endfunction()
