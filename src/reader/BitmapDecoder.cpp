#include "reader/BitmapDecoder.h"

#include "companion/PixelLibrary.h"
#include "document/Document.h"
#include "document/Slot.h"
#include "document/WorkingFolder.h"
#include "reader/PictureSink.h"
#include "reader/Progress.h"
#include "settings/Settings.h"

namespace vypx {

namespace {

Rgb EntryOf(Palette palette, int index)
{
    const auto entry = static_cast<std::size_t>(index);
    if (entry >= palette.size())
        throw BrokenFile("a transparent index beyond the palette");
    return palette[entry];
}

bool IsPixelSize(int bits)
{
    return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
}

BrokenFile NoPixelSize() { return BrokenFile("a pixel size that no bitmap has"); }

/// The working depth only ever lowers colours.
int WorkingDepth() { return BitsOf(DefaultColorDepth); }

} // namespace

BitmapDecoder::BitmapDecoder(WalkState& load, LoadListener& listener)
    : m_load(load)
    , m_listener(listener)
{
    for (std::size_t row = 0; row < IconTable.size(); ++row)
        if (!IconTable[row].ResourceKey.empty())
            m_rowsByKey[IconTable[row].ResourceKey].push_back(row);
}

void BitmapDecoder::DecodeBitmapFamily()
{
    const ByteView resource =
        ByteView(m_load.ResourceBytes).Part(1, m_load.ResourceBytes.size() - 1);
    WalkFamily(resource, [&](const ShownRecord& shown) { Pick(resource, shown); });
}

void BitmapDecoder::Pick(ByteView resource, const ShownRecord& shown)
{
    const bool highDensity = shown.highDensity;
    const std::string file =
        m_load.ResourceName + std::string(highDensity ? HighResSuffix : "") + ".bmp";
    if (const auto rows = m_rowsByKey.find(m_load.ResourceName); rows != m_rowsByKey.end())
        for (const std::size_t row : rows->second)
            (highDensity ? IconTable[row].HighResFile : IconTable[row].LowResFile) = file;

    const Bytes bitmapBytes = shown.BytesOf(resource);
    const BitmapRecord record{ .bytes = bitmapBytes, .highDensity = highDensity };
    const BitmapEntry& entry = NoteTransparency(record, file);
    std::error_code error;
    if (m_load.pictures)
        HandOver(record, entry);
    else
        error = WriteWorkingBmp(record, file);
    if (error && error != NoPicture() && ++m_load.picturesNotStored == 1)
        m_load.whyNotStored = error.message();
    ProgBar(m_load, m_listener);
}

void BitmapDecoder::HandOver(const BitmapRecord& record, const BitmapEntry& entry)
{
    const PictureHeader header{
        .resourceKey = m_load.ResourceName,
        .file = entry.file,
        .highDensity = record.highDensity,
        .width = record.Width(),
        .height = record.Height(),
        .rowBytes = record.RowBytes(),
        .depth = record.PixelSize(),
        .transparent = TransparentColour(entry),
    };
    const bool isWanted = m_load.pictures->Wants(header);
    if (!IsPixelSize(header.depth))
        throw NoPixelSize();
    if (!isWanted)
        return;
    const PixelBuffer pixels = ExpandPixels(record.Pixels(), record.Form());
    m_load.pictures->Take(header, PictureOf(pixels, header.depth, header.width, header.height));
}

const BitmapEntry& BitmapDecoder::NoteTransparency(
    const BitmapRecord& record, const std::string& file)
{
    const auto row = static_cast<std::size_t>(BitmapRow);
    if (row >= BitmapTable.size())
        BitmapTable.resize(row + 1); // more bitmaps than the walk counted
    BitmapEntry& entry = BitmapTable[row];
    entry = { .file = file, .hasTransparent = record.HasTransparent() ? 1 : 0 };
    entry.depth = record.PixelSize();
    ++BitmapRow;
    if (!record.HasTransparent())
        return entry;

    // On purpose: at 1 and 2 bits the colour's cells stay empty.
    if (entry.depth != 16)
        entry.index = record.TransparentIndex();
    Rgb colour;
    if (entry.depth == 16)
        colour = record.TransparentColour();
    else if (entry.depth == 8)
        colour = EntryOf(Palette8, *entry.index);
    else if (entry.depth == 4)
        colour = EntryOf(Palette4, *entry.index);
    else
        return entry;
    if (entry.depth >= 8 && WorkingDepth() < 16)
        TCchange(Palette4, Palette8, WorkingDepth(), colour.red, colour.green, colour.blue);
    entry.red = colour.red;
    entry.green = colour.green;
    entry.blue = colour.blue;
    return entry;
}

std::error_code BitmapDecoder::WriteWorkingBmp(const BitmapRecord& record, const std::string& file)
{
    const PixelBuffer pixels = ExpandPixels(record.Pixels(), record.Form());
    const int width = record.Width(), height = record.Height(), depth = record.PixelSize();
    const std::string path = WorkPath(file);
    if (depth == 16 && WorkingDepth() == 8)
        return RGB16to8Bit(pixels, Palette8, width, height, depth, path);
    if (depth == 16 && WorkingDepth() == 4)
        return RGB16to4Bit(pixels, Palette4, width, height, depth, path);
    if (depth == 8 && WorkingDepth() == 4)
        return RGB8to4Bit(pixels, Palette4, Palette8, width, height, depth, path);
    if (depth == 16)
        return Bmp16to24(pixels, width, height, path);
    if (depth == 8)
        return Bmp8to24(pixels, Palette8, width, height, path);
    if (depth == 4)
        return Bmp4to24(pixels, Palette4, width, height, path);
    if (depth == 2)
        return Bmp2to24(pixels, Palette2, width, height, path);
    if (depth == 1)
        return Bmp1to24(pixels, Palette1, width, height, path);
    throw NoPixelSize();
}

} // namespace vypx
