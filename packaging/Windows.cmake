# The folder that a player unpacks anywhere on Windows. A check sees that the program takes nothing from the system that
# not every Windows has, and is no program of the console.
add_custom_command(OUTPUT checked DEPENDS kestrel-volley CheckWindows.cmake Allowed.cmake libraries VERBATIM
    COMMAND ${CMAKE_COMMAND} -DOBJDUMP=${CMAKE_OBJDUMP} -DPROGRAM=$<TARGET_FILE:kestrel-volley>
        -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckWindows.cmake
    COMMAND ${CMAKE_COMMAND} -E touch checked)
add_custom_target(check_program ALL DEPENDS checked)
configure_file(windows/README.txt.in README.txt @ONLY NEWLINE_STYLE CRLF)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME portable)
install(TARGETS kestrel-volley DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Music ${PROJECT_SOURCE_DIR}/Localization DESTINATION .)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt DESTINATION .)
install(DIRECTORY ${licences} DESTINATION .)
