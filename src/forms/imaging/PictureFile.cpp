#include "forms/imaging/PictureFile.h"

#include "forms/common/Look.h"
#include "pictures/PictureLoader.h"
#include "platform/Platform.h"

#include <QFileInfo>
#include <algorithm>
#include <optional>

namespace vypx {

namespace {

/// Width and height fields of a BMP file; empty: the file is too short for them.
std::optional<QSize> SizeFields(const std::string& path)
{
    constexpr std::size_t WidthOffset = 18, HeightOffset = 22;
    const auto file = platform::ReadWholeFile(path);
    if (!file || file->size() < HeightOffset + 4)
        return std::nullopt;
    const auto number = [&](std::size_t offset) {
        const std::uint8_t* const byte = file->data() + offset;
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(byte[0])
            | static_cast<std::uint32_t>(byte[1]) << 8 | static_cast<std::uint32_t>(byte[2]) << 16
            | static_cast<std::uint32_t>(byte[3]) << 24);
    };
    return QSize(number(WidthOffset), number(HeightOffset));
}

} // namespace

QString SizeText(const std::string& path)
{
    const std::optional<QSize> size = SizeFields(path);
    return size ? QString("%1 x %2 pixels").arg(size->width()).arg(size->height()) : QString();
}

QSize PictureSize(const std::string& path) { return SizeFields(path).value_or(QSize(0, 0)); }

QImage Masked(const QImage& picture, Rgb mask)
{
    QImage masked = picture.convertToFormat(QImage::Format_ARGB32);
    const QRgb hole = ScreenColour(mask).rgb();
    for (int y = 0; y < masked.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(masked.scanLine(y));
        for (int x = 0; x < masked.width(); ++x)
            if ((row[x] | 0xFF000000u) == hole)
                row[x] = 0;
    }
    return masked;
}

bool HasPictureEnding(const std::string& path)
{
    const std::vector<std::string> endings = PictureEndings();
    const std::string ending =
        QFileInfo(QString::fromStdString(path)).suffix().toLower().toStdString();
    return std::find(endings.begin(), endings.end(), ending) != endings.end();
}

QImage ImageOf(const MaskedPicture& picture)
{
    const vypx::Picture& pixels = picture.pixels;
    if (pixels.IsNull())
        return {};
    const QImage image(
        pixels.Row(0), pixels.Width(), pixels.Height(), pixels.Width() * 3, QImage::Format_RGB888);
    return picture.transparent ? Masked(image, *picture.transparent)
                               : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace vypx
