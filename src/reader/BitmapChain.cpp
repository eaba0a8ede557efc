#include "reader/BitmapChain.h"

#include "companion/DensityMark.h"
#include "companion/IconRow.h"
#include "reader/ResourceList.h"

namespace vypx {

namespace {

/// Fields of a Palm bitmap record that the chain needs; PFcnt + k is the record's byte k.
///
///   offset width field
///        8     1 pixelSize         0xFF: the mark before the double-density records
///       10     2 nextDepthOffset   low density: units of 4 bytes to the next record, 0: the last
///       20     4 nextBitmapOffset  double density: bytes to the next record, 0: the last;
///                                  only its last three bytes are read

int PixelSizeHere(const WalkState& walk)
{
    return FileByIndex().U8(static_cast<std::size_t>(walk.PFcnt) + PixelSizeOffset);
}

std::int32_t AdvanceToNext(const WalkState& walk, bool highDensity)
{
    const auto record = static_cast<std::size_t>(walk.PFcnt);
    if (highDensity)
        return static_cast<std::int32_t>(FileByIndex().U24(record + 21));
    return FileByIndex().U16(record + 10) * 4;
}

void NoteMember(WalkState& walk, FamilyMember member)
{
    if (walk.BitmapFamilyCount >= walk.BitmapFamily.size())
        throw BrokenFile("more bitmaps in a family than it can have");
    walk.BitmapFamily[walk.BitmapFamilyCount++] = member;
    ++walk.BmpTotalNum;
}

void WalkMembers(WalkState& walk)
{
    bool highDensity = false;
    std::int32_t advance = 0;
    walk.PFcnt = walk.ResourceOffset + 1;
    do {
        walk.PFcnt += advance;
        if (PixelSizeHere(walk) == DensityMarkPixelSize) {
            highDensity = true;
            walk.PFcnt += static_cast<std::int32_t>(DensityMarkSize);
        }
        advance = AdvanceToNext(walk, highDensity);
        walk.BitmapStem =
            highDensity ? walk.ResourceName + std::string(HighResSuffix) : walk.ResourceName;
        NoteMember(walk, { .depth = PixelSizeHere(walk), .density = highDensity ? 2 : 1 });
    } while (advance != 0);
}

} // namespace

void WalkBitmapChain(WalkState& walk, LoadListener& listener)
{
    try {
        WalkMembers(walk);
    } catch (const BrokenFile&) {
        // The bitmaps counted so far stay; the user learns where it broke, and the walk goes on.
        if (!walk.asTemplate)
            listener.Message("Error parsing file following " + walk.BitmapStem + ".");
        --walk.BmpTotalNum;
    }
}

} // namespace vypx
