# What the product is called and where it installs to: the one place for what the owner has to settle
# before anything is published. Licence, domain and homepage have not been chosen; the texts below
# stand in their place.
set(VYPX_PRODUCT_NAME "VY Pixelworks")
set(VYPX_PROGRAM_NAME vy-pixelworks)
# Reverse DNS; also the D-Bus name and, with slashes, its object path.
set(VYPX_APPLICATION_ID app.vypixelworks.Pixelworks)
set(VYPX_DEVELOPER "VY Pixelworks developers")
set(VYPX_MAINTAINER "VY Pixelworks developers <developers@vypixelworks.invalid>")
set(VYPX_HOMEPAGE "https://vypixelworks.invalid/")
# Where the pictures of docs/screenshots can be fetched from, without a slash at the end. While it is
# empty the metainfo names none: a software centre would show the broken links of a host that is not.
set(VYPX_SCREENSHOTS "")
set(VYPX_PROJECT_LICENCE LicenseRef-proprietary)
set(VYPX_METADATA_LICENCE CC0-1.0)
set(VYPX_ICONSET_MIME application/x-vantry-iconset)
set(VYPX_TEMPLATE_MIME application/x-vantry-iconset-template)

# When the version of project() was released, in seconds since 1970 (2026-11-22), and how often it has
# been packaged.
set(VYPX_RELEASED 1795305600)
set(VYPX_PACKAGE_RELEASE 1)

# Folders of an installation; programs find their data and their module from where they stand. On
# Windows programs and module stand beside each other, on macOS in the bundle. The data never stand
# beside the programs, or an installed copy could not be told from one that is built.
include(GNUInstallDirs)
if(WIN32)
    set(CMAKE_INSTALL_BINDIR .)
    set(VYPX_DATA_FROM_PROGRAMS data)
    set(VYPX_MODULE_FROM_PROGRAMS .)
elseif(APPLE)
    set(VYPX_BUNDLE ${VYPX_PROGRAM_NAME}.app/Contents)
    set(CMAKE_INSTALL_BINDIR ${VYPX_BUNDLE}/MacOS)
    set(VYPX_DATA_FROM_PROGRAMS ../Resources)
    set(VYPX_MODULE_FROM_PROGRAMS ../Frameworks)
else()
    set(VYPX_INSTALLED_DATA ${CMAKE_INSTALL_FULL_DATADIR}/${VYPX_PROGRAM_NAME})
    set(VYPX_INSTALLED_MODULE ${CMAKE_INSTALL_FULL_LIBDIR}/${VYPX_PROGRAM_NAME})
    file(RELATIVE_PATH VYPX_DATA_FROM_PROGRAMS ${CMAKE_INSTALL_FULL_BINDIR} ${VYPX_INSTALLED_DATA})
    file(RELATIVE_PATH VYPX_MODULE_FROM_PROGRAMS ${CMAKE_INSTALL_FULL_BINDIR} ${VYPX_INSTALLED_MODULE})
endif()

# What the code knows of it.
set(VYPX_GENERATED ${PROJECT_BINARY_DIR}/generated)
configure_file(${CMAKE_CURRENT_LIST_DIR}/Product.h.in ${VYPX_GENERATED}/document/Product.h @ONLY)
