# Icon, version and manifest of what is built for Windows; the texts are those of Product.cmake.
enable_language(RC)
set(VYPX_WINDOWS_PACKAGING ${PROJECT_SOURCE_DIR}/packaging/windows)

# vypx_windows_resources(TARGET FILE DESCRIPTION [ICON] [MANIFEST program|helper]): FILE is the name
# that users see. The module has no manifest: it lives in the process of its program.
function(vypx_windows_resources target file description)
    cmake_parse_arguments(PARSE_ARGV 3 arg "ICON" "MANIFEST" "")
    set(folder ${PROJECT_BINARY_DIR}/resources)
    set(VYPX_RC_FILE ${file})
    cmake_path(GET file STEM VYPX_RC_NAME)
    set(VYPX_RC_DESCRIPTION "${description}")
    set(VYPX_RC_DOTTED_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH}.0)
    string(REPLACE . , VYPX_RC_VERSION ${VYPX_RC_DOTTED_VERSION})
    set(VYPX_RC_FILETYPE VFT_APP)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        set(VYPX_RC_FILETYPE VFT_DLL)
    endif()
    set(VYPX_RC_ICON ${VYPX_WINDOWS_PACKAGING}/vy-pixelworks.ico)
    set(VYPX_RC_HAS_ICON 0)
    if(arg_ICON)
        set(VYPX_RC_HAS_ICON 1)
    endif()
    set(VYPX_RC_HAS_MANIFEST 0)
    if(arg_MANIFEST)
        set(VYPX_RC_MANIFEST ${folder}/${VYPX_RC_NAME}.manifest)
        configure_file(${VYPX_WINDOWS_PACKAGING}/${arg_MANIFEST}.manifest.in ${VYPX_RC_MANIFEST} @ONLY)
        if(MSVC) # whose linker makes one resource of this and of its own
            target_sources(${target} PRIVATE ${VYPX_RC_MANIFEST})
        else()
            set(VYPX_RC_HAS_MANIFEST 1)
        endif()
    endif()
    configure_file(${VYPX_WINDOWS_PACKAGING}/program.rc.in ${folder}/${VYPX_RC_NAME}.rc @ONLY)
    set_source_files_properties(${folder}/${VYPX_RC_NAME}.rc PROPERTIES
        OBJECT_DEPENDS "${VYPX_RC_ICON};${VYPX_RC_MANIFEST}")
    target_sources(${target} PRIVATE ${folder}/${VYPX_RC_NAME}.rc)
endfunction()

if(VYPX_INSTAIDE)
    vypx_windows_resources(vypx-instaide vypx-instaide.exe
        "${VYPX_PRODUCT_NAME}: call of the Palm Install Tool" MANIFEST helper)
    return()
endif()
set_target_properties(VYPX PROPERTIES PREFIX "") # with every compiler
vypx_windows_resources(VYPX VYPX.dll "${VYPX_PRODUCT_NAME}: pictures and Palm databases")
vypx_windows_resources(pixelworks-cli pixelworks-cli.exe
    "${VYPX_PRODUCT_NAME} on the command line" ICON MANIFEST program)
if(VYPX_FORMS)
    vypx_windows_resources(vy-pixelworks vy-pixelworks.exe "${VYPX_PRODUCT_NAME}" ICON MANIFEST program)
endif()
