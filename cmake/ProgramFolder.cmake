# The folder that the program runs from: the program, the module VYPX, the tool, and what data/ holds.
set(VYPX_PROGRAM_FOLDER ${PROJECT_BINARY_DIR}/program)

# Puts a target's file into the program folder; it finds the module beside itself, and once it is
# installed in the module's own folder.
function(vypx_in_program_folder target)
    set_target_properties(${target} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${VYPX_PROGRAM_FOLDER}
        LIBRARY_OUTPUT_DIRECTORY ${VYPX_PROGRAM_FOLDER}
        BUILD_RPATH_USE_ORIGIN ON
        BUILD_RPATH "$ORIGIN"
        INSTALL_RPATH "$ORIGIN/${VYPX_MODULE_FROM_PROGRAMS}")
endfunction()

# A file of data/ is copied when it has changed here, not at every build: the program's own folder
# is where users' catalogs live, and a build must not take back what they have edited since.
file(GLOB_RECURSE data_files CONFIGURE_DEPENDS
    RELATIVE ${PROJECT_SOURCE_DIR}/data ${PROJECT_SOURCE_DIR}/data/*)
set(copied)
foreach(file IN LISTS data_files)
    add_custom_command(
        OUTPUT ${VYPX_PROGRAM_FOLDER}/${file}
        COMMAND ${CMAKE_COMMAND} -E copy
            ${PROJECT_SOURCE_DIR}/data/${file} ${VYPX_PROGRAM_FOLDER}/${file}
        DEPENDS ${PROJECT_SOURCE_DIR}/data/${file}
        VERBATIM)
    list(APPEND copied ${VYPX_PROGRAM_FOLDER}/${file})
endforeach()
add_custom_target(program_folder ALL DEPENDS ${copied})
