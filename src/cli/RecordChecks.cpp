#include "cli/RecordChecks.h"

#include "cli/ReadIconset.h"
#include "companion/DensityMark.h"
#include "companion/NearestColour.h"
#include "companion/Palettes.h"

#include <bitset>
#include <optional>

namespace vypx {

namespace {

/// Fields of a record that only `validate` looks at: 9 its version; of a high-density one 11 its
/// pixel format, 0 indexed, 1 5-6-5, and 14 its density. 0x40 in the flags at 6: a colour table
/// stands before the pixels.
constexpr std::size_t RecordVersionOffset = 9, PixelFormatOffset = 11, DensityOffset = 14;
constexpr int HighVersion = 3, MostLowVersion = 2, DoubleDensity = 144;
constexpr std::uint8_t HasColourTable = 0x40, IsCompressed = 0x80;

/// A record with the place that findings give, and where to put them.
struct Judge {
    const BitmapRecord& record;
    const std::string& place;
    Findings& findings;

    void Add(const std::string& text) const { findings.Add(place, text); }
    int Depth() const { return record.PixelSize(); }
    int Byte(std::size_t offset) const { return record.bytes.U8(offset); }
};

Palette PaletteOf(int depth)
{
    if (depth == 1)
        return Palette1;
    if (depth == 2)
        return Palette2;
    return depth == 4 ? Palette(Palette4) : Palette(Palette8);
}

/// Which palette indices the picture's pixels have.
std::bitset<256> IndicesIn(const PixelBuffer& pixels, const BitmapRecord& record)
{
    const int depth = record.PixelSize(), perByte = 8 / depth, mask = (1 << depth) - 1;
    std::bitset<256> indices;
    for (int y = 0; y < record.Height(); ++y)
        for (int x = 0; x < record.Width(); ++x)
            indices.set(static_cast<std::size_t>(
                pixels.Row(y)[x / perByte] >> (8 - depth * (x % perByte + 1)) & mask));
    return indices;
}

/// Pixels are transparent by their colour, and an index can have the same one as another.
void CheckTwinColours(const PixelBuffer& pixels, const Judge& judge)
{
    const auto transparent = static_cast<std::size_t>(judge.record.TransparentIndex());
    const Palette palette = PaletteOf(judge.Depth());
    std::bitset<256> indices = IndicesIn(pixels, judge.record);
    indices.reset(transparent);
    for (std::size_t i = 0; i < palette.size(); ++i)
        if (indices[i] && palette[i] == palette[transparent]) {
            judge.Add("its pixels of the palette index " + std::to_string(i)
                + " become transparent: their colour is that of the transparent index "
                + std::to_string(transparent));
            return;
        }
}

/// Whether it can be opened.
bool CheckTransparentColour(const Judge& judge)
{
    const BitmapRecord& record = judge.record;
    if (!record.HasTransparent())
        return true;
    if (judge.Depth() == 16) {
        if (const Rgb colour = record.TransparentColour(); From565(To565(colour)) != colour)
            judge.Add("its transparent colour is none that pixels of 16 bits can have: nothing of "
                      "it is transparent");
        return true;
    }
    if (record.TransparentIndex() < 1 << judge.Depth())
        return true;
    judge.Add("its transparent colour " + std::to_string(record.TransparentIndex())
        + " is beyond the palette of " + BitsText(judge.Depth()));
    return false;
}

/// Whether all its rows are there.
bool CheckRows(const Judge& judge, std::size_t size)
{
    const BitmapRecord& record = judge.record;
    const StoredPixels pixels = record.Pixels();
    const std::size_t needed =
        static_cast<std::size_t>(pixels.rowBytes) * static_cast<std::size_t>(pixels.height);
    if (record.Form() == Compression::None && pixels.start + needed > size)
        judge.Add("its pixels reach beyond its end, where zeros are read");
    const bool isTooShort = record.Width() * record.PixelSize() > record.RowBytes() * 8;
    if (isTooShort)
        judge.Add("its rows are too short for " + std::to_string(record.Width()) + " pixels");
    if (record.RowBytes() % 2 != 0)
        judge.Add("its rows have an odd number of bytes, which a handheld doesn't draw");
    if (record.Width() == 0 || record.Height() == 0)
        judge.Add("it has no pixels");
    return !isTooShort;
}

/// As the load expands them.
void CheckExpanded(const Judge& judge, bool rowsAreThere)
{
    const BitmapRecord& record = judge.record;
    if (!IsWithinLimits(record.Width(), record.Height(), record.RowBytes()))
        return; // which is told of the load
    try {
        const PixelBuffer pixels = ExpandPixels(record.Pixels(), record.Form());
        if (rowsAreThere && record.HasTransparent() && judge.Depth() < 16)
            CheckTwinColours(pixels, judge);
    } catch (const BrokenFile&) {
        const char* const kind = record.Form() == Compression::None ? "" : "packed ";
        judge.Add(std::string("its ") + kind
            + "pixels end too early or run beyond their rows: " + "no file with it can be opened");
    }
}

void CheckFields(const Judge& judge)
{
    const BitmapRecord& record = judge.record;
    const int version = judge.Byte(RecordVersionOffset), flags = judge.Byte(6);
    if (record.highDensity ? version != HighVersion : version > MostLowVersion)
        judge.Add("its version is " + std::to_string(version)
            + ", which a handheld takes for another kind");
    if (record.highDensity && record.bytes.U16(DensityOffset) != DoubleDensity)
        judge.Add(
            "its density is " + std::to_string(record.bytes.U16(DensityOffset)) + " and not 144");
    const int format = judge.Depth() == 16 ? 1 : 0;
    if (record.highDensity && judge.Byte(PixelFormatOffset) != format)
        judge.Add("its pixel format is " + std::to_string(judge.Byte(PixelFormatOffset))
            + ", and it is read as " + std::to_string(format));
    if ((flags & HasColourTable) != 0)
        judge.Add("its colour table is read as pixels");
    if ((flags & IsCompressed) != 0 && record.Form() == Compression::None)
        judge.Add("its compression " + std::to_string(judge.Byte(13))
            + " is not known: it is read as not compressed");
}

/// Where the record ends, in bytes from its first one. Empty: it can't be told.
std::optional<std::size_t> EndOf(const BitmapRecord& record)
{
    const StoredPixels pixels = record.Pixels();
    if (record.Form() == Compression::None)
        return pixels.start + static_cast<std::size_t>(pixels.rowBytes * pixels.height);
    const std::size_t sizeField = record.highDensity ? 4 : 2, start = pixels.start - sizeField;
    const std::size_t size = record.highDensity ? record.bytes.U32(start) : record.bytes.U16(start);
    return size <= sizeField ? std::nullopt : std::optional(start + size);
}

bool LeadsOn(const BitmapRecord& record)
{
    return (record.highDensity ? record.bytes.U24(21) : record.bytes.U16(10)) != 0;
}

/// What stands behind the last record of a family.
void CheckRest(const Judge& judge, ByteView resource, std::size_t position)
{
    const std::optional<std::size_t> end =
        LeadsOn(judge.record) ? std::nullopt : EndOf(judge.record);
    if (!end || position + (*end + 3) / 4 * 4 >= resource.Size())
        return;
    const std::size_t behind = position + (*end + 3) / 4 * 4;
    const ByteView rest = resource.Part(behind, resource.Size() - behind);
    const bool isMark =
        rest.Size() > DensityMarkSize && rest.U8(PixelSizeOffset) == DensityMarkPixelSize;
    if (!judge.record.highDensity && isMark) {
        judge.Add(
            "a high-density bitmap stands behind it, to which no link leads: a save leaves it "
            "out");
        return;
    }
    for (const std::uint8_t byte : rest.Span())
        if (byte != 0) {
            judge.Add(std::to_string(rest.Size())
                + " bytes stand behind its last bitmap: a save leaves them out");
            return;
        }
}

} // namespace

std::string BitsText(int depth) { return std::to_string(depth) + (depth == 1 ? " bit" : " bits"); }

void CheckShown(
    ByteView resource, const ShownRecord& shown, const std::string& place, Findings& findings)
{
    const Bytes bytes = shown.BytesOf(resource);
    const BitmapRecord record{ .bytes = bytes, .highDensity = shown.highDensity };
    const Judge judge{ record, place, findings };
    const int depth = judge.Depth();
    if (depth != 1 && depth != 2 && depth != 4 && depth != 8 && depth != 16) {
        judge.Add("it has " + BitsText(depth) + " a pixel: it can't be read");
        return;
    }
    CheckFields(judge);
    const bool rowsAreThere = CheckRows(judge, shown.size);
    if (CheckTransparentColour(judge))
        CheckExpanded(judge, rowsAreThere);
    if (record.Width() > 0 && record.Height() > 0)
        CheckRest(judge, resource, shown.position);
}

} // namespace vypx
