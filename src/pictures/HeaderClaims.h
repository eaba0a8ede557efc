#pragma once

#include "pictures/FileBytes.h"

#include <cstdint>
#include <string>

/// What the headers of those formats tell whose readers would otherwise take more memory or time
/// than the picture is worth, or give pixels that the file does not have.
namespace vypx {

/// What a picture will cost.
struct HeaderClaim {
    std::int64_t width = 0,
                 height = 0; ///< 0: the header was not asked, the format's reader tells them
    int pixelBytes = 4; ///< that one pixel takes while it is decoded, as far as the header tells
    bool leavesGaps = false; ///< the reader may leave pixels as they were before
    std::string whyNot;      ///< why it can't be read, in words for the user; else empty
};

/// Each may throw BrokenFile. The file is one of the format, as its first bytes tell.
HeaderClaim ClaimOfBmp(FileBytes& file);
HeaderClaim ClaimOfGif(FileBytes& file);
HeaderClaim ClaimOfIco(FileBytes& file);
HeaderClaim ClaimOfJpeg(FileBytes& file);
HeaderClaim ClaimOfPnm(FileBytes& file);
HeaderClaim ClaimOfTiff(FileBytes& file);
HeaderClaim ClaimOfWebP(FileBytes& file);

} // namespace vypx
