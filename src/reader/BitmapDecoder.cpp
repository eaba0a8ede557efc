#include "reader/BitmapDecoder.h"

#include "companion/DensityMark.h"
#include "companion/PixelLibrary.h"
#include "document/Document.h"
#include "document/Slot.h"
#include "document/WorkingFolder.h"
#include "reader/PictureSink.h"
#include "reader/Progress.h"
#include "settings/Settings.h"

#include <algorithm>

namespace vypx {

namespace {

int PixelSizeAt(ByteView resource, std::size_t position)
{
    return resource.U8(position + PixelSizeOffset);
}

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
    m_size = m_load.ResourceBytes.size() - 1;
    m_walk = {};
    for (;;) {
        if (m_walk.lastLowFound && m_walk.highDepth == 0)
            m_walk.highDone = true; // there is no high-density member
        if (m_walk.lowDone && m_walk.highDone)
            return;
        const Walk before = m_walk;
        OuterPass();
        // A pass that found out nothing leaves the next one nothing to do: links that lead nowhere.
        if (m_walk == before)
            return;
    }
}

void BitmapDecoder::OuterPass()
{
    const ByteView resource = Resource();
    std::size_t position = 0;
    while (position < m_size) {
        const int pixelSize = PixelSizeAt(resource, position);
        if (pixelSize == DensityMarkPixelSize) {
            DecodeHighDensity(position + DensityMarkSize);
            return;
        }
        if (m_walk.lowDone)
            return; // after the low-density member only the mark can follow
        if (m_walk.lastLowFound) {
            m_walk.lowDone = true;
            Pick(m_walk.lowPos, m_walk.lowSize, false);
            position = m_walk.lowPos + m_walk.lowSize;
            continue;
        }
        m_walk.lowPos = position;
        m_walk.lowDepth = pixelSize;
        const std::size_t next = resource.U16(position + 10) * std::size_t{ 4 };
        if (next == 0) {
            m_walk.lastLowFound = true;
            m_walk.lowSize = m_size - position;
            return;
        }
        m_walk.lowSize = next;
        position += next;
    }
}

void BitmapDecoder::DecodeHighDensity(std::size_t position)
{
    if (m_walk.highDone)
        return;
    if (m_walk.lowDepth == 0)
        m_walk.lowDone = true; // the mark came first: there is no low-density member
    const ByteView resource = Resource();
    while (position < m_size) {
        const std::size_t next = resource.U24(position + 21);
        if (next == 0 || !m_walk.lastLowFound)
            m_walk.highSize = m_size - position;
        if (!m_walk.lastLowFound) {
            m_walk.highDepth = PixelSizeAt(resource, position);
            if (next == 0) {
                m_walk.lastLowFound = true;
                return;
            }
        } else if (PixelSizeAt(resource, position) == m_walk.highDepth) {
            // On purpose: of two with that pixel size the first is taken.
            m_walk.highDone = true;
            Pick(position, m_walk.highSize, true);
            return;
        } else if (next == 0) {
            return;
        }
        position += next;
    }
}

void BitmapDecoder::Pick(std::size_t position, std::size_t size, bool highDensity)
{
    const std::string file =
        m_load.ResourceName + std::string(highDensity ? HighResSuffix : "") + ".bmp";
    if (const auto rows = m_rowsByKey.find(m_load.ResourceName); rows != m_rowsByKey.end())
        for (const std::size_t row : rows->second)
            (highDensity ? IconTable[row].HighResFile : IconTable[row].LowResFile) = file;

    // On purpose: twice as long as the resource. A decoder that runs past the record reads zeros
    // up to there.
    const auto bytes = Resource().Part(position, size).Span();
    Bytes bitmapBytes(2 * m_size);
    std::copy(bytes.begin(), bytes.end(), bitmapBytes.begin());
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
    if (!m_load.pictures->Wants(header))
        return;
    const PixelBuffer pixels = ExpandPixels(record.Pixels(), record.Form());
    if (!IsPixelSize(header.depth))
        throw NoPixelSize();
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
