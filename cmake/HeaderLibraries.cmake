# The libraries that are headers only: CLI11 and nlohmann-json. A compiler for another system may
# take these two folders from this one, but nothing of the headers that stand beside them.
if(CMAKE_CROSSCOMPILING)
    set(host_headers ${PROJECT_BINARY_DIR}/host-headers)
    file(MAKE_DIRECTORY ${host_headers})
    foreach(folder IN ITEMS CLI nlohmann)
        find_path(VYPX_${folder}_PARENT ${folder} PATHS /usr/include /usr/local/include
            NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
        file(CREATE_LINK ${VYPX_${folder}_PARENT}/${folder} ${host_headers}/${folder} SYMBOLIC)
    endforeach()
    foreach(library IN ITEMS CLI11::CLI11 nlohmann_json::nlohmann_json)
        add_library(${library} INTERFACE IMPORTED)
        target_include_directories(${library} SYSTEM INTERFACE ${host_headers})
    endforeach()
else()
    find_package(CLI11 REQUIRED)
    find_package(nlohmann_json REQUIRED)
endif()
