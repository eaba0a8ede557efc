#include "PicturesFixture.h"

#include <QBuffer>
#include <QDialog>
#include <QImage>
#include <random>

namespace vypx::test {

namespace {

/// A small picture in a format of the program's readers, as bytes.
QByteArray Encoded(const char* format)
{
    QImage image(20, 12, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x * 12, y * 20, (x * y) % 256));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes;
}

Bytes Mutated(const QByteArray& seed, std::mt19937& random)
{
    Bytes file(seed.begin(), seed.end());
    if (random() % 3 == 0)
        file.resize(random() % file.size());
    for (int changes = 1 + static_cast<int>(random() % 8); changes > 0 && !file.empty(); --changes)
        file[random() % std::min<std::size_t>(file.size(), 200)] =
            static_cast<std::uint8_t>(random());
    return file;
}

/// What a picture that does not come in must leave as it was.
struct Remembered {
    std::vector<IconRow> icons = IconTable;
    std::vector<BitmapEntry> bitmaps = BitmapTable;
    std::string path = HighResPath;
    Bytes file = ReadBytes(HighResPath);

    friend bool operator==(const Remembered&, const Remembered&) = default;
};

TEST_F(PicturesFixture, BrokenPicturesLeaveTheDocumentAsItWas)
{
    AutoCreateLowRes = false;
    Click("Alpha (Large Icon)");
    std::mt19937 random(14);
    int refused = 0;
    for (const char* format : { "BMP", "PNG", "JPG", "PPM", "XPM" }) {
        const QByteArray seed = Encoded(format);
        for (int i = 0; i < 30; ++i) {
            const Remembered before;

            Import("cmdImportLG", Written(Mutated(seed, random), "broken.pic"));

            for (QDialog* crop : frame->findChildren<QDialog*>("frmCrop"))
                crop->close(); // it has become larger
            if (IsOn("cmdUndoLG"))
                continue; // it was whole enough
            ++refused;
            EXPECT_TRUE(Remembered() == before) << format << i;
            EXPECT_TRUE(Note().startsWith("broken.pic was not imported: ")) << format << i;
        }
    }
    EXPECT_GT(refused, 40);
    WarnOverwrite = false;
    Entry("mnuSave").trigger();
    EXPECT_FALSE(IconsetChanged); // it can still be saved
}

} // namespace

} // namespace vypx::test
