#include "cli/FileChecks.h"
#include "cli/RecordChecks.h"
#include "companion/DensityMark.h"
#include "companion/IconRow.h"
#include "reader/FamilyWalk.h"
#include "reader/WalkState.h"

namespace vypx {

namespace {

/// How many records of a resource lead to one another, of which one for each density is opened.
struct Family {
    std::size_t low = 0, high = 0;
    bool isBroken = false; ///< the chain leads out of the resource
    bool isTooLong = false;
};

/// All records from the first on.
Family FamilyOf(ByteView data)
{
    Family family;
    bool highDensity = false;
    std::size_t position = 0;
    try {
        for (std::size_t members = 0; members < MaxFamilyMembers; ++members) {
            if (data.U8(position + PixelSizeOffset) == DensityMarkPixelSize && !highDensity) {
                highDensity = true;
                position += DensityMarkSize;
            }
            const std::size_t next =
                highDensity ? data.U24(position + 21) : data.U16(position + 10) * std::size_t{ 4 };
            ++(highDensity ? family.high : family.low);
            if (next == 0)
                return family;
            position += next;
        }
        family.isTooLong = true;
    } catch (const BrokenFile&) {
        family.isBroken = true;
    }
    return family;
}

} // namespace

void CheckPictures(const std::string& resource, ByteView data, Findings& findings)
{
    const Family family = FamilyOf(data);
    if (family.isBroken)
        findings.Add(resource, "the chain of its bitmaps leads out of it");
    if (family.isTooLong)
        findings.Add(resource, "it has more bitmaps than the 11 that are looked at");
    try {
        WalkFamily(data, [&](const ShownRecord& shown) {
            const std::string place =
                shown.highDensity ? resource + std::string(HighResSuffix) : resource;
            const std::size_t members = shown.highDensity ? family.high : family.low;
            if (members > 1)
                findings.Add(place,
                    "it has " + std::to_string(members) + " depths, of which only that of "
                        + BitsText(data.U8(shown.position + PixelSizeOffset))
                        + " is read and kept");
            CheckShown(data, shown, place, findings);
        });
    } catch (const BrokenFile&) {
        findings.Add(resource, "it ends within the header of a bitmap");
    }
    if (family.low == 0 && family.high != 0)
        findings.Add(resource,
            "it has no low-density bitmap: a handheld with a low-density screen shows nothing");
}

} // namespace vypx
