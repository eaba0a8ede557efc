#include "pictures/PictureFormats.h"

#include <QImageReader>
#include <algorithm>

namespace vypx {

namespace {

constexpr PictureFormat Formats[] = {
    { "png", "png", nullptr },
    { "jpeg", "jfif jpe jpeg jpg", ClaimOfJpeg },
    { "gif", "gif", ClaimOfGif },
    { "bmp", "bmp dib", ClaimOfBmp },
    { "webp", "webp", ClaimOfWebP },
    { "tiff", "tif tiff", ClaimOfTiff },
    { "ico", "ico", ClaimOfIco },
    { "ppm", "pbm pgm pnm ppm", nullptr }, // the one reader of all three
    { "xpm", "xpm", nullptr },
    { "xbm", "xbm", nullptr },
};

bool CanRead(QIODevice& file, const PictureFormat& format)
{
    file.seek(0);
    QImageReader reader(&file, format.qtName);
    reader.setAutoDetectImageFormat(false); // or all readers would be asked
    return reader.canRead();
}

} // namespace

std::span<const PictureFormat> PictureFormats() { return Formats; }

const PictureFormat* FormatOf(QIODevice& file)
{
    const auto found = std::find_if(std::begin(Formats), std::end(Formats),
        [&](const PictureFormat& format) { return CanRead(file, format); });
    return found == std::end(Formats) ? nullptr : found;
}

} // namespace vypx
