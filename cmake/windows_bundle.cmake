# The files beside the program on Windows: in the build tree, so that it and its tests run there, and in the bundle for
# the archive and the installer.
set(beside_program ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
set(libraries)
foreach(name libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
        OUTPUT_VARIABLE library OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    file(REAL_PATH ${library} library)
    list(APPEND libraries ${library})
endforeach()
set(test_libraries)
if(WARHOST_GUI)
    find_package(Qt6 REQUIRED COMPONENTS Widgets)
    foreach(part Core Gui Widgets)
        list(APPEND libraries $<TARGET_FILE:Qt6::${part}>)
    endforeach()
    set(platform $<TARGET_FILE:Qt6::QWindowsIntegrationPlugin>)
    if(BUILD_TESTING)
        find_package(Qt6 REQUIRED COMPONENTS Test)
        set(test_libraries $<TARGET_FILE:Qt6::Test>)
    endif()
endif()

add_custom_target(runtime_libraries ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${libraries} ${test_libraries} ${beside_program} VERBATIM)
if(WARHOST_GUI)
    add_custom_command(TARGET runtime_libraries
        COMMAND ${CMAKE_COMMAND} -E make_directory ${beside_program}/platforms
        COMMAND ${CMAKE_COMMAND} -E copy_if_different
            ${platform} $<TARGET_FILE:Qt6::QOffscreenIntegrationPlugin> ${beside_program}/platforms
        COMMAND ${CMAKE_COMMAND} -E copy_if_different ${CMAKE_SOURCE_DIR}/data/windows/qt.conf ${beside_program} VERBATIM)

    install(TARGETS warhost DESTINATION .)
    install(PROGRAMS ${libraries} DESTINATION .)
    install(PROGRAMS ${platform} DESTINATION platforms)
    install(FILES ${CMAKE_SOURCE_DIR}/data/windows/qt.conf DESTINATION .)
    install_runtime_data(.)
endif()
