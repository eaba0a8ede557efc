#include "DocumentFixture.h"

#include "document/IconStats.h"
#include "forms/main/Commands.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

namespace vypx::test {

namespace {

TEST_F(Documents, NewMakesAnEmptyOne)
{
    MakeNew("My Set");

    EXPECT_TRUE(FileLoaded);
    EXPECT_EQ(DatabaseName, "My Set");
    EXPECT_EQ(Nodes().Root()->text(0), "My Set");
    EXPECT_EQ(Nodes().Root()->childCount(), 0);
    EXPECT_EQ(FileName, "");
    EXPECT_EQ(Status(1), "Windows Filename = ");
    EXPECT_EQ(Status(2), "Palm Database Name = My Set");
    EXPECT_TRUE(Entry("mnuSave").isEnabled());
    EXPECT_TRUE(Entry("mnuSaveAs").isEnabled());
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(HasWindow("frmNewIconset"));
}

TEST_F(Documents, NewTakesThePictureAndItsCommandsAway)
{
    OpenAlpha();
    SelectAlpha();
    ASSERT_TRUE(HasPicture());
    ASSERT_TRUE(Find<QPushButton>("cmdRemoveIcon").isEnabled());

    Entry("mnuNew").trigger();
    EXPECT_FALSE(HasPicture());
    for (const QString name : { "cmdAddIcon", "cmdRemoveIcon", "cmdAssignApp" })
        EXPECT_FALSE(Find<QPushButton>(name).isEnabled()) << name.toStdString();

    // While the window stands, the old document can still be looked at.
    Nodes().setCurrentItem(Nodes().Root());
    SelectAlpha();
    ASSERT_TRUE(HasPicture());
    Find<QLineEdit>("txtNewIconsetDBName").setText("My Set");
    Click("cmdDoneName");
    EXPECT_FALSE(HasPicture());
    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_FALSE(IconsetChanged) << "there is no icon to be marked";
}

TEST_F(Documents, OnPurposeANewOneIsAsChangedAsTheOldOneWas)
{
    OpenAlpha();
    IconsetChanged = true;
    ask.Answer(QMessageBox::No);

    MakeNew("My Set");

    EXPECT_TRUE(IconsetChanged);
}

TEST_F(Documents, NewAsksNothingWithoutADocument)
{
    IconsetChanged = true;

    Entry("mnuNew").trigger();

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_TRUE(HasWindow("frmNewIconset"));
}

TEST_F(Documents, AnOpenedOneClosesTheWindowForANewOne)
{
    Entry("mnuNew").trigger();

    OpenAlpha();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_FALSE(HasWindow("frmNewIconset"));
    EXPECT_EQ(Nodes().Root()->text(0), "Set");
}

TEST_F(Documents, OnPurposeTheSelectionSurvivesALoadButNoCommandForItDoes)
{
    OpenAlpha();
    SelectAlpha();
    OpenAlpha("again.prc");
    EXPECT_EQ(SelectedNode, "Alpha (Large Icon)");
    EXPECT_EQ(LastClickedText, "Alpha (Large Icon)");
    EXPECT_EQ(HighResPath + LowResPath, "");

    QTest::keyClick(&Nodes(), Qt::Key_R);

    EXPECT_EQ(IconTable[0].IconState, 1);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(Find<QPushButton>("cmdRemoveIcon").isEnabled());
    EXPECT_FALSE(Find<QPushButton>("cmdAssignApp").isEnabled());
}

TEST_F(Documents, ANewOneIsNotSavedOnTheStrengthOfTheOldOnesIcons)
{
    OpenAlpha();
    MakeNew("My Set");
    ask.Answer(QMessageBox::Ok);

    Entry("mnuSave").trigger();

    EXPECT_EQ(Messages(), QStringList("Can't save. The iconset doesn't contain any icons."));
}

TEST_F(Documents, TheNameWindowSaysWhatItWants)
{
    Entry("mnuNew").trigger();

    auto& window = Find<QDialog>("frmNewIconset");
    EXPECT_EQ(window.windowTitle(), "Create New Iconset");
    EXPECT_FALSE(window.isModal());
    EXPECT_EQ(Find<QLineEdit>("txtNewIconsetDBName").maxLength(), 31);
    QStringList texts;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->isVisible())
            texts << label->text();
    EXPECT_EQ(texts,
        QStringList({ "Please enter the Palm database name for the new iconset.",
            "(This is the name that will appear on your PDA, not the Windows filename.)" }));
}

TEST_F(Documents, ANameThatBeginsWithADigitCannotBeTypedButPasted)
{
    Entry("mnuNew").trigger();
    auto& edit = Find<QLineEdit>("txtNewIconsetDBName");

    QTest::keyClicks(&edit, "1 @A1");
    EXPECT_EQ(edit.text(), "A1");

    edit.clear();
    QApplication::clipboard()->setText("2nd");
    edit.paste();
    EXPECT_EQ(edit.text(), "2nd");
}

TEST_F(Documents, OnPurposeAnEmptyNameMakesNoRootButCountsAsLoaded)
{
    MakeNew("");

    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_TRUE(FileLoaded);
    EXPECT_FALSE(Entry("mnuSave").isEnabled());
    EXPECT_FALSE(HasWindow("frmNewIconset"));
}

TEST_F(Documents, AnEmptyNameLeavesTheDocumentThatIsOpen)
{
    OpenAlpha();

    MakeNew("");

    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(FileName, program.File("set.prc"));
    EXPECT_EQ(IconTable[0].IconLabel, "Alpha (Large Icon)");
}

TEST_F(Documents, AnEmptyNameDoesNotBringBackAHalfReadFile)
{
    OpenAlpha();
    FileLoaded = false; // as a load leaves it that fails on its way, the rows so far in the table
    const Bytes before = ReadBytes(FileName);

    MakeNew("");
    ask.Answer(QMessageBox::Ok);
    Entry("mnuSave").trigger();

    EXPECT_EQ(Messages().back(), "Can't save. The iconset doesn't contain any icons.");
    EXPECT_EQ(ReadBytes(program.File("set.prc")), before);
    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_EQ(FileName, "");
}

TEST_F(Documents, WithoutARootThereIsNoNameToChange)
{
    OpenAlpha();
    Nodes().setCurrentItem(Nodes().Root());
    FileLoaded = false; // as a load leaves it that fails on its way
    ASSERT_TRUE(CanUse("cmdChangeDataBaseName"));

    MakeNew("");
    EXPECT_FALSE(CanUse("cmdChangeDataBaseName"));
    Nodes().EditRoot();

    EXPECT_EQ(Nodes().Root(), nullptr);
}

TEST_F(Documents, AFileThatIsNoIconsetLeavesNoNameToChange)
{
    OpenAlpha();
    PromptColorDepth = true;
    Entry("mnuOpen").trigger();
    Nodes().setCurrentItem(Nodes().Root()); // while the window for the depth stands
    ASSERT_TRUE(CanUse("cmdChangeDataBaseName"));

    ask.Choose(Written(Bytes(20, 1), "short.prc"));
    ask.Answer(QMessageBox::Ok);
    Click("cmdDoneCDepth");

    EXPECT_EQ(Messages(), QStringList("Error! Invalid file!"));
    EXPECT_FALSE(CanUse("cmdChangeDataBaseName"));
}

TEST_F(Documents, EnterInTheEmptyNameBoxDoesNothing)
{
    Entry("mnuNew").trigger();
    auto& edit = Find<QLineEdit>("txtNewIconsetDBName");

    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(Find<QDialog>("frmNewIconset").isVisible());
    EXPECT_FALSE(FileLoaded);

    QTest::keyClicks(&edit, "Set");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(DatabaseName, "Set");
}

TEST_F(Documents, EscapeInTheEmptyNameBoxGivesUp)
{
    Entry("mnuNew").trigger();

    QTest::keyClick(&Find<QLineEdit>("txtNewIconsetDBName"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_FALSE(HasWindow("frmNewIconset"));
    EXPECT_FALSE(FileLoaded);
}

TEST_F(Documents, CancellingTheNameKeepsTheOldDocument)
{
    OpenAlpha();
    SelectAlpha();
    Entry("mnuNew").trigger();
    Click("cmdCancelName");

    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_TRUE(FileLoaded);
    EXPECT_EQ(FileName, program.File("set.prc"));
    EXPECT_FALSE(Find<QPushButton>("cmdRemoveIcon").isEnabled());
}

TEST_F(Documents, NewAsksAboutAChangedDocumentAndOnPurposeYesSavesNothing)
{
    OpenAlpha();
    IconsetChanged = true;
    for (const auto answer : { QMessageBox::Yes, QMessageBox::Cancel }) {
        ask.Answer(answer);
        Entry("mnuNew").trigger();
        EXPECT_FALSE(HasWindow("frmNewIconset"));
    }
    ask.Answer(QMessageBox::No);
    Entry("mnuNew").trigger();

    EXPECT_TRUE(HasWindow("frmNewIconset"));
    const Box& box = ask.shown.back();
    EXPECT_EQ(box.text, "The current iconset may have been changed.\n\nSave the current iconset?");
    EXPECT_EQ(box.title, "Save Changes?");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_FALSE(FileExists(program.File("set.prc.bak")));
}

TEST_F(Documents, OpenAsksAboutAChangedDocumentWithPictures)
{
    OpenAlpha();
    IconsetChanged = true;

    ask.Answer(QMessageBox::Yes);
    ask.Answer(QMessageBox::Ok);
    Entry("mnuOpen").trigger();
    EXPECT_EQ(ask.shown.back().text, "Not in this version :-( ");

    ask.Answer(QMessageBox::Cancel);
    Entry("mnuOpen").trigger();
    EXPECT_EQ(ask.opened.size(), 1u) << "no file was asked for";

    ask.Answer(QMessageBox::No);
    OpenAlpha("other.prc");
    EXPECT_EQ(FileName, program.File("other.prc"));
}

TEST_F(Documents, OpenAsksNothingWhereNoIconHasAPictureAndNewDoes)
{
    OpenAlpha();
    IconTable[0].LowResFile = "NEW";
    frame->Form().UpdateIconStats();
    IconsetChanged = true;

    ask.CancelDialog();
    Entry("mnuOpen").trigger();
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(FileName, program.File("set.prc"));

    IconsetChanged = true;
    ask.Answer(QMessageBox::Cancel);
    Entry("mnuNew").trigger();
    EXPECT_EQ(ask.shown.size(), 1u);
}

TEST_F(Documents, OpenTakesTheRenamingAndTheSizeLimitsAwayBeforeItAsks)
{
    OpenAlpha();
    SelectAlpha();
    ASSERT_EQ(Find<QLabel>("lblLG_Size").text(), "Max 64 x 44");
    Nodes().setCurrentItem(Nodes().Root());
    ASSERT_TRUE(CanUse("cmdChangeDataBaseName"));
    SelectAlpha();
    IconsetChanged = true;
    ask.Answer(QMessageBox::Cancel, [&] {
        EXPECT_FALSE(CanUse("cmdChangeDataBaseName"));
        EXPECT_EQ(Find<QLabel>("lblLG_Size").text(), "");
        EXPECT_EQ(Find<QLabel>("lblSM_Size").text(), "");
    });

    Entry("mnuOpen").trigger();

    EXPECT_EQ(Nodes().Root()->text(0), "Set") << "Cancel leaves the document";
}

TEST_F(Documents, CloseEmptiesEverything)
{
    OpenAlpha();
    Nodes().setCurrentItem(Nodes().Root());
    SelectAlpha();
    HighResPath = "there";

    Entry("mnuCloseIconset").trigger();

    EXPECT_TRUE(ask.shown.empty()) << "nothing was changed";
    EXPECT_FALSE(FileLoaded);
    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_TRUE(Nodes().isVisible());
    for (const QString name : { "mnuCloseIconset", "mnuSave", "mnuSaveAs", "mnuSaveandInstall",
             "mnuExportTemplate", "mnuRemoveLR", "mnuRemoveHR" })
        EXPECT_FALSE(Entry(name).isEnabled()) << name.toStdString();
    for (const char* name :
        { "cmdChangeDataBaseName", "cmdAddIcon", "cmdRemoveIcon", "cmdAssignApp", "cmdClrDeleted",
            "cmdSaveLG", "cmdSaveSM", "cmdImportLG", "cmdImportSM", "mnuPasteLG", "mnuPasteSM" })
        EXPECT_FALSE(CanUse(name)) << name;
    EXPECT_EQ(IconTable, std::vector<IconRow>(1));
    EXPECT_EQ(BitmapTable.size(), 1u);
    EXPECT_EQ(BitmapTable[0].file, "");
    EXPECT_EQ(Itbl.size(), 1u);
    EXPECT_EQ(FileCashe.size(), 1u);
    EXPECT_EQ(ShareNames.size(), 1u);
    EXPECT_EQ(BitmapRow, 0);
    EXPECT_EQ(HighResPath + LowResPath, "");
    EXPECT_FALSE(LGloaded || SMloaded);
    for (const QString letters : { "LG", "SM" }) {
        EXPECT_EQ(Find<QLabel>("lbl_" + letters + "size").text(), "");
        EXPECT_TRUE(Find<QWidget>("pic" + letters).size().isEmpty());
        EXPECT_FALSE(Find<QLabel>("lblNoTransparent" + letters).isVisible());
        EXPECT_FALSE(Find<QLabel>("lblC_RGB_" + letters).isVisible());
        EXPECT_FALSE(Find<QWidget>("picColSwatch" + letters).isVisible());
    }
    EXPECT_EQ(Status(2), "Palm Database Name = Set") << "until the next load";
    EXPECT_TRUE(FileExists(WorkPath("tAIB3500.bmp"))) << "the working folder is left alone";
}

TEST_F(Documents, CloseAsksAboutAChangedDocument)
{
    OpenAlpha();
    IconsetChanged = true;

    ask.Answer(QMessageBox::Cancel);
    Entry("mnuCloseIconset").trigger();
    EXPECT_TRUE(FileLoaded);

    ask.Answer(QMessageBox::Ok);
    Entry("mnuCloseIconset").trigger();
    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(IconsetChanged);
    const Box& box = ask.shown.back();
    EXPECT_EQ(box.title, "Current Iconset Was Changed!");
    EXPECT_EQ(
        box.text, "The current iconset has been modified.\n\nAre you sure you want to close it?");
    EXPECT_EQ(box.icon, QMessageBox::Warning);
    EXPECT_EQ(box.buttons, QMessageBox::Ok | QMessageBox::Cancel);
}

} // namespace
} // namespace vypx::test
