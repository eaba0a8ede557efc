#include "cli/Sheet.h"

#include "companion/ScaleImg.h"

#include <algorithm>

namespace vypx {

namespace {

/// The parts of a sheet, in pixels.
struct Grid {
    int columns = 1, rows = 1;
    int boxWidth = 1, boxHeight = 1; ///< of each part
    int gapX = 0, gapY = 0;          ///< between two
    double fit = 0; ///< how many times as large as it is the largest picture can be

    int Width() const { return columns * boxWidth + (columns - 1) * gapX; }
    int Height() const { return rows * boxHeight + (rows - 1) * gapY; }
};

/// What is left between the parts, shared, but no more than an eighth of one.
int GapOf(int box, int count, int side)
{
    return count < 2 ? 0 : std::min((box + 7) / 8, (side - count * box) / (count - 1));
}

Grid GridOf(int count, int columns, int width, int height, int side)
{
    Grid grid{ .columns = columns, .rows = (count + columns - 1) / columns };
    grid.fit = std::min(static_cast<double>(side) / (columns * width),
        static_cast<double>(side) / (grid.rows * height));
    const double scale = grid.fit < 1 ? grid.fit : static_cast<int>(grid.fit);
    grid.boxWidth = std::max(static_cast<int>(width * scale), 1);
    grid.boxHeight = std::max(static_cast<int>(height * scale), 1);
    grid.gapX = GapOf(grid.boxWidth, columns, side);
    grid.gapY = GapOf(grid.boxHeight, grid.rows, side);
    return grid;
}

Grid BestGrid(std::span<const MaskedPicture> pictures, int side)
{
    int width = 1, height = 1;
    for (const MaskedPicture& picture : pictures) {
        width = std::max(width, picture.pixels.Width());
        height = std::max(height, picture.pixels.Height());
    }
    const int count = static_cast<int>(pictures.size());
    Grid best;
    for (int columns = 1; columns <= count; ++columns) {
        const Grid grid = GridOf(count, columns, width, height, side);
        if (grid.fit > best.fit)
            best = grid;
    }
    return best;
}

/// Draws it in the middle of the part whose upper left corner is `left`, `top`.
void Draw(const MaskedPicture& picture, const Grid& grid, int left, int top, OpacityPicture& sheet)
{
    const Picture& pixels = picture.pixels;
    const int scale = std::min(grid.boxWidth / pixels.Width(), grid.boxHeight / pixels.Height());
    const int width = pixels.Width() * scale, height = pixels.Height() * scale;
    left += (grid.boxWidth - width) / 2;
    top += (grid.boxHeight - height) / 2;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (const Rgb colour = pixels.At(x / scale, y / scale); colour != picture.transparent)
                sheet.Set(left + x, top + y, colour);
}

} // namespace

int IconsOnSheet(int side) { return side < 128 ? 1 : side < 512 ? 4 : 16; }

MaskedPicture FitInto(MaskedPicture picture, int width, int height)
{
    const int oldWidth = picture.pixels.Width(), oldHeight = picture.pixels.Height();
    if (oldWidth <= width && oldHeight <= height)
        return picture;
    const double scale =
        std::min(static_cast<double>(width) / oldWidth, static_cast<double>(height) / oldHeight);
    const int newWidth = std::clamp(static_cast<int>(oldWidth * scale), 1, width);
    const int newHeight = std::clamp(static_cast<int>(oldHeight * scale), 1, height);
    MaskedPicture small{ Picture(newWidth, newHeight), picture.transparent };
    if (picture.transparent)
        ScaleImg(picture.pixels, small.pixels, oldWidth, oldHeight, newWidth, newHeight,
            { .transparent = *picture.transparent });
    else
        ScaleImg(picture.pixels, small.pixels, oldWidth, oldHeight, newWidth, newHeight);
    return small;
}

OpacityPicture MakeSheet(std::span<const MaskedPicture> pictures, int side)
{
    const Grid grid = BestGrid(pictures, side);
    const int count = static_cast<int>(pictures.size());
    OpacityPicture sheet(grid.Width(), grid.Height());
    for (int i = 0; i < count; ++i) {
        const int row = i / grid.columns, column = i % grid.columns;
        const int inThisRow = std::min(count - row * grid.columns, grid.columns);
        const int indent = (grid.columns - inThisRow) * (grid.boxWidth + grid.gapX) / 2;
        Draw(FitInto(pictures[static_cast<std::size_t>(i)], grid.boxWidth, grid.boxHeight), grid,
            indent + column * (grid.boxWidth + grid.gapX), row * (grid.boxHeight + grid.gapY),
            sheet);
    }
    return sheet;
}

} // namespace vypx
