# Brings the sources of one library into FOLDER by the first road that leads there: the archive that an earlier set-up
# fetched, the mirrors in their order, upstream's repository, the folder SOURCES. CMake's own list of addresses is not
# enough: apt's helper honours the proxies, certificates and passwords that are set for apt, gives up at once where
# there is no network, and the repository has its turn between two kinds of archives.
# scripts/setup shows the lines that begin with "setup:".
cmake_minimum_required(VERSION 3.25)

cmake_path(GET ARCHIVE FILENAME file)
set(fetched "${DOWNLOADS}/${file}")
separate_arguments(MIRRORS)

function(Tell)
    message("setup:   ${NAME}: " ${ARGV})
endfunction()

# Unpacks an archive, and with that ends this script; goes on when it is not the one that was pinned. A macro, as
# return() ends the script from there only.
macro(TakeArchive Archive Origin)
    file(SHA256 "${Archive}" found)
    if(found STREQUAL SHA256)
        file(REMOVE_RECURSE "${FOLDER}" "${FOLDER}.unpacked")
        file(ARCHIVE_EXTRACT INPUT "${Archive}" DESTINATION "${FOLDER}.unpacked")
        file(GLOB top "${FOLDER}.unpacked/*") # the archive's one folder
        file(RENAME "${top}" "${FOLDER}")
        Tell("${file} from ${Origin}")
        return()
    endif()
    Tell("refused ${file} from ${Origin}: its SHA-256 is ${found}, expected ${SHA256}")
endmacro()

if(EXISTS "${fetched}")
    TakeArchive("${fetched}" "an earlier set-up")
endif()

foreach(mirror IN LISTS MIRRORS)
    file(REMOVE "${fetched}" "${fetched}.partial")
    execute_process(RESULT_VARIABLE status COMMAND /usr/lib/apt/apt-helper
        -o Acquire::Retries=1 -o Acquire::http::Timeout=20 -o Acquire::https::Timeout=20
        download-file "${mirror}/${ARCHIVE}" "${fetched}.partial")
    if(status EQUAL 0)
        file(RENAME "${fetched}.partial" "${fetched}")
        TakeArchive("${fetched}" "${mirror}")
    else()
        Tell("${mirror} did not give ${file}")
    endif()
endforeach()
file(REMOVE "${fetched}" "${fetched}.partial")

# Runs git in FOLDER; sets missed when that fails.
macro(Git Seconds)
    if(NOT missed)
        execute_process(COMMAND git ${ARGN} WORKING_DIRECTORY "${FOLDER}" TIMEOUT ${Seconds} RESULT_VARIABLE missed)
    endif()
endmacro()

# That commit alone. Without a road to the repository the first line gives up within half a minute.
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
set(missed 0)
Git(30 ls-remote --exit-code ${REPOSITORY} HEAD)
Git(10 init -q)
Git(600 -c http.lowSpeedLimit=1000 -c http.lowSpeedTime=20 fetch -q --depth 1 ${REPOSITORY} ${COMMIT})
Git(60 -c advice.detachedHead=false checkout -q ${COMMIT})
if(missed EQUAL 0)
    Tell("commit ${COMMIT} of ${REPOSITORY}")
    return()
endif()
Tell("${REPOSITORY} did not give its commit ${COMMIT} (${missed})")

if(NOT SOURCES)
    Tell("KESTREL_SOURCES names no folder")
elseif(EXISTS "${SOURCES}/${file}")
    TakeArchive("${SOURCES}/${file}" "${SOURCES}")
else()
    Tell("${SOURCES}, which KESTREL_SOURCES names, has no ${file}")
endif()
message(FATAL_ERROR "There was no road to the sources of ${NAME}.")
