#include "DropsFixture.h"

#include <QMdiArea>
#include <QMessageBox>

namespace vypx::test {

namespace {

/// What counts of the data, and when a drop counts at all.
class Dropping : public DropsFixture { };

TEST_F(Dropping, OfSeveralFilesOnlyTheFirstCounts)
{
    Click("Alpha (Large Icon)");

    Drop("picLG",
        { PictureFile(5, 4, { 1, 2, 3 }, "a.bmp"), PictureFile(6, 4, { 1, 2, 3 }, "b.bmp"),
            AnotherIconset("c.pdb") });

    EXPECT_EQ(Text("lbl_LGsize"), "5 x 4 pixels");
    EXPECT_EQ(RootText(), "Set");
}

TEST_F(Dropping, OnlyLocalFilesCount)
{
    EXPECT_FALSE(Drop("Form1", { "http://example.invalid/a.prc" }));
    EXPECT_FALSE(DroppedFile);

    Drop("Form1", { "http://example.invalid/a.prc", AnotherIconset() });

    EXPECT_EQ(RootText(), "Other");
}

TEST_F(Dropping, AFileMayNameThisMachine)
{
    const QString path = AnotherIconset();
    EXPECT_FALSE(Drop("Form1", { "file://another.invalid" + path }));

    Drop("Form1", { "file://another.invalid" + path, "file://localhost" + path });

    EXPECT_EQ(RootText(), "Other");
}

TEST_F(Dropping, WordsAreNotTaken)
{
    QMimeData words;
    words.setText(AnotherIconset());

    EXPECT_FALSE(Drag("Form1", words));
    EXPECT_FALSE(Drag("picLGfrm", words));
}

TEST_F(Dropping, AFileIsCopiedThoughTheOtherProgramWouldMoveIt)
{
    EXPECT_EQ(Release("Form1", *Files({ AnotherIconset() })), Qt::CopyAction);
    QCoreApplication::processEvents();
    EXPECT_EQ(RootText(), "Other");
}

TEST_F(Dropping, TheQuestionComesAfterTheOtherProgramWasTold)
{
    IconsetChanged = true;
    const auto data = Files({ AnotherIconset() });

    EXPECT_NE(Release("TreeView1", *data), Qt::IgnoreAction);

    EXPECT_TRUE(ask.shown.empty());
    ask.Answer(QMessageBox::Cancel);
    QCoreApplication::processEvents();
    EXPECT_EQ(ask.shown.size(), 1u);
}

TEST_F(Dropping, OnTheTreesNodesItIsTheSame)
{
    const auto data = Files({ AnotherIconset() });
    QDragEnterEvent enter({ 5, 5 }, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Nodes().viewport(), &enter);
    QDropEvent drop({ 5, 5 }, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);

    QCoreApplication::sendEvent(Nodes().viewport(), &drop);
    QCoreApplication::processEvents();

    EXPECT_EQ(RootText(), "Other");
}

TEST_F(Dropping, OnPurposeTheEndingOfAnIconsetNeedsNoPoint)
{
    Drop("Form1", { AnotherIconset("myprc") });

    EXPECT_EQ(RootText(), "Other");
}

TEST_F(Dropping, ThatOfAPictureIsWhatStandsBehindTheLastPoint)
{
    for (const char* name : { "bmp", "abmp", "a.xbmp", "a.bmp.old" }) {
        Drop("Form1", { PictureFile(4, 4, { 1, 2, 3 }, name) });

        EXPECT_EQ(Window(), nullptr) << name;
    }
    Drop("Form1", { PictureFile(4, 4, { 1, 2, 3 }, "a.JPEG") });
    EXPECT_NE(Window(), nullptr);
}

TEST_F(Dropping, ChkDragFileGoesByTheDroppedFilesName)
{
    Click("Alpha (Large Icon)");
    DroppedFileName = PictureFile(4, 4, { 1, 2, 3 }).toStdString();

    frame->Form().ChkDragFile();

    EXPECT_TRUE(DroppedFile);
    ASSERT_NE(Window(), nullptr);
    PressInWindow("cmdApplytoLowRes");
    EXPECT_EQ(Text("lbl_SMsize"), "4 x 4 pixels");
}

TEST_F(Dropping, AFileThatIsNoIconsetIsToldAndForgotten)
{
    ask.Answer(QMessageBox::Ok);

    Drop("Form1", { Written(Bytes(200, 0), "bad.prc") });

    EXPECT_EQ(Messages(), QStringList("This file doesn't appear to be a valid Vantry IconSet"));
    EXPECT_FALSE(DroppedFile);
}

TEST_F(Dropping, OnTheFrameItsAreaGetsTheChromeColour)
{
    auto& area = Find<QMdiArea>("mdiArea");
    EXPECT_NE(area.background().color(), QColor(224, 223, 227));

    Drop("MDIForm1", { AnotherIconset() });

    EXPECT_EQ(area.background().color(), QColor(224, 223, 227));
}

TEST_F(Dropping, ALoadTakesNone)
{
    bool isTaken = true;
    Resource broken = Picture(3501);
    PutU16(broken.data, 10, 0x4000);
    ask.Answer(QMessageBox::Ok, [&] { isTaken = Drop("picSM", { AnotherIconset() }); });

    Open(Written(Iconset{ .name = "Box", .resources = { broken } }.File(), "box.prc"));

    EXPECT_FALSE(isTaken);
    EXPECT_EQ(RootText(), "Box");
}

TEST_F(Dropping, TheQuestionOfOneDropTakesNoOther)
{
    IconsetChanged = true;
    bool isTaken = true;
    ask.Answer(QMessageBox::Cancel, [&] {
        isTaken = Drop("picSM", { PictureFile(4, 4, { 1, 2, 3 }) });
    });

    Drop("Form1", { AnotherIconset() });

    EXPECT_FALSE(isTaken);
    EXPECT_TRUE(Drag("Form1")) << "afterwards it does";
}

TEST_F(Dropping, ABoxTakesNone)
{
    QMessageBox box(frame.get());
    box.open();
    EXPECT_FALSE(Drag("Form1"));
    EXPECT_FALSE(Drag("picLG"));

    box.close();

    EXPECT_TRUE(Drag("Form1"));
}

TEST_F(Dropping, TheWindowThatAsksTakesNone)
{
    Click("Alpha (Large Icon)");
    Drop("Form1", { PictureFile(4, 4, { 1, 2, 3 }) });

    for (const char* target : { "Form1", "MDIForm1", "picLG", "TreeView1" })
        EXPECT_FALSE(Drag(target)) << target;
    EXPECT_FALSE(Window()->acceptDrops());

    Window()->close();
    EXPECT_TRUE(Drag("Form1"));
}

TEST_F(Dropping, TheCropWindowTakesNone)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportLG", PictureFile(100, 80, { 1, 2, 3 }));

    EXPECT_FALSE(Drag("Form1"));
    EXPECT_FALSE(Drag("MDIForm1"));
}

TEST_F(Dropping, OfTwoInAHurryTheSecondFindsTheWindowThatAsks)
{
    const auto first = Files({ PictureFile(4, 4, { 1, 2, 3 }, "a.bmp") });
    const auto second = Files({ AnotherIconset() });
    Release("Form1", *first);
    Release("Form1", *second);

    QCoreApplication::processEvents();

    EXPECT_NE(Window(), nullptr);
    EXPECT_EQ(RootText(), "Set");
    EXPECT_EQ(DroppedFileName, program.File("a.bmp"));
}

TEST_F(Dropping, AWindowThatCameUpMeanwhileLetsItDoNothing)
{
    Click("Alpha (Large Icon)");
    Release("Form1", *Files({ AnotherIconset() }));
    Import("cmdImportLG", PictureFile(100, 80, { 1, 2, 3 })); // opens the crop window

    QCoreApplication::processEvents();

    EXPECT_EQ(RootText(), "Set");
    EXPECT_FALSE(DroppedFile);
}

TEST_F(Dropping, WhileTheNewNameIsAskedForAnIconsetIsOpenedInItsPlace)
{
    Entry("mnuNew").trigger();

    Drop("Form1", { AnotherIconset() });

    EXPECT_EQ(RootText(), "Other");
    const auto* const asks = frame->findChild<QDialog*>("frmNewIconset");
    EXPECT_TRUE(!asks || !asks->isVisible());
}

} // namespace
} // namespace vypx::test
