# Quorvel.app: the program, what is shipped with it, and a signature, without which macOS would forget the permissions of
# a program on every change of a resource.
set_target_properties(quorvel PROPERTIES
    MACOSX_BUNDLE ON
    OUTPUT_NAME Quorvel
    MACOSX_BUNDLE_INFO_PLIST ${CMAKE_BINARY_DIR}/Contents/Info.plist
    BUILD_WITH_INSTALL_RPATH ON
    INSTALL_RPATH "@executable_path/../Frameworks"
)

set(contents $<TARGET_BUNDLE_CONTENT_DIR:quorvel>)
set(copyFramework)
if(QUORVEL_UPDATE_FRAMEWORK)
    target_link_libraries(quorvel PRIVATE ${QUORVEL_UPDATE_FRAMEWORK})
    cmake_path(GET QUORVEL_UPDATE_FRAMEWORK FILENAME framework)
    set(copyFramework COMMAND ditto ${QUORVEL_UPDATE_FRAMEWORK} ${contents}/Frameworks/${framework})
endif()

add_custom_target(quorvel_bundle ALL
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_BINARY_DIR}/Contents ${contents}
    ${copyFramework}
    COMMAND ${PROJECT_SOURCE_DIR}/tools/macos/sign $<TARGET_BUNDLE_DIR:quorvel>
    VERBATIM)
add_dependencies(quorvel_bundle quorvel quorvel_macos_resources quorvel_guide)
