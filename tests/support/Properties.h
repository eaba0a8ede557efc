#pragma once

#include <gtest/gtest.h>

/// Tests of properties. Where there is no rapidcheck, as in a build for Windows, RC_GTEST_PROP is
/// not defined: a file that holds other tests as well leaves out its properties by that.
#if __has_include(<rapidcheck/gtest.h>)
#include <rapidcheck/gtest.h>
#endif
