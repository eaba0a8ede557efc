# The bundle of macOS: the program, beside it the tool, the module in Frameworks, the data in Resources.
# macdeployqt, called by Qt's own script at installation, puts Qt's libraries in. "cpack" makes a disk
# image of it. Never run so far: there is no compiler for macOS where this is developed.
set(VYPX_LEAST_MACOS 10.14) # of Qt 6.4
set(mac_icon ${PROJECT_SOURCE_DIR}/packaging/macos/vy-pixelworks.icns)
set(VYPX_INFO_PLIST ${PROJECT_BINARY_DIR}/resources/Info.plist)
configure_file(${PROJECT_SOURCE_DIR}/packaging/macos/Info.plist.in ${VYPX_INFO_PLIST} @ONLY)
if(VYPX_TESTS AND PYTHON3) # on any system
    enable_testing()
    add_test(NAME House.InfoPlistDeclaresTheFileTypes
        COMMAND ${PYTHON3} ${PROJECT_SOURCE_DIR}/packaging/macos/check.py ${VYPX_INFO_PLIST} ${mac_icon})
endif()
if(NOT APPLE OR NOT VYPX_FORMS)
    return()
endif()

target_sources(vy-pixelworks PRIVATE ${mac_icon})
set_source_files_properties(${mac_icon} TARGET_DIRECTORY vy-pixelworks
    PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
# CMake fills in names of its own in a template; this one has none of them left.
set_target_properties(vy-pixelworks PROPERTIES
    MACOSX_BUNDLE ON MACOSX_BUNDLE_INFO_PLIST ${VYPX_INFO_PLIST})
foreach(program IN ITEMS vy-pixelworks pixelworks-cli)
    set_target_properties(${program} PROPERTIES
        INSTALL_RPATH "@executable_path/${VYPX_MODULE_FROM_PROGRAMS}")
endforeach()

install(TARGETS vy-pixelworks BUNDLE DESTINATION .)
install(TARGETS pixelworks-cli RUNTIME DESTINATION ${VYPX_BUNDLE}/MacOS)
install(TARGETS VYPX LIBRARY DESTINATION ${VYPX_BUNDLE}/Frameworks)
# All of data/ but what the samples are made with.
set(installed_data ${data_files})
list(FILTER installed_data EXCLUDE REGEX "^samples/(make\\.py|drawings/)")
foreach(file IN LISTS installed_data)
    cmake_path(GET file PARENT_PATH folder)
    install(FILES ${PROJECT_SOURCE_DIR}/data/${file} DESTINATION ${VYPX_BUNDLE}/Resources/${folder})
endforeach()
qt_generate_deploy_app_script(TARGET vy-pixelworks FILENAME_VARIABLE deploy_script)
install(SCRIPT ${deploy_script})

set(CPACK_GENERATOR DragNDrop)
set(CPACK_PACKAGE_NAME ${VYPX_PROGRAM_NAME})
set(CPACK_PACKAGE_VENDOR ${VYPX_DEVELOPER})
set(CPACK_PACKAGE_FILE_NAME ${VYPX_PROGRAM_NAME}-${PROJECT_VERSION}-macos)
set(CPACK_DMG_VOLUME_NAME ${VYPX_PRODUCT_NAME})
include(CPack)
