#include "companion/PalmRecord.h"

#include "companion/DensityMark.h"
#include "companion/NearestColour.h"
#include "companion/PackBits.h"
#include "companion/PixelBuffer.h"

#include <algorithm>

namespace vypx {

namespace {

constexpr std::uint16_t Compressed = 0x8000, HasTransparent = 0x2000, DirectColour = 0x0400;
constexpr std::uint8_t PackBitsType = 2, NoCompression = 0xFF;

void Put8(Bytes& bytes, std::size_t offset, int value)
{
    bytes[offset] = static_cast<std::uint8_t>(value);
}

void Put16(Bytes& bytes, std::size_t offset, int value)
{
    Put8(bytes, offset, value >> 8);
    Put8(bytes, offset + 1, value & 0xFF);
}

int RowBytesOf(int width, int depth) { return (width * depth + 15) / 16 * 2; }

int IndexOf(const RecordForm& form, Rgb colour)
{
    return NearestIn(form.depth == 4 ? form.palette4 : form.palette8)
        .IndexOf(colour.red, colour.green, colour.blue);
}

/// One row of pixels at the record's depth; the rest of the row stays 0.
class RowMaker {
public:
    RowMaker(const Picture& picture, const RecordForm& form)
        : m_picture(picture)
        , m_depth(form.depth)
        , m_nearest(NearestIn(form.depth == 4 ? form.palette4 : form.palette8))
        , m_row(static_cast<std::size_t>(RowBytesOf(picture.Width(), form.depth)))
    {
    }

    const Bytes& Make(int y)
    {
        const std::uint8_t* in = m_picture.Row(y);
        std::uint8_t* out = m_row.data();
        const int width = m_picture.Width();
        if (m_depth == 16) {
            for (int x = 0; x < width; ++x, in += 3) {
                const int value = To565({ in[0], in[1], in[2] });
                *out++ = static_cast<std::uint8_t>(value >> 8);
                *out++ = static_cast<std::uint8_t>(value);
            }
        } else if (m_depth == 8) {
            for (int x = 0; x < width; ++x, in += 3)
                *out++ = static_cast<std::uint8_t>(IndexAt(in));
        } else {
            for (int x = 0; x < width; x += 2, in += 6) {
                const int low = x + 1 < width ? IndexAt(in + 3) : 0;
                *out++ = static_cast<std::uint8_t>(IndexAt(in) << 4 | low);
            }
        }
        return m_row;
    }

private:
    int IndexAt(const std::uint8_t* rgb) { return m_nearest.IndexOfRecent(rgb[0], rgb[1], rgb[2]); }

    const Picture& m_picture;
    int m_depth;
    NearestColour& m_nearest;
    Bytes m_row;
};

/// The record's pixels; empty when they can't be packed into a size field of that many bytes.
std::optional<Bytes> PackedPixels(
    const Picture& picture, const RecordForm& form, std::size_t sizeField)
{
    Bytes packed(sizeField);
    packed.reserve(sizeField
        + static_cast<std::size_t>(picture.Height() + 1)
            * (static_cast<std::size_t>(RowBytesOf(picture.Width(), form.depth)) + 3));
    RowMaker rows(picture, form);
    for (int y = 0; y < picture.Height(); ++y)
        AppendPackBits(packed, rows.Make(y), form.depth == 16 ? 2 : 1);
    if (sizeField == 2 && packed.size() > UINT16_MAX)
        return std::nullopt;
    for (std::size_t i = 0; i < sizeField; ++i)
        Put8(packed, i, static_cast<int>(packed.size() >> 8 * (sizeField - 1 - i) & 0xFF));
    return packed;
}

Bytes PlainPixels(const Picture& picture, const RecordForm& form)
{
    Bytes pixels;
    RowMaker rows(picture, form);
    for (int y = 0; y < picture.Height(); ++y) {
        const Bytes& row = rows.Make(y);
        pixels.insert(pixels.end(), row.begin(), row.end());
    }
    return pixels;
}

/// Puts pixels behind the header, and what both densities have at the same place.
Bytes Finish(Bytes record, const Picture& picture, const RecordForm& form, bool transparent,
    std::size_t sizeField)
{
    const int rowBytes = RowBytesOf(picture.Width(), form.depth);
    if (rowBytes > UINT16_MAX || !PixelBuffer::Holds(rowBytes, picture.Height()))
        throw RecordTooLarge();
    std::optional<Bytes> packed;
    if (form.packed)
        packed = PackedPixels(picture, form, sizeField);
    const bool isPacked = packed.has_value();
    Put16(record, 0, picture.Width());
    Put16(record, 2, picture.Height());
    Put16(record, 4, rowBytes);
    Put16(record, 6,
        (isPacked ? Compressed : 0) | (transparent ? HasTransparent : 0)
            | (form.depth == 16 ? DirectColour : 0));
    Put8(record, 8, form.depth);
    Put8(record, 13, isPacked ? PackBitsType : NoCompression);
    const Bytes pixels = packed ? *std::move(packed) : PlainPixels(picture, form);
    record.insert(record.end(), pixels.begin(), pixels.end());
    record.resize((record.size() + 3) / 4 * 4);
    return record;
}

} // namespace

Bytes EncodeLowDensity(const Picture& picture, const RecordForm& form,
    const std::optional<Rgb>& transparent, bool leadsOn)
{
    Bytes record(form.depth == 16 ? 24 : 16);
    Put8(record, 9, 2);
    if (form.depth == 16) {
        Put8(record, 16, 5);
        Put8(record, 17, 6);
        Put8(record, 18, 5);
        // The colour that the picture's own pixels will have once they are read again.
        const Rgb colour = transparent ? From565(To565(*transparent)) : Black;
        Put8(record, 21, colour.red);
        Put8(record, 22, colour.green);
        Put8(record, 23, colour.blue);
    } else if (transparent) {
        Put8(record, 12, IndexOf(form, *transparent));
    }
    record = Finish(std::move(record), picture, form, transparent.has_value(), 2);
    if (leadsOn) {
        if (!CanLeadOn(record.size()))
            throw RecordTooLarge();
        Put16(record, 10, static_cast<int>(record.size() / 4));
    }
    return record;
}

Bytes EncodeHighDensity(
    const Picture& picture, const RecordForm& form, const std::optional<Rgb>& transparent)
{
    Bytes record(24);
    Put8(record, 9, 3);
    Put8(record, 10, 24);
    Put8(record, 11, form.depth == 16 ? 1 : 0);
    Put16(record, 14, 144);
    if (transparent && form.depth == 16)
        Put16(record, 18, To565(*transparent));
    else if (transparent)
        Put8(record, 19, IndexOf(form, *transparent));
    return Finish(std::move(record), picture, form, transparent.has_value(), 4);
}

Bytes HighDensityMark()
{
    Bytes mark(DensityMarkSize);
    mark[PixelSizeOffset] = DensityMarkPixelSize;
    mark[9] = 1;
    return mark;
}

} // namespace vypx
