# The folder that a player unpacks anywhere, with all in it that a system may lack.
add_executable(portable ${PROJECT_SOURCE_DIR}/app/main.cpp)
target_link_libraries(portable PRIVATE app)
target_link_options(portable PRIVATE -static-libstdc++ -static-libgcc)
set_target_properties(portable PROPERTIES OUTPUT_NAME kestrel-volley RUNTIME_OUTPUT_DIRECTORY portable)

# Its read-me names the glibc that the program was found to need.
add_custom_command(OUTPUT README.txt VERBATIM
    DEPENDS portable CheckLibraries.cmake Allowed.cmake libraries README.txt.in
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:portable> -DREADME=${CMAKE_CURRENT_BINARY_DIR}/README.txt
        -DVERSION=${PROJECT_VERSION} -P ${CMAKE_CURRENT_SOURCE_DIR}/CheckLibraries.cmake)
add_custom_target(readme ALL DEPENDS README.txt)

set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME portable)
install(TARGETS portable DESTINATION . EXCLUDE_FROM_ALL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/Music ${PROJECT_SOURCE_DIR}/Localization DESTINATION . EXCLUDE_FROM_ALL)
install(FILES icons/256.png DESTINATION . RENAME kestrel-volley.png EXCLUDE_FROM_ALL)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt DESTINATION . EXCLUDE_FROM_ALL)
install(DIRECTORY ${licences} DESTINATION . EXCLUDE_FROM_ALL)
