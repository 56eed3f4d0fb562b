# The folder that a player unpacks anywhere on Windows. A check sees that the program takes nothing from the system that
# not every Windows has.
add_custom_command(OUTPUT imports DEPENDS kestrel-volley CheckImports.cmake libraries VERBATIM
    COMMAND ${CMAKE_COMMAND} -DOBJDUMP=${CMAKE_OBJDUMP} -DPROGRAM=$<TARGET_FILE:kestrel-volley>
        -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckImports.cmake
    COMMAND ${CMAKE_COMMAND} -E touch imports)
add_custom_target(check_imports ALL DEPENDS imports)
configure_file(windows/README.txt.in README.txt @ONLY NEWLINE_STYLE CRLF)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME portable)
install(TARGETS kestrel-volley DESTINATION .)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Music ${PROJECT_SOURCE_DIR}/Localization DESTINATION .)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt DESTINATION .)
install(DIRECTORY ${licences} DESTINATION .)
