#pragma once

#include "companion/ByteView.h"
#include "companion/Picture.h"

#include <string>

/// netpbm's tools as a second opinion on pictures and Palm bitmaps.
namespace vypx::test {

bool HasNetpbm();

/// The picture that a shell command prints in one of the PNM formats (P1 to P6, raw or plain as
/// netpbm's tools write them, 8 bits for a component). Fails the test and gives a null picture when
/// the command prints none.
vypx::Picture PictureFrom(const std::string& command);

/// What a shell command prints.
Bytes OutputOf(const std::string& command);

/// Writes the picture as a PPM.
void WritePpm(const std::string& path, const vypx::Picture& picture);

} // namespace vypx::test

/// Ends a test that needs netpbm where there is none.
#define SKIP_WITHOUT_NETPBM()                                                                      \
    if (!vypx::test::HasNetpbm())                                                                  \
    GTEST_SKIP() << "netpbm is not installed"
