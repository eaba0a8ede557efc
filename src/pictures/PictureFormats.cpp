#include "pictures/PictureFormats.h"

#include "pictures/OwnReaders.h"

#include <QImageReader>
#include <algorithm>

namespace vypx {

namespace {

constexpr PictureFormat Formats[] = {
    { "png", "png", nullptr, nullptr },
    { "jpeg", "jfif jpe jpeg jpg", ClaimOfJpeg, nullptr },
    { "gif", "gif", ClaimOfGif, nullptr },
    { "bmp", "bmp dib", ClaimOfBmp, ReadBmpOf16Bits },
    { "webp", "webp", ClaimOfWebP, nullptr },
    { "tiff", "tif tiff", ClaimOfTiff, nullptr },
    { "ico", "ico", ClaimOfIco, ReadIconOf32Bits },
    { "ppm", "pbm pgm pnm ppm", ClaimOfPnm, ReadPnm }, // all three by one name
    { "xpm", "xpm", nullptr, nullptr },
    { "xbm", "xbm", nullptr, nullptr },
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
