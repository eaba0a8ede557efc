#include "ClipboardFixture.h"

#include "document/IconStats.h"

#include <cstring>

namespace vypx::test {

namespace {

/// The clipboard's picture comes into a slot by buttons and menu entries.
class PasteTest : public ClipboardFixture {
protected:
    void ExpectFault(const QString& words)
    {
        ask.Answer(QMessageBox::Ok);
        const auto cells = IconTable;
        const QImage before = Stored(HighResPath);

        Press("cmdPastePicLG");

        EXPECT_EQ(Messages(),
            QStringList("The picture was not changed.\nThe clipboard's picture was not pasted: "
                + words + "."));
        EXPECT_EQ(IconTable, cells);
        EXPECT_EQ(Stored(HighResPath), before);
        ask.shown.clear();
    }
};

TEST_F(PasteTest, ThePasteButtonsFillTheirSlot)
{
    clipboard.setImage(Painted(7, 5));
    Press("cmdPastePicLG");
    clipboard.setImage(Painted(6, 4));
    Press("cmdPastePicSM");

    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));
    EXPECT_EQ(Stored(LowResPath), Painted(6, 4));
    EXPECT_EQ(Text("lbl_LGsize"), "7 x 5 pixels");
    EXPECT_EQ(Text("lbl_SMsize"), "6 x 4 pixels");
    EXPECT_EQ(Text("lblC_RGB_LG"), "0, 255, 0");
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(PasteTest, AFormatThatCantBeReadLeavesTheTurnToTheNext)
{
    Offer({ { "image/png", "broken" }, { "image/bmp", FileOf(Painted(7, 5), "BMP") } });
    Press("cmdPastePicLG");
    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));

    Offer({ { "image/png", {} }, { "image/bmp", FileOf(Painted(6, 4), "BMP") } });
    Press("cmdPastePicLG");
    EXPECT_EQ(Stored(HighResPath), Painted(6, 4));
}

TEST_F(PasteTest, TheMenuEntriesPasteTheSame)
{
    clipboard.setImage(Painted(7, 5));
    Entry("mnuPasteLG").trigger();
    clipboard.setImage(Painted(6, 4));
    Entry("mnuPasteSM").trigger();

    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));
    EXPECT_EQ(Stored(LowResPath), Painted(6, 4));
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(PasteTest, FillsAnIconThatHasNoPicture)
{
    Press("cmdDelLG");
    clipboard.setImage(Painted(7, 5));

    Press("cmdPastePicLG");

    EXPECT_EQ(Cell(Alpha, &IconRow::HighResFile), "tAIB3500-d144.bmp");
    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));
    EXPECT_TRUE(CanUse("cmdCopyClipLG"));
}

TEST_F(PasteTest, OfThePasteCommandsOnlyTheLowResButtonCountsTheIconsByItself)
{
    for (const QString name : { "cmdPastePicLG", "cmdPastePicSM", "mnuPasteLG", "mnuPasteSM" }) {
        StatHighRes = 99; // what a count puts right
        if (name.startsWith("cmd"))
            Press(name);
        else
            Entry(name).trigger();
        EXPECT_EQ(StatHighRes == 99, name != "cmdPastePicSM") << name.toStdString();
    }
}

TEST_F(PasteTest, AnEmptyClipboardOnlyMarksTheDocumentAndOffersUndo)
{
    const QImage before = Stored(HighResPath);

    Press("cmdPastePicLG");

    EXPECT_EQ(Stored(HighResPath), before);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(CanUse("cmdUndoLG"));
    EXPECT_EQ(Note(), "");
}

TEST_F(PasteTest, WithoutAPictureOnItThePictureThatPassedThroughLastIsPasted)
{
    clipboard.setImage(Painted(7, 5));
    Press("cmdPastePicLG");
    clipboard.setText("no picture");

    Press("cmdPastePicSM");

    EXPECT_EQ(Stored(LowResPath), Painted(7, 5));
}

TEST_F(PasteTest, TakesFilesOfAnyFormat)
{
    for (const auto& [type, format] : { std::pair{ "image/png", "PNG" },
             std::pair{ "image/bmp", "BMP" }, std::pair{ "image/x-MS-bmp", "BMP" },
             std::pair{ "image/tiff", "TIFF" }, std::pair{ "image/x-portable-pixmap", "PPM" },
             std::pair{ "image/x-xpixmap", "XPM" } }) {
        picbuff = {};
        const QImage image = Painted(4 + static_cast<int>(std::strlen(type)), 5);
        Offer({ { type, FileOf(image, format) } });

        Press("cmdPastePicLG");

        EXPECT_EQ(Stored(HighResPath), image) << type;
    }
}

TEST_F(PasteTest, TakesPicturesOfAnyDepth)
{
    int width = 3;
    for (const QImage::Format format : { QImage::Format_Mono, QImage::Format_Indexed8,
             QImage::Format_RGB16, QImage::Format_RGB888, QImage::Format_ARGB32_Premultiplied,
             QImage::Format_RGBA64, QImage::Format_Grayscale8 }) {
        picbuff = {};
        const QImage image = Painted(++width, 5, format);
        clipboard.setImage(image);

        Press("cmdPastePicLG");

        EXPECT_EQ(Text("lbl_LGsize"), QString("%1 x 5 pixels").arg(width)) << format;
    }
}

TEST_F(PasteTest, OfSeveralFormatsTakesTheOneThatKeepsEveryPixel)
{
    Offer({ { "image/jpeg", FileOf(Painted(3, 3), "JPG") },
        { "image/png", FileOf(Painted(7, 5), "PNG") },
        { "image/bmp", FileOf(Painted(4, 4), "BMP") }, { "text/plain", "a picture" } });

    Press("cmdPastePicLG");

    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));
}

TEST_F(PasteTest, DrawingsAndTextsAreNoPictures)
{
    const QImage before = Stored(HighResPath);
    Offer({ { "image/svg+xml", "<svg/>" }, { "text/html", "<img src='a.png'>" } });

    Press("cmdPastePicLG");

    EXPECT_EQ(Stored(HighResPath), before);
}

TEST_F(PasteTest, TransparentPixelsStayApartAsInAnImport)
{
    QImage image = Painted(4, 4, QImage::Format_ARGB32);
    image.setPixel(0, 0, 0);
    image.setPixel(3, 3, 0);
    Offer({ { "image/png", FileOf(image, "PNG") } });

    Press("cmdPastePicLG");

    const QImage stored = Stored(HighResPath);
    EXPECT_EQ(stored.pixel(0, 0), qRgb(255, 0, 255));
    EXPECT_EQ(stored.pixel(3, 3), qRgb(255, 0, 255));
    EXPECT_EQ(stored.pixel(1, 0), Red);
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 0, 255");
}

TEST_F(PasteTest, WhatIsNoPictureThoughItSaysSoIsToldInABox)
{
    const QByteArray png = FileOf(Painted(7, 5), "PNG");
    Offer({ { "image/png", "garbage" } });
    ExpectFault("it is no picture that can be read here");
    Offer({ { "image/png", png.left(png.size() - 30) } });
    ExpectFault("its data are broken or of a kind that can't be read here");
    Offer({ { "image/bmp", QByteArray(64, '\0') } });
    ExpectFault("it is no picture that can be read here");
    Offer({ { "image/png", "" } });
    ExpectFault("the program that it comes from does not hand it over");

    clipboard.setImage(Painted(7, 5));
    Press("cmdPastePicLG");
    EXPECT_EQ(Stored(HighResPath), Painted(7, 5)) << "the program goes on";
}

TEST_F(PasteTest, AHugePictureIsToldInABox)
{
    QImage huge(12000, 9000, QImage::Format_Mono);
    huge.fill(0);
    Offer({ { "image/png", FileOf(huge, "PNG") } });

    ExpectFault("it has more than 100 million pixels");
}

TEST_F(PasteTest, ALargePictureGoesThroughTheCropWindow)
{
    const QImage before = Stored(LowResPath);
    clipboard.setImage(Painted(100, 80));
    Press("cmdPastePicSM");
    ASSERT_TRUE(Find<QWidget>("frmCrop").isVisible());
    EXPECT_EQ(Stored(LowResPath), before);

    QTest::mouseClick(&Find<QPushButton>("cmdOK"), Qt::LeftButton);

    EXPECT_EQ(Stored(LowResPath).size(), QSize(32, 22));
    ASSERT_TRUE(CanUse("cmdUndoSM"));
    Press("cmdUndoSM");
    EXPECT_EQ(Stored(LowResPath), before) << "the paste, not an import, noted what undo restores";
}

TEST_F(PasteTest, ACancelInTheCropWindowLeavesTheSlot)
{
    const QImage before = Stored(HighResPath);
    clipboard.setImage(Painted(100, 80));
    Press("cmdPastePicLG");

    QTest::mouseClick(&Find<QPushButton>("cmdCancel"), Qt::LeftButton);

    EXPECT_EQ(Stored(HighResPath), before);
    EXPECT_TRUE(Find<QWidget>("Form1").isEnabled());
}

TEST_F(PasteTest, UndoTakesAPasteBackInBothSlots)
{
    for (const auto& [letters, path] :
        { std::pair{ "LG", &HighResPath }, std::pair{ "SM", &LowResPath } }) {
        const QImage before = Stored(*path);
        clipboard.setImage(Painted(7, 5));
        Press("cmdPastePic" + QString(letters));
        Press("cmdUndo" + QString(letters));
        EXPECT_EQ(Stored(*path), before) << letters;
        EXPECT_FALSE(CanUse("cmdUndo" + QString(letters))) << letters;
    }
}

TEST_F(PasteTest, WithoutAnIconNothingCanBePastedOrCopied)
{
    Click("Set");

    for (const QString name : { "cmdPastePicLG", "cmdPastePicSM", "mnuPasteLG", "mnuPasteSM",
             "cmdCopyClipLG", "cmdCopyClipSM" })
        EXPECT_FALSE(CanUse(name)) << name.toStdString();
}

TEST_F(PasteTest, APasteKeepsTheFocusOfItsButton)
{
    Find<QPushButton>("cmdPastePicLG").setFocus();
    clipboard.setImage(Painted(7, 5));

    QTest::keyClick(&Find<QPushButton>("cmdPastePicLG"), Qt::Key_Space);

    EXPECT_EQ(frame->focusWidget(), &Find<QPushButton>("cmdPastePicLG"));
    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));
}

} // namespace
} // namespace vypx::test
