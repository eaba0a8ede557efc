#include "cli/FileChecks.h"
#include "companion/DensityMark.h"
#include "companion/IconRow.h"
#include "reader/BitmapRecord.h"
#include "reader/WalkState.h"

namespace vypx {

namespace {

/// Fields of a record that only `validate` looks at: 9 its version; 14, of a high-density one, its
/// density. 0x40 in the flags at 6: a colour table stands before the pixels.
constexpr std::size_t RecordVersionOffset = 9, DensityOffset = 14;
constexpr int HighVersion = 3, MostLowVersion = 2, DoubleDensity = 144;
constexpr std::uint8_t HasColourTable = 0x40, IsCompressed = 0x80;

/// One record of a family: its place in the resource and its header.
struct Member {
    std::size_t position = 0;
    BitmapRecord record; ///< from there to the resource's end
};

struct Family {
    std::vector<Member> low, high;
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
            const BitmapRecord record{ data.Part(position, data.Size() - position), highDensity };
            const std::size_t next =
                highDensity ? record.bytes.U24(21) : record.bytes.U16(10) * std::size_t{ 4 };
            (highDensity ? family.high : family.low).push_back({ position, record });
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

void CheckTransparency(const BitmapRecord& record, const std::string& place, Findings& findings)
{
    const int depth = record.PixelSize();
    if (record.HasTransparent() && depth < 16 && record.TransparentIndex() >= 1 << depth)
        findings.Add(place,
            "its transparent colour " + std::to_string(record.TransparentIndex())
                + " is beyond the palette of " + std::to_string(depth) + " bits");
}

void CheckPixels(const BitmapRecord& record, const std::string& place, Findings& findings)
{
    const StoredPixels pixels = record.Pixels();
    const std::size_t needed =
        static_cast<std::size_t>(pixels.rowBytes) * static_cast<std::size_t>(pixels.height);
    if (record.Form() == Compression::None && pixels.start + needed > record.bytes.Size())
        findings.Add(place, "its pixels reach beyond the resource, where zeros are read");
    if (record.Width() * record.PixelSize() > record.RowBytes() * 8)
        findings.Add(
            place, "its rows are too short for " + std::to_string(record.Width()) + " pixels");
    if (record.RowBytes() % 2 != 0)
        findings.Add(place, "its rows have an odd number of bytes, which a handheld doesn't draw");
    if (record.Width() == 0 || record.Height() == 0)
        findings.Add(place, "it has no pixels");
}

/// The record that is opened; those of the family that are not are lost anyway.
void CheckShown(const Member& member, const std::string& place, Findings& findings)
{
    const BitmapRecord& record = member.record;
    const int depth = record.PixelSize(), version = record.bytes.U8(RecordVersionOffset);
    const std::uint8_t flags = record.bytes.U8(6);
    if (depth != 1 && depth != 2 && depth != 4 && depth != 8 && depth != 16) {
        findings.Add(place, "it has " + std::to_string(depth) + " bits a pixel: it can't be read");
        return;
    }
    if (depth < 4)
        findings.Add(place,
            "it has " + std::to_string(depth) + " bits a pixel, which become 4, 8 or 16 at a save");
    if (record.highDensity ? version != HighVersion : version > MostLowVersion)
        findings.Add(place,
            "its version is " + std::to_string(version)
                + ", which a handheld takes for another kind");
    if (record.highDensity && record.bytes.U16(DensityOffset) != DoubleDensity)
        findings.Add(place,
            "its density is " + std::to_string(record.bytes.U16(DensityOffset)) + " and not 144");
    if ((flags & HasColourTable) != 0)
        findings.Add(place, "its colour table is read as pixels");
    if ((flags & IsCompressed) != 0 && record.Form() == Compression::None)
        findings.Add(place,
            "its compression " + std::to_string(record.bytes.U8(13))
                + " is not known: it is read as not compressed");
    CheckTransparency(record, place, findings);
    CheckPixels(record, place, findings);
}

/// `shown`: the one of them that is opened.
void CheckMembers(const std::vector<Member>& members, const Member& shown, const std::string& place,
    Findings& findings)
{
    if (members.size() > 1)
        findings.Add(place,
            "it has " + std::to_string(members.size()) + " depths, of which only that of "
                + std::to_string(shown.record.PixelSize()) + " bits is read and kept");
    CheckShown(shown, place, findings);
}

/// Of the high-density records the first with the last one's depth is opened.
const Member& ShownHigh(const std::vector<Member>& members)
{
    for (const Member& member : members)
        if (member.record.PixelSize() == members.back().record.PixelSize())
            return member;
    return members.back();
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
        if (!family.low.empty())
            CheckMembers(family.low, family.low.back(), resource, findings);
        if (!family.high.empty())
            CheckMembers(family.high, ShownHigh(family.high), resource + std::string(HighResSuffix),
                findings);
    } catch (const BrokenFile&) {
        findings.Add(resource, "it ends within the header of a bitmap");
    }
    if (family.low.empty() && !family.high.empty())
        findings.Add(resource,
            "it has no low-density bitmap: a handheld with a low-density screen shows nothing");
}

} // namespace vypx
