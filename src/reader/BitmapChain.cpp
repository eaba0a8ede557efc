#include "reader/BitmapChain.h"

#include "document/Document.h"
#include "reader/ResourceList.h"

#include <stdexcept>

namespace vypx {

namespace {

/// Fields of a Palm bitmap record that the chain needs; PFcnt + k is the record's byte k.
///
///   offset width field
///        8     1 pixelSize         0xFF: the 16-byte mark before the double-density records
///       10     2 nextDepthOffset   low density: units of 4 bytes to the next record, 0: the last
///       20     4 nextBitmapOffset  double density: bytes to the next record, 0: the last;
///                                  only its last three bytes are read
constexpr std::uint8_t HighDensityMark = 0xFF;
constexpr std::int32_t MarkSize = 16;

std::uint8_t PixelSizeHere() { return FileByIndex().U8(static_cast<std::size_t>(PFcnt) + 8); }

std::int32_t AdvanceToNext(bool highDensity)
{
    const auto record = static_cast<std::size_t>(PFcnt);
    if (highDensity)
        return static_cast<std::int32_t>(FileByIndex().U24(record + 21));
    return FileByIndex().U16(record + 10) * 4;
}

void NoteMember(FamilyMember member)
{
    if (BitmapFamilyCount >= BitmapFamily.size())
        throw std::out_of_range("more bitmaps in a family than it can have");
    BitmapFamily[BitmapFamilyCount++] = member;
    ++BmpTotalNum;
}

void WalkMembers(std::string& stem)
{
    bool highDensity = false;
    std::int32_t advance = 0;
    PFcnt = ResourceOffset + 1;
    do {
        PFcnt += advance;
        if (PixelSizeHere() == HighDensityMark) {
            highDensity = true;
            PFcnt += MarkSize;
        }
        advance = AdvanceToNext(highDensity);
        stem = highDensity ? ResourceName + "-d144" : ResourceName;
        NoteMember({ .depth = PixelSizeHere(), .density = highDensity ? 2 : 1 });
    } while (advance != 0);
}

} // namespace

void WalkBitmapChain(std::string& stem, LoadListener& listener)
{
    try {
        WalkMembers(stem);
    } catch (const std::out_of_range&) {
        // The bitmaps counted so far stay; the user learns where it broke, and the walk goes on.
        if (!TemplateMode)
            listener.Message("Error parsing file following " + stem + ".");
        --BmpTotalNum;
    }
}

} // namespace vypx
