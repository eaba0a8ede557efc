#include "pictures/PixelCopy.h"

#include "companion/FreeColour.h"

#include <QColorSpace>
#include <QColorTransform>
#include <algorithm>
#include <cmath>
#include <vector>

namespace vypx {

namespace {

/// Where a pixel of the image comes to stand: mirrored, flipped, and then turned to the right.
class Turned {
public:
    Turned(const QImage& image, QImageIOHandler::Transformations turn)
        : m_width(image.width())
        , m_height(image.height())
        , m_isMirrored(turn.testFlag(QImageIOHandler::TransformationMirror))
        , m_isFlipped(turn.testFlag(QImageIOHandler::TransformationFlip))
        , m_isOnItsSide(turn.testFlag(QImageIOHandler::TransformationRotate90))
    {
    }

    int Width() const { return m_isOnItsSide ? m_height : m_width; }
    int Height() const { return m_isOnItsSide ? m_width : m_height; }
    bool IsOnItsSide() const { return m_isOnItsSide; }

    /// Number of the pixel when they are counted row after row.
    std::ptrdiff_t Place(int x, int y) const
    {
        const std::ptrdiff_t column = m_isMirrored ? m_width - 1 - x : x;
        const std::ptrdiff_t row = m_isFlipped ? m_height - 1 - y : y;
        return m_isOnItsSide ? column * m_height + (m_height - 1 - row) : row * m_width + column;
    }
    std::ptrdiff_t StepRight() const { return m_width > 1 ? Place(1, 0) - Place(0, 0) : 0; }

private:
    int m_width, m_height;
    bool m_isMirrored, m_isFlipped, m_isOnItsSide;
};

/// Whether colours need no conversion. A PNG that tells nothing but a gamma of 1/2.2 with the
/// colours of sRGB was written by a program that knew of no sRGB mark; its pixels are as meant for
/// a screen, and each other program shows them as they are.
bool IsPlain(const QColorSpace& space, GammaMark mark)
{
    const QColorSpace plain(QColorSpace::SRgb);
    if (!space.isValid() || space == plain)
        return true;
    return mark == GammaMark::IsSRgb
        && space.transferFunction() == QColorSpace::TransferFunction::Gamma
        && std::abs(space.gamma() - 2.2F) < 0.02F
        && space.withTransferFunction(QColorSpace::TransferFunction::SRgb) == plain;
}

/// Some rows of a picture in a format of which each pixel is a QRgb.
class Strips {
public:
    Strips(const QImage& image, GammaMark mark)
        : m_image(image)
        , m_hasAlpha(image.hasAlphaChannel())
        , m_isPlain(IsPlain(image.colorSpace(), mark))
        , m_format(m_hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32)
    {
        if (!m_isPlain)
            m_toPlain = image.colorSpace().transformationToColorSpace(QColorSpace::SRgb);
    }

    bool HasAlpha() const { return m_hasAlpha; }

    /// As many rows as Qt converts without threads, and as stay in the processor's cache.
    int RowsAtOnce() const { return std::max(1, PixelsAtOnce / m_image.width()); }

    QImage Rows(int first, int count) const
    {
        QImage rows(m_image.constScanLine(first), m_image.width(), count, m_image.bytesPerLine(),
            m_image.format()); // the same bytes, not a copy
        if (m_image.colorCount() > 0)
            rows.setColorTable(m_image.colorTable());
        if (!m_isPlain) {
            rows.convertTo(m_image.depth() > 32 ? QImage::Format_RGBA64 : m_format);
            rows.applyColorTransform(m_toPlain);
        }
        rows.convertTo(m_format);
        if (rows.isNull())
            throw std::bad_alloc();
        return rows;
    }

private:
    static constexpr int PixelsAtOnce = 65536;

    const QImage& m_image;
    bool m_hasAlpha, m_isPlain;
    QImage::Format m_format;
    QColorTransform m_toPlain;
};

void CopyPixel(QRgb pixel, std::uint8_t* to)
{
    to[0] = static_cast<std::uint8_t>(qRed(pixel));
    to[1] = static_cast<std::uint8_t>(qGreen(pixel));
    to[2] = static_cast<std::uint8_t>(qBlue(pixel));
}

const QRgb* PixelsOf(const QImage& rows, int y)
{
    return reinterpret_cast<const QRgb*>(rows.constScanLine(y));
}

/// Copies rows whose first is the image's row `first`.
void CopyRows(const QImage& rows, int first, const Turned& turned, std::uint8_t* pixels)
{
    const int width = rows.width(), height = rows.height();
    if (turned.IsOnItsSide()) {
        // Column by column, so that neighbours are written one after the other.
        const QRgb* const from = PixelsOf(rows, 0);
        const auto nextRow = rows.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
        for (int x = 0; x < width; ++x)
            for (int y = 0; y < height; ++y)
                CopyPixel(from[y * nextRow + x], pixels + turned.Place(x, first + y) * 3);
        return;
    }
    const std::ptrdiff_t step = turned.StepRight() * 3;
    for (int y = 0; y < height; ++y) {
        const QRgb* const from = PixelsOf(rows, y);
        std::uint8_t* to = pixels + turned.Place(0, first + y) * 3;
        if (step == 3) // apart: compilers make vectors of it
            for (int x = 0; x < width; ++x)
                CopyPixel(from[x], to + x * 3);
        else
            for (int x = 0; x < width; ++x, to += step)
                CopyPixel(from[x], to);
    }
}

void NoteTransparent(
    const QImage& rows, int first, const Turned& turned, std::vector<bool>& isTransparent)
{
    constexpr int FirstOpaque = 128;
    const int width = rows.width(), height = rows.height();
    for (int y = 0; y < height; ++y) {
        const QRgb* const from = PixelsOf(rows, y);
        for (int x = 0; x < width; ++x)
            if (qAlpha(from[x]) < FirstOpaque)
                isTransparent[static_cast<std::size_t>(turned.Place(x, first + y))] = true;
    }
}

} // namespace

MaskedPicture CopyPixels(QImage image, QImageIOHandler::Transformations turn, GammaMark mark)
{
    const Turned turned(image, turn);
    Picture picture(turned.Width(), turned.Height());
    std::vector<bool> isTransparent;
    {
        const Strips strips(image, mark);
        if (strips.HasAlpha())
            isTransparent.resize(
                static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
        const int atOnce = strips.RowsAtOnce();
        for (int y = 0; y < image.height(); y += atOnce) {
            const QImage rows = strips.Rows(y, std::min(atOnce, image.height() - y));
            CopyRows(rows, y, turned, picture.Row(0));
            if (strips.HasAlpha())
                NoteTransparent(rows, y, turned, isTransparent);
        }
    }
    image = QImage();
    if (isTransparent.empty())
        return { std::move(picture), std::nullopt };
    return WithFreeColour(std::move(picture), isTransparent);
}

} // namespace vypx
