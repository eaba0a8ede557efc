#include "companion/PixelLibrary.h"

#include "companion/BmpFile.h"
#include "companion/NearestColour.h"
#include "companion/WorkingFile.h"

#include <array>
#include <new>
#include <stdexcept>
#include <utility>

namespace vypx {

namespace {

/// A pixel as a BMP has it.
struct Bgr {
    std::uint8_t blue = 0, green = 0, red = 0;
};

Bgr BgrOf(Rgb colour)
{
    return { static_cast<std::uint8_t>(colour.blue), static_cast<std::uint8_t>(colour.green),
        static_cast<std::uint8_t>(colour.red) };
}

void Put(std::uint8_t* out, Bgr pixel)
{
    out[0] = pixel.blue;
    out[1] = pixel.green;
    out[2] = pixel.red;
}

/// What a file can't be made of is told, as failures of the file are.
template <typename Write>
std::error_code Told(const Write& write)
{
    try {
        return write();
    } catch (const std::length_error&) {
        return NoPicture();
    } catch (const std::bad_alloc&) {
        return std::make_error_code(std::errc::not_enough_memory);
    }
}

/// Makes a BMP of that size, has its pixels filled and writes it.
template <typename Fill>
std::error_code WriteBmp(
    int width, int height, int bits, Palette colours, const std::string& path, const Fill& fill)
{
    return Told([&] {
        BmpBytes bmp(width, height, bits, colours);
        fill(bmp);
        return WriteWorkingFile(path, bmp.File());
    });
}

/// Whether the pixels were all made, in rows that are wide enough.
bool HasPicture(const PixelBuffer& pixels, int depth, int width, int height)
{
    const int needed = static_cast<int>((static_cast<std::int64_t>(width) * depth + 7) / 8);
    return needed <= pixels.RowBytes() + pixels.RowPad() && height <= pixels.RowsMade();
}

/// Writes the pixels at `depth` bits as a 24-bit BMP; `fillRow(in, out)` turns a row.
template <typename FillRow>
std::error_code WriteRows(const PixelBuffer& pixels, int depth, int width, int height,
    const std::string& path, const FillRow& fillRow)
{
    if (!HasPicture(pixels, depth, width, height))
        return NoPicture();
    return WriteBmp(width, height, 24, {}, path, [&](BmpBytes& bmp) {
        for (int y = 0; y < height; ++y)
            fillRow(pixels.Row(y), bmp.Row(y));
    });
}

using Table = std::array<Bgr, 256>;

Table TableOf(Palette palette)
{
    Table table{};
    for (std::size_t i = 0; i < palette.size() && i < table.size(); ++i)
        table[i] = BgrOf(palette[i]);
    return table;
}

/// Turns a row of indices into pixels of a BMP.
template <int Depth>
auto IndexedRow(const Table& table, int width)
{
    return [&table, width](const std::uint8_t* in, std::uint8_t* out) {
        constexpr int PerByte = 8 / Depth, Mask = (1 << Depth) - 1;
        for (int x = 0; x < width; ++x, out += 3) {
            const int shift = 8 - Depth - x % PerByte * Depth;
            Put(out, table[static_cast<std::size_t>(in[x / PerByte] >> shift & Mask)]);
        }
    };
}

template <int Depth>
std::error_code WriteIndexed(
    const PixelBuffer& pixels, const Table& table, int width, int height, const std::string& path)
{
    return WriteRows(pixels, Depth, width, height, path, IndexedRow<Depth>(table, width));
}

std::error_code WriteReduced16(
    const PixelBuffer& pixels, Palette palette, int width, int height, const std::string& path)
{
    const Table table = TableOf(palette);
    NearestColour& nearest = NearestIn(palette);
    const auto fillRow = [&](const std::uint8_t* in, std::uint8_t* out) {
        for (int x = 0; x < width; ++x, in += 2, out += 3) {
            const auto colour = static_cast<std::uint16_t>(in[0] << 8 | in[1]);
            Put(out, table[static_cast<std::size_t>(nearest.IndexOf565(colour))]);
        }
    };
    return WriteRows(pixels, 16, width, height, path, fillRow);
}

/// Each 8- and 6-bit half of a 5-6-5 pixel takes one look-up less than the arithmetic.
struct Widener {
    std::array<std::uint8_t, 32> five{};
    std::array<std::uint8_t, 64> six{};

    constexpr Widener()
    {
        for (int v = 0; v < 32; ++v)
            five[static_cast<std::size_t>(v)] = static_cast<std::uint8_t>(Widened5(v));
        for (int v = 0; v < 64; ++v)
            six[static_cast<std::size_t>(v)] = static_cast<std::uint8_t>(Widened6(v));
    }
};

constexpr Widener Wide;

/// Turns a row of 5-6-5 colours into pixels of a BMP.
auto WidenedRow(int width)
{
    return [width](const std::uint8_t* in, std::uint8_t* out) {
        for (int x = 0; x < width; ++x, in += 2, out += 3) {
            const auto colour = static_cast<std::size_t>(in[0] << 8 | in[1]);
            Put(out,
                { Wide.five[colour & 0x1F], Wide.six[colour >> 5 & 0x3F],
                    Wide.five[colour >> 11] });
        }
    };
}

/// The same pixels in memory.
template <typename FillRow>
Picture MakePicture(const PixelBuffer& pixels, int width, int height, const FillRow& fillRow)
{
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* pixel = picture.Row(y);
        fillRow(pixels.Row(y), pixel);
        for (int x = 0; x < width; ++x, pixel += 3)
            std::swap(pixel[0], pixel[2]);
    }
    return picture;
}

std::error_code WriteNearest(const Picture& picture, Palette palette, int bits, int width,
    int height, const std::string& path)
{
    if (width > picture.Width() || height > picture.Height())
        return NoPicture();
    return WriteBmp(width, height, bits, palette, path, [&](BmpBytes& bmp) {
        NearestColour& nearest = NearestIn(palette);
        for (int y = 0; y < height; ++y) {
            const std::uint8_t* in = picture.Row(y);
            std::uint8_t* const out = bmp.Row(y);
            for (int x = 0; x < width; ++x, in += 3) {
                const int index = nearest.IndexOf(in[0], in[1], in[2]);
                if (bits == 8)
                    out[x] = static_cast<std::uint8_t>(index);
                else
                    out[x / 2] =
                        static_cast<std::uint8_t>(out[x / 2] | (x % 2 == 0 ? index << 4 : index));
            }
        }
    });
}

} // namespace

std::error_code Bmp1to24(
    const PixelBuffer& pixels, Palette palette1, int width, int height, const std::string& path)
{
    return WriteIndexed<1>(pixels, TableOf(palette1), width, height, path);
}

std::error_code Bmp2to24(
    const PixelBuffer& pixels, Palette palette2, int width, int height, const std::string& path)
{
    return WriteIndexed<2>(pixels, TableOf(palette2), width, height, path);
}

std::error_code Bmp4to24(
    const PixelBuffer& pixels, Palette palette4, int width, int height, const std::string& path)
{
    return WriteIndexed<4>(pixels, TableOf(palette4), width, height, path);
}

std::error_code Bmp8to24(
    const PixelBuffer& pixels, Palette palette8, int width, int height, const std::string& path)
{
    return WriteIndexed<8>(pixels, TableOf(palette8), width, height, path);
}

std::error_code Bmp16to24(const PixelBuffer& pixels, int width, int height, const std::string& path)
{
    return WriteRows(pixels, 16, width, height, path, WidenedRow(width));
}

Picture PictureOf(const PixelBuffer& pixels, int depth, int width, int height)
{
    if (width < 1 || height < 1 || width > Picture::MaxSide || height > Picture::MaxSide
        || !HasPicture(pixels, depth, width, height))
        return {};
    if (depth == 16)
        return MakePicture(pixels, width, height, WidenedRow(width));
    if (depth == 8)
        return MakePicture(pixels, width, height, IndexedRow<8>(TableOf(Palette8), width));
    if (depth == 4)
        return MakePicture(pixels, width, height, IndexedRow<4>(TableOf(Palette4), width));
    if (depth == 2)
        return MakePicture(pixels, width, height, IndexedRow<2>(TableOf(Palette2), width));
    return MakePicture(pixels, width, height, IndexedRow<1>(TableOf(Palette1), width));
}

std::error_code RGB16to8Bit(const PixelBuffer& pixels, Palette palette8, int width, int height, int,
    const std::string& path)
{
    return WriteReduced16(pixels, palette8, width, height, path);
}

std::error_code RGB16to4Bit(const PixelBuffer& pixels, Palette palette4, int width, int height, int,
    const std::string& path)
{
    return WriteReduced16(pixels, palette4, width, height, path);
}

std::error_code RGB8to4Bit(const PixelBuffer& pixels, Palette palette4, Palette palette8, int width,
    int height, int, const std::string& path)
{
    NearestColour& nearest = NearestIn(palette4);
    Table table{};
    for (std::size_t i = 0; i < palette8.size() && i < table.size(); ++i) {
        const int index = nearest.IndexOf(palette8[i].red, palette8[i].green, palette8[i].blue);
        table[i] = BgrOf(palette4[static_cast<std::size_t>(index)]);
    }
    return WriteIndexed<8>(pixels, table, width, height, path);
}

void TCchange(Palette palette4, Palette palette8, int depth, int& red, int& green, int& blue)
{
    const Palette palette = depth == 4 ? palette4 : palette8;
    const int index = NearestIn(palette).IndexOf(red, green, blue);
    const Rgb& colour = palette[static_cast<std::size_t>(index)];
    red = colour.red;
    green = colour.green;
    blue = colour.blue;
}

std::error_code WriteBmp4(
    const Picture& picture, Palette palette4, int width, int height, const std::string& path)
{
    return WriteNearest(picture, palette4, 4, width, height, path);
}

std::error_code WriteBmp8(
    const Picture& picture, Palette palette8, int width, int height, const std::string& path)
{
    return WriteNearest(picture, palette8, 8, width, height, path);
}

std::error_code WriteBmp24(const Picture& picture, int width, int height, const std::string& path)
{
    if (width > picture.Width() || height > picture.Height())
        return NoPicture();
    return Told([&] { return WriteBmp24InPieces(picture, width, height, path); });
}

} // namespace vypx
