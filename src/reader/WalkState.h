#pragma once

#include "companion/ByteView.h"

#include <array>
#include <cstdint>
#include <string>

namespace vypx {

class PictureSink;

/// One bitmap of the family being walked.
struct FamilyMember {
    int depth = 0;   ///< pixel size in bits, as the record says it
    int density = 0; ///< 1 low, 2 double
};

inline constexpr std::size_t MaxFamilyMembers = 11;

/// Where the walks over one file stand. LoadFile makes it and hands it along; it goes with the
/// load.
struct WalkState {
    bool asTemplate = false;         ///< the file is read as a template
    bool withoutPictures = false;    ///< none are read
    PictureSink* pictures = nullptr; ///< gets them instead of the working folder

    std::int32_t FCin = 0; ///< index into FileCashe of the current list entry
    int Rcntr = 0;         ///< number of the current resource, from 1
    /// Of the current resource: type and decimal ID; offset, the next one's offset and size in
    /// bytes.
    std::string ResourceName;
    std::int32_t ResourceOffset = 0, NextOffset = 0, ResourceSize = 0;
    std::int32_t TLstCnt = 0; ///< next free row of IconTable

    std::int32_t PFcnt = 0; ///< index into FileCashe while a family is walked
    std::array<FamilyMember, MaxFamilyMembers> BitmapFamily{};
    std::size_t BitmapFamilyCount = 0;
    /// Name of the last member's working file without its ending, kept from one resource to the
    /// next.
    std::string BitmapStem;
    int BmpTotalNum = 0; ///< bitmaps in all bitmap resources

    Bytes ResourceBytes; ///< index 1 is the first byte of the resource in hand
    /// Steps of the progress bar: how many bitmaps were counted, and how many are done.
    int BitmapCount = 0, ProgressCount = 0;
    /// Pictures whose working file could not be written, and why the first one could not.
    int picturesNotStored = 0;
    std::string whyNotStored;
};

} // namespace vypx
