# The package for Debian, by CPack. ./package builds it.
if(NOT VYPX_FORMS OR NOT UNIX OR APPLE)
    return()
endif()

vypx_install_text(debian/changelog.in ${share}/doc/${VYPX_PROGRAM_NAME} changelog.Debian COMPRESSED)
vypx_install_text(debian/lintian-overrides ${share}/lintian/overrides ${VYPX_PROGRAM_NAME})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${VYPX_PROGRAM_NAME})
set(CPACK_PACKAGE_VENDOR ${VYPX_DEVELOPER})
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${VYPX_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_MAINTAINER ${VYPX_MAINTAINER})
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${VYPX_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "editor for iconsets of Palm OS handhelds
VY Pixelworks edits iconsets of Vantry, a launcher on Palm OS handhelds:
resource databases with pictures for applications, system items and the
launcher itself, large and small, high-res and low-res, at 4, 8 or 16 bits
of colour.
.
It imports, cuts, scales and reduces pictures of many formats, adds icons
for the applications that it finds, and queues a saved iconset for the next
HotSync. The tool pixelworks-cli opens, fills and saves iconsets
without windows.")
# What the programs link is found by itself; readers of more picture formats are loaded if present.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${VYPX_PROGRAM_FOLDER})
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-image-formats-plugins)
# The module is the program's own: nobody else links it, and no cache of libraries holds it.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS OFF)
include(CPack)
