#include "forms/imaging/ClipboardPicture.h"

#include "companion/BmpFile.h"
#include "forms/imaging/PictureFile.h"
#include "pictures/PictureLoader.h"

#include <QBuffer>
#include <QClipboard>
#include <QElapsedTimer>
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

/// How long a program that hangs keeps Qt waiting, at least; milliseconds.
constexpr int Hanging = 4000;

/// All that can be read, the best first.
QStringList FormatsOf(const QMimeData& data)
{
    const QStringList offered = data.formats();
    QStringList formats;
    for (const char* format : Formats)
        for (const QString& name : offered)
            if (name.compare(QLatin1String(format), Qt::CaseInsensitive) == 0)
                formats << name;
    if (offered.contains(PlatformImage))
        formats << PlatformImage;
    return formats;
}

QByteArray FileOf(const QMimeData& data, const QString& format)
{
    return format == PlatformImage ? PngOf(qvariant_cast<QImage>(data.imageData()))
                                   : data.data(format);
}

LoadedPicture LoadFirst(const QStringList& formats, const std::function<void()>& wait)
{
    LoadedPicture loaded{ .whyNot = "the program that it comes from does not hand it over" };
    QElapsedTimer asked;
    asked.start();
    for (const QString& format : formats) {
        const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
        const QByteArray file = data ? FileOf(*data, format) : QByteArray();
        if (asked.hasExpired(Hanging) && file.isEmpty())
            return loaded; // it would hang for each of them
        if (file.isEmpty())
            continue;
        const std::span bytes(reinterpret_cast<const std::uint8_t*>(file.data()),
            static_cast<std::size_t>(file.size()));
        if (PixelsClaimed(bytes) > ManyPixels)
            wait();
        loaded = LoadPictureBytes(bytes);
        if (!loaded.picture.pixels.IsNull())
            return loaded;
    }
    return loaded;
}

} // namespace

std::function<LoadedPicture()> PictureOnClipboard(const std::function<void()>& wait)
{
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    const bool isOurs = clipboard.ownsClipboard();
    if (!isOurs)
        wait();
    QElapsedTimer asked;
    asked.start();
    const QMimeData* const data = clipboard.mimeData();
    const QStringList formats = data ? FormatsOf(*data) : QStringList();
    if (!formats.isEmpty())
        return [formats, wait] { return LoadFirst(formats, wait); };
    if (isOurs || !asked.hasExpired(Hanging))
        return {};
    // It may hold one, so no other picture takes its place.
    return
        [] { return LoadedPicture{ .whyNot = "the program that it comes from does not answer" }; };
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
