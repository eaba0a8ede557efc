#include "DocumentFixture.h"
#include "forms/settings/frmSelectCDepth.h"

#include <QRadioButton>

namespace vypx::test {

namespace {

constexpr const char* Question =
    "The current iconset may have been changed.\n\nSave the current iconset?";

/// An iconset is open, and the windows for another one stand beside it.
class AskedAgain : public Documents {
protected:
    AskedAgain()
    {
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };
        Open(Written(Iconset{ .name = "Set",
            .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 3501) }, Picture(3500),
                Picture(3501) } }
                         .File()));
        PromptColorDepth = true;
    }

    void MarkAlpha()
    {
        SelectAlpha();
        QTest::keyClick(&Nodes(), Qt::Key_R);
    }
    bool AlphaIsOpen() { return NodeTexts().value(0) == "Alpha (Large Icon)"; }
    void TypeName(const QString& name) { Find<QLineEdit>("txtNewIconsetDBName").setText(name); }
    QString Another()
    {
        return Written(
            Iconset{ .name = "Another", .resources = { Picture(3500) } }.File(), "b.prc");
    }
};

TEST_F(AskedAgain, OpenAsksAboutChangesMadeUnderItsWindow)
{
    Entry("mnuOpen").trigger();
    MarkAlpha();
    ask.Answer(QMessageBox::Cancel);

    Click("cmdDoneCDepth");

    EXPECT_EQ(Messages(), QStringList(Question));
    EXPECT_TRUE(AlphaIsOpen());
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(AskedAgain, OpenAsksOnceMoreAboutChangesAfterItsFirstQuestion)
{
    MarkAlpha();
    ask.Answer(QMessageBox::No);
    Entry("mnuOpen").trigger();
    MarkAlpha();
    ask.Answer(QMessageBox::No);
    ask.Choose(Another());

    Click("cmdDoneCDepth");

    EXPECT_EQ(Messages(), QStringList({ Question, Question }));
    EXPECT_EQ(Nodes().Root()->text(0), "Another");
}

TEST_F(AskedAgain, WithoutLaterChangesNothingIsAskedTwice)
{
    MarkAlpha();
    ask.Answer(QMessageBox::No);
    Entry("mnuOpen").trigger();
    ask.Choose(Another());

    Click("cmdDoneCDepth");

    EXPECT_EQ(ask.shown.size(), 1u);
    EXPECT_EQ(Nodes().Root()->text(0), "Another");
}

TEST_F(AskedAgain, NewAsksAboutChangesMadeUnderItsName)
{
    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    MarkAlpha();
    TypeName("Fresh");
    ask.Answer(QMessageBox::Yes);

    Click("cmdDoneName");

    EXPECT_EQ(Messages(), QStringList(Question));
    EXPECT_TRUE(AlphaIsOpen());
    EXPECT_EQ(DatabaseName, "Set");
}

TEST_F(AskedAgain, ACancelledOpenLeavesTheDepthWindowToTheCommandItWasFor)
{
    Entry("mnuNew").trigger();
    MarkAlpha();
    ask.Answer(QMessageBox::Cancel);
    Entry("mnuOpen").trigger();
    ask.Answer(QMessageBox::No);

    Click("cmdDoneCDepth");
    EXPECT_TRUE(HasWindow("frmNewIconset"));
    TypeName("Fresh");
    Click("cmdDoneName");

    EXPECT_EQ(DatabaseName, "Fresh");
}

TEST_F(AskedAgain, ACancelledFileDialogLeavesDepthAndResolutionOfTheOpenDocument)
{
    Entry("mnuOpen").trigger();
    Click("opt4Bit");
    Click("optLowResOnly");
    ask.CancelDialog();

    Click("cmdDoneCDepth");

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
    EXPECT_FALSE(LowResOnly);
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "16-Bit");
    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Entry("mnuShowBoth").isChecked());
}

TEST_F(AskedAgain, ARefusedFileLeavesThemToo)
{
    Entry("mnuOpen").trigger();
    Click("opt4Bit");
    ask.Choose(Written({}, "notes.txt"));
    ask.Answer(QMessageBox::Ok);

    Click("cmdDoneCDepth");

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
    EXPECT_TRUE(AlphaIsOpen());
    EXPECT_TRUE(FileExists(WorkPath("tAIB3500.bmp"))) << "the open document is whole";
}

TEST_F(AskedAgain, ACancelledNameLeavesThemToo)
{
    for (const bool byFrame : { true, false }) {
        Entry("mnuNew").trigger();
        Click("opt8Bit");
        Click("cmdDoneCDepth");
        if (byFrame)
            Find<QDialog>("frmNewIconset").close();
        else
            Click("cmdCancelName");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16) << byFrame;
        EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "16-Bit");
    }
}

TEST_F(AskedAgain, AGivenNameKeepsTheChosenDepth)
{
    Entry("mnuNew").trigger();
    Click("opt8Bit");
    Click("cmdDoneCDepth");
    TypeName("Fresh");
    Click("cmdDoneName");

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);
}

TEST_F(AskedAgain, WhatTheOptionsChoseMeanwhileStands)
{
    Entry("mnuNew").trigger();
    Click("optLowResOnly");
    Click("cmdDoneCDepth");
    Entry("mnuOptions").trigger();
    Find<QDialog>("frmProgOptions").findChild<QRadioButton*>("optHighResOnly")->click();

    Click("cmdCancelName");

    EXPECT_TRUE(HighResOnly);
    EXPECT_FALSE(LowResOnly);
}

TEST_F(AskedAgain, WithoutADocumentTheChoicesStand)
{
    Entry("mnuCloseIconset").trigger();
    Entry("mnuOpen").trigger();
    Click("opt4Bit");
    ask.CancelDialog();

    Click("cmdDoneCDepth");

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
}

TEST_F(AskedAgain, AnEmptyNameLeavesTheOpenDocumentItsDepth)
{
    Entry("mnuNew").trigger();
    Click("opt4Bit");
    Click("cmdDoneCDepth");

    Click("cmdDoneName");

    EXPECT_TRUE(AlphaIsOpen());
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
}

TEST_F(AskedAgain, AnExitUnderTheNameWindowSavesTheDepthOfTheOpenDocument)
{
    Entry("mnuNew").trigger();
    Click("opt4Bit");
    Click("cmdDoneCDepth");

    Entry("mnuExit").trigger();

    EXPECT_NE(Settings().find("User Color Depth=16-Bit"), std::string::npos) << Settings();
}

TEST_F(AskedAgain, ACancelledNameLeavesWhatTheDepthWindowStillAsksAbout)
{
    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    Entry("mnuOpen").trigger();
    Click("opt4Bit");

    Click("cmdCancelName");
    EXPECT_TRUE(Find<QRadioButton>("opt4Bit").isChecked());
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);

    Find<QDialog>("frmSelectCDepth").close();
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
}

TEST_F(AskedAgain, ACancelledFileDialogLeavesWhatTheNameStillAsksAbout)
{
    Entry("mnuNew").trigger();
    Click("opt4Bit");
    Click("cmdDoneCDepth");
    Entry("mnuOpen").trigger();
    ask.CancelDialog();
    Click("cmdDoneCDepth");
    TypeName("Fresh");

    Click("cmdDoneName");

    EXPECT_EQ(DatabaseName, "Fresh");
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
}

TEST_F(AskedAgain, NewAsksAboutWhatOpenPassedWithoutAQuestion)
{
    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    for (const char* label : { "Alpha (Large Icon)", "Alpha (Small Icon)" }) {
        Nodes().setCurrentItem(Nodes().NodeOf(label));
        QTest::keyClick(&Nodes(), Qt::Key_R);
    }
    Entry("mnuOpen").trigger(); // asks nothing: no icon that stays has a picture
    ASSERT_TRUE(ask.shown.empty());
    Find<QDialog>("frmSelectCDepth").close();
    TypeName("Fresh");
    ask.Answer(QMessageBox::Cancel);

    Click("cmdDoneName");

    EXPECT_EQ(Messages(), QStringList(Question));
    EXPECT_EQ(DatabaseName, "Set");
}

TEST_F(AskedAgain, ASaveUnderTheDepthWindowKeepsTheDepthOfTheOpenDocument)
{
    WarnOverwrite = false;
    Entry("mnuOpen").trigger();
    Click("opt4Bit");

    Entry("mnuSave").trigger();

    const Bytes saved = ReadBytes(program.File("set.prc"));
    const ByteView file(saved);
    constexpr std::size_t OffsetOfFirst = 78 + 6, PixelSize = 8;
    EXPECT_EQ(file.U8(file.U32(OffsetOfFirst) + PixelSize), 16);
}

} // namespace
} // namespace vypx::test
