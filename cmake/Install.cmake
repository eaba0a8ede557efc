# What an installation on a desktop by freedesktop.org consists of: no tests, nothing for developers.
# In the build everything stands beside the program instead (ProgramFolder.cmake).
if(NOT VYPX_FORMS OR NOT UNIX OR APPLE)
    return()
endif()

set(VYPX_PACKAGING ${PROJECT_SOURCE_DIR}/packaging)
# Configured files of the installation, for the tests as well.
set(VYPX_TO_INSTALL ${PROJECT_BINARY_DIR}/to-install)
set(share ${CMAKE_INSTALL_DATADIR})
set(private_folder ${VYPX_PROGRAM_NAME})

# Folders must not depend on the umask of whoever installs.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS vy-pixelworks pixelworks-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS VYPX LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/${private_folder}
    PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
set_target_properties(VYPX PROPERTIES INSTALL_RPATH "") # it needs nothing of ours

# All of data/ but what the samples are made with.
set(installed_data ${data_files})
list(FILTER installed_data EXCLUDE REGEX "^samples/(make\\.py|drawings/)")
foreach(file IN LISTS installed_data)
    cmake_path(GET file PARENT_PATH folder)
    install(FILES ${PROJECT_SOURCE_DIR}/data/${file} DESTINATION ${share}/${private_folder}/${folder})
endforeach()
if(VYPX_CHM)
    install(FILES ${VYPX_CHM} DESTINATION ${share}/${private_folder})
endif()

# The texts below name dates and screenshots by these.
set(ENV{SOURCE_DATE_EPOCH} ${VYPX_RELEASED})
string(TIMESTAMP VYPX_RELEASE_YEAR "%Y" UTC)
string(TIMESTAMP VYPX_RELEASE_DATE "%Y-%m-%d" UTC)
string(TIMESTAMP VYPX_RELEASE_DAY "%B %d, %Y" UTC)
string(REPLACE " 0" " " VYPX_RELEASE_DAY "${VYPX_RELEASE_DAY}")
string(TIMESTAMP VYPX_RELEASE_STAMP "%a, %d %b %Y %H:%M:%S +0000" UTC)
unset(ENV{SOURCE_DATE_EPOCH})
set(VYPX_SCREENSHOT_ELEMENT)
if(VYPX_SCREENSHOTS)
    set(VYPX_SCREENSHOT_ELEMENT
        "  <screenshots>\n    <screenshot type=\"default\">\n      <image>${VYPX_SCREENSHOTS}/main-form.png</image>\n    </screenshot>\n  </screenshots>\n")
endif()

# vypx_install_text(TEMPLATE FOLDER NAME [COMPRESSED]): a file of packaging/ with the product's names
# filled in, as NAME below FOLDER.
function(vypx_install_text template folder name)
    set(made ${VYPX_TO_INSTALL}/${name})
    configure_file(${VYPX_PACKAGING}/${template} ${made} @ONLY)
    if("COMPRESSED" IN_LIST ARGN)
        # Without name and time, so that two builds give the same.
        execute_process(COMMAND gzip -9nc ${made} OUTPUT_FILE ${made}.gz COMMAND_ERROR_IS_FATAL ANY)
        string(APPEND made .gz)
    endif()
    install(FILES ${made} DESTINATION ${folder})
endfunction()

set(id ${VYPX_APPLICATION_ID})
vypx_install_text(linux/app.desktop.in ${share}/applications ${id}.desktop)
vypx_install_text(linux/app.metainfo.xml.in ${share}/metainfo ${id}.metainfo.xml)
vypx_install_text(linux/app.mime.xml.in ${share}/mime/packages ${id}.xml)
vypx_install_text(linux/app.service.in ${share}/dbus-1/services ${id}.service)
vypx_install_text(linux/vy-pixelworks.thumbnailer.in ${share}/thumbnailers vy-pixelworks.thumbnailer)
vypx_install_text(linux/man/vy-pixelworks.1.in ${CMAKE_INSTALL_MANDIR}/man1 vy-pixelworks.1 COMPRESSED)
vypx_install_text(linux/man/pixelworks-cli.1.in ${CMAKE_INSTALL_MANDIR}/man1 pixelworks-cli.1 COMPRESSED)
vypx_install_text(linux/pixelworks-cli.bash ${share}/bash-completion/completions pixelworks-cli)
vypx_install_text(debian/copyright.in ${share}/doc/${VYPX_PROGRAM_NAME} copyright)

# Icons: the program's under its id, those of its files under their types with "-" for "/".
set(hicolor ${share}/icons/hicolor)
set(drawings ${PROJECT_SOURCE_DIR}/src/forms/art/program apps ${id}
    ${VYPX_PACKAGING}/linux/icons/iconset mimetypes ${VYPX_ICONSET_MIME}
    ${VYPX_PACKAGING}/linux/icons/iconset-template mimetypes ${VYPX_TEMPLATE_MIME})
while(drawings)
    list(POP_FRONT drawings drawing kind name)
    string(REPLACE / - name ${name})
    install(FILES ${drawing}.svg DESTINATION ${hicolor}/scalable/${kind} RENAME ${name}.svg)
    foreach(size IN ITEMS 16 32 48 64 128 256)
        install(FILES ${drawing}${size}.png
            DESTINATION ${hicolor}/${size}x${size}/${kind} RENAME ${name}.png)
    endforeach()
endwhile()
