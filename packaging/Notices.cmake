# The licences of all that is inside the programs: in the folder Licences for the portable one, and as Debian wants them
# in the file copyright. They come from where the sources and compilers have them.
set(licences ${CMAKE_CURRENT_BINARY_DIR}/Licences)
file(REMOVE_RECURSE ${licences})
configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${licences}/KestrelVolley.txt COPYONLY)

# Reads a text as the file copyright has it: with a blank before each line but the first, and a full stop for an empty
# one.
function(ReadParagraph File Result)
    file(READ ${File} text)
    string(REGEX REPLACE "[ \t\r]+\n" "\n" text "${text}")
    string(STRIP "${text}" text)
    string(REPLACE "\n" "\n " text "${text}")
    string(REPLACE "\n \n" "\n .\n" text "${text}")
    string(REPLACE "\n \n" "\n .\n" text "${text}") # the first time misses every second of empty lines in a row
    set(${Result} "${text}" PARENT_SCOPE)
endfunction()

# A library that is linked into the program, by the licence that its own installation left, and by the notices that the
# set-up kept of what it is made of (scripts/libraries/keep-notices).
set(paragraphs "")
foreach(library SDL3 SDL3_mixer)
    if(NOT TARGET ${library}::${library}-static)
        continue()
    endif()
    get_filename_component(folder ${${library}_DIR}/../../../share/licenses/${library} ABSOLUTE)
    configure_file(${folder}/LICENSE.txt ${licences}/${library}.txt COPYONLY)
    configure_file(${folder}/NOTICES.txt ${licences}/${library}-notices.txt COPYONLY)
    file(STRINGS ${folder}/LICENSE.txt holders REGEX "^Copyright")
    string(REGEX REPLACE "^Copyright *(\\(C\\))? *" "" holders "${holders}")
    ReadParagraph(${folder}/LICENSE.txt licence)
    ReadParagraph(${folder}/NOTICES.txt notices)
    string(APPEND paragraphs "\nFiles: ${library}/*\nComment: This library is inside the program.\n"
        "Copyright: ${holders}, and those whom the notices below name\n"
        "License: ${library}\n ${licence}\n .\n ${notices}\n")
endforeach()
ReadParagraph(${PROJECT_SOURCE_DIR}/LICENSE own)
string(REGEX REPLACE "^.*(Permission is hereby)" "\\1" own "${own}")
configure_file(debian/copyright.in copyright @ONLY)

# The compiler's own libraries, by the documents of the package that brought each.
function(AddCompilersLibrary Name Archive)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${Archive}
        OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE)
    file(REAL_PATH ${library} library)
    execute_process(COMMAND dpkg-query --search ${library} OUTPUT_VARIABLE package COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE "[:,].*" "" package "${package}")
    configure_file(/usr/share/doc/${package}/copyright ${licences}/${Name}.txt COPYONLY)
endfunction()
AddCompilersLibrary(GCC libstdc++.a)
if(MINGW)
    AddCompilersLibrary(MinGW-w64 libmingwex.a)
endif()
# The licences that the texts above name without having them inside.
configure_file(/usr/share/common-licenses/GPL-3 ${licences}/GPL-3.txt COPYONLY)
configure_file(/usr/share/common-licenses/Apache-2.0 ${licences}/Apache-2.0.txt COPYONLY)
