# Toolchain: the helper of 32 bits for Windows.
set(VYPX_MINGW i686)
include(${CMAKE_CURRENT_LIST_DIR}/MingwWindows.cmake)
