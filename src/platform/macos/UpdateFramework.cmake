# Sets QUORVEL_UPDATE_FRAMEWORK to the update framework that the bundle is to bring along, known by its header; it stays
# empty where there is none, and Quorvel then does not update itself.
set(QUORVEL_UPDATE_FRAMEWORK "" CACHE PATH "The update framework; looked for where frameworks usually are if empty")

if(NOT QUORVEL_UPDATE_FRAMEWORK)
    foreach(folder IN ITEMS ${CMAKE_FRAMEWORK_PATH} $ENV{HOME}/Library/Frameworks /Library/Frameworks)
        file(GLOB headers ${folder}/*.framework/Headers/SPUStandardUpdaterController.h)
        foreach(header IN LISTS headers)
            cmake_path(GET header PARENT_PATH headerFolder)
            cmake_path(GET headerFolder PARENT_PATH framework)
            set(QUORVEL_UPDATE_FRAMEWORK ${framework})
        endforeach()
    endforeach()
endif()
if(QUORVEL_UPDATE_FRAMEWORK)
    message(STATUS "Updates by ${QUORVEL_UPDATE_FRAMEWORK}")
endif()
