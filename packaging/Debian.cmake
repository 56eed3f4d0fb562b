# Debian's package, made by CPack: what every installed game has, and these files as Debian wants them.
set(documents ${CMAKE_INSTALL_DATADIR}/doc/kestrel-volley)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME debian)

function(AddCompressed name source)
    add_custom_command(OUTPUT ${name}.gz DEPENDS ${source} VERBATIM
        COMMAND sh -c "gzip -9 -n < '${source}' > '${CMAKE_CURRENT_BINARY_DIR}/${name}.gz'")
    set_property(TARGET compressed APPEND PROPERTY SOURCES ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
endfunction()
add_custom_target(compressed ALL)
AddCompressed(kestrel-volley.6 ${CMAKE_CURRENT_BINARY_DIR}/kestrel-volley.6)
AddCompressed(changelog ${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog)

install(FILES ${CMAKE_CURRENT_BINARY_DIR}/kestrel-volley.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6
    EXCLUDE_FROM_ALL)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${documents} EXCLUDE_FROM_ALL)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/copyright DESTINATION ${documents} EXCLUDE_FROM_ALL)
install(FILES debian/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME kestrel-volley
    EXCLUDE_FROM_ALL)

# The libraries that SDL loads by itself while the game runs: dpkg-shlibdeps does not see them.
file(STRINGS libraries loaded REGEX "^loaded.*\\|.*\\|")
list(TRANSFORM loaded REPLACE "^.*\\| *" "")
list(JOIN loaded ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)

set(CPACK_GENERATOR DEB)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};${PROJECT_NAME};game;/;${PROJECT_BINARY_DIR};${PROJECT_NAME};debian;/")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/SetTimes.cmake)
set(CPACK_PACKAGE_NAME kestrel-volley)
set(CPACK_PACKAGE_CONTACT "Orrin")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "arcade road shooter on nine lanes")
set(CPACK_PACKAGE_DESCRIPTION "\
Drive up an endless road, jump from lane to lane, and shoot your way
through traffic, obstacles and enemy fire. Every 26 seconds a new stage
begins, with more traffic, and with another speed and scenery.

Played with keyboard, gamepad or joystick, in English, German, Dutch and
Finnish.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
include(CPack)
