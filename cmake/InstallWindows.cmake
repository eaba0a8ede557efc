# What an installation on Windows consists of: programs and module in one folder, the data below it.
# "cpack" makes a zip of it, and where makensis is installed a setup program too. The program itself
# wants a Qt for Windows, whose libraries are installed along; what mingw-w64 builds elsewhere is all
# but that.
set(VYPX_INSTAIDE_EXE "" CACHE FILEPATH
    "vypx-instaide.exe of 32 bits, from a build with the preset windows32, to be installed as well")
option(VYPX_WINDOWS_OPEN_VERB
    "Offer the program under Open With; it does not open what it is started with, as it reads no command line" OFF)

set(programs pixelworks-cli)
if(VYPX_FORMS)
    list(APPEND programs vy-pixelworks)
endif()
install(TARGETS ${programs} VYPX RUNTIME DESTINATION .)
if(VYPX_INSTAIDE_EXE)
    install(PROGRAMS ${VYPX_INSTAIDE_EXE} DESTINATION .)
endif()

# All of data/ but what the samples are made with.
set(installed_data ${data_files})
list(FILTER installed_data EXCLUDE REGEX "^samples/(make\\.py|drawings/)")
foreach(file IN LISTS installed_data)
    cmake_path(GET file PARENT_PATH folder)
    install(FILES ${PROJECT_SOURCE_DIR}/data/${file} DESTINATION ${VYPX_DATA_FROM_PROGRAMS}/${folder})
endforeach()
if(VYPX_CHM)
    install(FILES ${VYPX_CHM} DESTINATION ${VYPX_DATA_FROM_PROGRAMS})
endif()
install(FILES ${VYPX_WINDOWS_PACKAGING}/vy-pixelworks.ico DESTINATION .)

# The compiler's own libraries. One copy for programs and module: exceptions pass between them.
if(MINGW)
    set(runtime_libraries)
    foreach(library IN ITEMS libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        list(APPEND runtime_libraries ${path})
    endforeach()
    install(FILES ${runtime_libraries} DESTINATION .)
    file(COPY ${runtime_libraries} DESTINATION ${VYPX_PROGRAM_FOLDER})
else()
    set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION .)
    include(InstallRequiredSystemLibraries)
endif()
if(VYPX_FORMS)
    qt_generate_deploy_app_script(TARGET vy-pixelworks FILENAME_VARIABLE deploy_script
        NO_UNSUPPORTED_PLATFORM_ERROR)
    install(SCRIPT ${deploy_script})
endif()

set(CPACK_GENERATOR ZIP)
find_program(MAKENSIS makensis)
if(MAKENSIS)
    list(APPEND CPACK_GENERATOR NSIS64)
endif()
set(CPACK_PACKAGE_NAME ${VYPX_PROGRAM_NAME})
set(CPACK_PACKAGE_VENDOR ${VYPX_DEVELOPER})
set(CPACK_PACKAGE_INSTALL_DIRECTORY ${VYPX_PRODUCT_NAME})
set(CPACK_PACKAGE_EXECUTABLES vy-pixelworks ${VYPX_PRODUCT_NAME}) # its entry in the start menu
set(CPACK_PACKAGE_FILE_NAME ${VYPX_PROGRAM_NAME}-${PROJECT_VERSION}-windows-x86_64)
set(CPACK_STRIP_FILES ON)
set(CPACK_NSIS_EXECUTABLES_DIRECTORY .)
set(CPACK_NSIS_DISPLAY_NAME ${VYPX_PRODUCT_NAME})
set(CPACK_NSIS_INSTALLED_ICON_NAME vy-pixelworks.ico)
set(CPACK_NSIS_MUI_ICON ${VYPX_WINDOWS_PACKAGING}/vy-pixelworks.ico)
set(CPACK_NSIS_ENABLE_UNINSTALL_BEFORE_INSTALL ON)
set(CPACK_NSIS_UNINSTALL_NAME uninstall)
if(VYPX_WINDOWS_OPEN_VERB)
    set(open_verb 1)
else()
    set(open_verb 0)
endif()
configure_file(${VYPX_WINDOWS_PACKAGING}/file-types.nsh.in ${PROJECT_BINARY_DIR}/resources/file-types.nsh @ONLY)
set(CPACK_NSIS_DEFINES "!include \"${PROJECT_BINARY_DIR}/resources/file-types.nsh\"")
set(CPACK_NSIS_EXTRA_INSTALL_COMMANDS "!insertmacro AddFileTypes")
set(CPACK_NSIS_EXTRA_UNINSTALL_COMMANDS "!insertmacro RemoveFileTypes")
set(CPACK_VERBATIM_VARIABLES ON)
include(CPack)
