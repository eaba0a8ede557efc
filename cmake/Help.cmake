# The help: one set of pages, shown by the program out of itself and built as a .chm for other
# readers. The pictures are those of the screenshots that a page names.
set(VYPX_HELP_FOLDER ${PROJECT_SOURCE_DIR}/help)
set(help_pictures_folder ${PROJECT_SOURCE_DIR}/docs/screenshots)

file(GLOB help_pages CONFIGURE_DEPENDS ${VYPX_HELP_FOLDER}/*.html)
set(help_pictures)
foreach(page IN LISTS help_pages)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${page})
    file(STRINGS ${page} lines REGEX "<img src=\"")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE ".*<img src=\"([^\"]+)\".*" "\\1" picture "${line}")
        list(APPEND help_pictures ${help_pictures_folder}/${picture})
    endforeach()
endforeach()
list(REMOVE_DUPLICATES help_pictures)
set(help_files ${help_pages} ${VYPX_HELP_FOLDER}/help.css ${VYPX_HELP_FOLDER}/topics.json ${help_pictures})

# A resource file with all of them flat below :/help.
set(VYPX_HELP_RESOURCES ${PROJECT_BINARY_DIR}/help/help.qrc)
set(entries)
foreach(file IN LISTS help_files)
    cmake_path(GET file FILENAME name)
    string(APPEND entries "        <file alias=\"${name}\">${file}</file>\n")
endforeach()
file(CONFIGURE OUTPUT ${VYPX_HELP_RESOURCES} @ONLY CONTENT
    "<RCC>\n    <qresource prefix=\"/help\">\n@entries@    </qresource>\n</RCC>\n")

# Without chmcmd there is no .chm; the program does not need it.
find_program(CHMCMD chmcmd)
find_program(PYTHON3 python3)
if(CHMCMD AND PYTHON3)
    set(VYPX_CHM ${VYPX_PROGRAM_FOLDER}/VYPX.chm)
    add_custom_command(
        OUTPUT ${VYPX_CHM}
        COMMAND ${PYTHON3} ${VYPX_HELP_FOLDER}/build_chm.py
            ${VYPX_HELP_FOLDER} ${help_pictures_folder} ${VYPX_CHM}
        DEPENDS ${help_files} ${VYPX_HELP_FOLDER}/build_chm.py
        VERBATIM)
    add_custom_target(help_file ALL DEPENDS ${VYPX_CHM})
    add_dependencies(program_folder help_file)
endif()
