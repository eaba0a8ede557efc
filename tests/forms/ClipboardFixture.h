#pragma once

#include "PicturesFixture.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <map>

namespace vypx::test {

/// Pictures go through the clipboard by buttons and menu entries. Colours that every depth of the
/// document keeps.
class ClipboardFixture : public PicturesFixture {
protected:
    static constexpr const char* Alpha = "Alpha (Large Icon)";
    static constexpr QRgb Red = qRgb(255, 0, 0), Green = qRgb(0, 255, 0);

    ClipboardFixture()
    {
        clipboard.clear();
        picbuff = {};
        Click(Alpha);
        IconsetChanged = false;
    }
    ~ClipboardFixture() override { clipboard.clear(); }

    /// Red, with a green corner at the top left.
    static QImage Painted(int width, int height, QImage::Format format = QImage::Format_RGB32)
    {
        QImage image(width, height, QImage::Format_ARGB32);
        image.fill(Red);
        image.setPixel(0, 0, Green);
        return image.convertToFormat(format);
    }
    static QByteArray FileOf(const QImage& image, const char* format)
    {
        QByteArray file;
        QBuffer buffer(&file);
        EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
        EXPECT_TRUE(image.save(&buffer, format));
        return file;
    }
    /// The clipboard offers these files.
    void Offer(const std::map<QString, QByteArray>& files)
    {
        auto* const data = new QMimeData;
        for (const auto& [format, file] : files)
            data->setData(format, file);
        clipboard.setMimeData(data);
    }
    /// The working file as it is stored.
    static QImage Stored(const std::string& path)
    {
        return QImage(QString::fromStdString(path)).convertToFormat(QImage::Format_RGB32);
    }

    QClipboard& clipboard = *QGuiApplication::clipboard();
};

} // namespace vypx::test
