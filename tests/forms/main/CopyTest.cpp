#include "ClipboardFixture.h"

namespace vypx::test {

namespace {

/// The pictures of an icon go to the clipboard.
class CopyTest : public ClipboardFixture { };

TEST_F(CopyTest, CopiesTheStoredPixelsInTheFormatsOfOtherPrograms)
{
    ImportBlack("cmdImportSM", 3, 2);
    for (const auto& [button, path] :
        { std::pair{ "cmdCopyClipLG", &HighResPath }, std::pair{ "cmdCopyClipSM", &LowResPath } }) {
        clipboard.clear();

        Press(button);

        const QMimeData& data = *clipboard.mimeData();
        const QImage stored = Stored(*path);
        for (const char* type : { "image/png", "image/bmp" }) {
            const QImage copied = QImage::fromData(data.data(type));
            EXPECT_FALSE(copied.hasAlphaChannel()) << "what is transparent is a colour";
            EXPECT_EQ(copied.convertToFormat(QImage::Format_RGB32), stored) << type;
        }
        EXPECT_TRUE(data.hasImage());
        EXPECT_EQ(clipboard.image().convertToFormat(QImage::Format_RGB32), stored);
    }
    EXPECT_EQ(clipboard.image().size(), QSize(3, 2));
}

TEST_F(CopyTest, TheMenuEntriesCopyTheSame)
{
    Press("cmdCopyClipLG");
    const QByteArray high = clipboard.mimeData()->data("image/png");
    Press("cmdCopyClipSM");
    const QByteArray low = clipboard.mimeData()->data("image/png");
    Entry("mnuCopyLG").setEnabled(true); // as the menu does
    Entry("mnuCopySM").setEnabled(true);

    Entry("mnuCopyLG").trigger();
    EXPECT_EQ(clipboard.mimeData()->data("image/png"), high);
    Entry("mnuCopySM").trigger();
    EXPECT_EQ(clipboard.mimeData()->data("image/png"), low);
}

TEST_F(CopyTest, ACopyChangesNothingOfTheDocument)
{
    const auto icons = IconTable;
    const auto bitmaps = BitmapTable;

    Press("cmdCopyClipLG");

    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(CanUse("cmdUndoLG"));
    EXPECT_EQ(IconTable, icons);
    EXPECT_EQ(BitmapTable, bitmaps);
}

TEST_F(CopyTest, CopyOnAnEmptySlotLeavesTheClipboardAlone)
{
    clipboard.setText("kept");
    Press("cmdDelLG");
    Entry("mnuCopyLG").setEnabled(true);

    Entry("mnuCopyLG").trigger();

    EXPECT_FALSE(CanUse("cmdCopyClipLG"));
    EXPECT_EQ(clipboard.text(), "kept");
}

TEST_F(CopyTest, CopyOfAPictureWhoseFileHasGoneLeavesTheClipboardAlone)
{
    clipboard.setText("kept");
    std::filesystem::remove(HighResPath);

    Press("cmdCopyClipLG");

    EXPECT_EQ(clipboard.text(), "kept");
}

TEST_F(CopyTest, CopyOfAPictureThatIsNoneAnyMoreIsToldInABox)
{
    clipboard.setText("kept");
    WriteText(HighResPath, "garbage");
    ask.Answer(QMessageBox::Ok);

    Press("cmdCopyClipLG");

    EXPECT_EQ(Messages(), QStringList("The picture was not copied: it can't be read any more."));
    EXPECT_EQ(clipboard.text(), "kept");
}

TEST_F(CopyTest, WhatWasCopiedCountsAsPassedThrough)
{
    const QImage high = Stored(HighResPath);
    Press("cmdCopyClipLG");
    clipboard.setText("another program's");

    Press("cmdPastePicSM");

    EXPECT_EQ(Stored(LowResPath), high);
}

TEST_F(CopyTest, ACopyOfOneIconIsPastedIntoAnother)
{
    clipboard.setImage(Painted(7, 5));
    Press("cmdPastePicLG");
    Press("cmdCopyClipLG");
    picbuff = {};
    Click("Beta (Large Icon)");

    Press("cmdPastePicLG");

    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "tAIB3502-d144.bmp");
    EXPECT_EQ(Stored(HighResPath), Painted(7, 5));
}

} // namespace
} // namespace vypx::test
