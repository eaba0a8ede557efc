#pragma once

#include <gtest/gtest.h>

/// End a test of what the system does not have: on Windows programs may make no links, which is why
/// MinGW's library makes none; files have no rights for owner, group and others; and paths end.
#ifdef _WIN32
#define SKIP_WITHOUT_LINKS() GTEST_SKIP() << "no symbolic links are made here"
#define SKIP_WITHOUT_RIGHTS() GTEST_SKIP() << "files have other rights here"
#define SKIP_WITHOUT_LONG_PATHS() GTEST_SKIP() << "paths end here"
#else
#define SKIP_WITHOUT_LINKS() static_cast<void>(0)
#define SKIP_WITHOUT_RIGHTS() static_cast<void>(0)
#define SKIP_WITHOUT_LONG_PATHS() static_cast<void>(0)
#endif
