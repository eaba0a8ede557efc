#include "forms/imaging/ClipboardPicture.h"

#include "companion/BmpFile.h"
#include "forms/imaging/PictureFile.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace vypx {

namespace {

/// The names of formats, in the order in which they are taken: those first that keep every pixel
/// and what is transparent, and that most programs write without mistakes.
constexpr const char* Formats[] = { "image/png", "image/bmp", "image/x-bmp", "image/x-ms-bmp",
    "image/x-win-bitmap", "image/tiff", "image/webp", "image/gif", "image/x-portable-pixmap",
    "image/x-portable-anymap", "image/x-portable-graymap", "image/x-portable-bitmap", "image/jpeg",
    "image/x-icon", "image/vnd.microsoft.icon", "image/x-xpixmap", "image/x-xbitmap" };

/// A picture as this desktop or this program hands it over, in no file's format.
constexpr const char* PlatformImage = "application/x-qt-image";

QByteArray PngOf(const QImage& image)
{
    constexpr int NotPacked = 100;
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG", NotPacked) ? file : QByteArray();
}

} // namespace

QString PictureFormatOnClipboard()
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return {};
    const QStringList offered = data->formats();
    for (const char* format : Formats)
        for (const QString& name : offered)
            if (name.compare(QLatin1String(format), Qt::CaseInsensitive) == 0)
                return name;
    return offered.contains(PlatformImage) ? PlatformImage : QString();
}

QByteArray PictureFileOnClipboard(const QString& format)
{
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (!data)
        return {};
    return format == PlatformImage ? PngOf(qvariant_cast<QImage>(data->imageData()))
                                   : data->data(format);
}

void PutOnClipboard(const vypx::Picture& picture)
{
    const QImage image = ImageOf({ .pixels = picture });
    const Bytes bmp = EncodeBmp24(picture);
    auto* const data = new QMimeData; // the clipboard's from now on
    data->setImageData(image);
    data->setData("image/png", PngOf(image));
    data->setData("image/bmp",
        QByteArray(reinterpret_cast<const char*>(bmp.data()), static_cast<qsizetype>(bmp.size())));
    QGuiApplication::clipboard()->setMimeData(data);
}

} // namespace vypx
