#include "pictures/PictureWriter.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <new>

namespace vypx {

namespace {

constexpr int DotsPerMetre = 2835; // 72 dpi; Qt's own would be that of the screen

/// The picture as Qt has it; the pixels stay where they are.
QImage ImageOver(const OpacityPicture& picture)
{
    QImage image(picture.Row(0), picture.Width(), picture.Height(),
        static_cast<qsizetype>(picture.Width()) * 4, QImage::Format_RGBA8888);
    image.setDotsPerMeterX(DotsPerMetre);
    image.setDotsPerMeterY(DotsPerMetre);
    return image;
}

} // namespace

PngFile PngOf(const OpacityPicture& picture)
{
    try {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "png");
        if (!writer.write(ImageOver(picture)))
            return { {}, "no PNG can be made here: " + writer.errorString().toStdString() };
        const QByteArray& bytes = buffer.data();
        return { Bytes(bytes.begin(), bytes.end()), {} };
    } catch (const std::bad_alloc&) {
        return { {}, "there is not enough memory" };
    }
}

} // namespace vypx
