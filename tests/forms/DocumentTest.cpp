#include "WindowFixture.h"

#include "document/IconStats.h"
#include "forms/frmSelectCDepth.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace vypx::test {

namespace {

class Documents : public WindowFixture {
protected:
    Documents() { Start(); }

    void OpenAlpha(const std::string& file = "set.prc")
    {
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };
        Open(Written(Iconset{ .name = "Set",
                         .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) },
                             Picture(3500) } }
                         .File(),
            file));
    }
    bool HasWindow(const QString& name) { return frame->findChild<QDialog*>(name) != nullptr; }
    void Click(const QString& name)
    {
        Find<QAbstractButton>(name).click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void MakeNew(const QString& name)
    {
        Entry("mnuNew").trigger();
        Find<QLineEdit>("txtNewIconsetDBName").setText(name);
        Click("cmdDoneName");
    }
};

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
    EXPECT_TRUE(Entry("mnuCloseIconset").isEnabled());
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(HasWindow("frmNewIconset"));
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
}

TEST_F(Documents, CancellingTheNameKeepsTheOldDocument)
{
    OpenAlpha();
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

    IconsetChanged = true;
    ask.Answer(QMessageBox::Cancel);
    Entry("mnuNew").trigger();
    EXPECT_EQ(ask.shown.size(), 1u);
}

TEST_F(Documents, CloseEmptiesEverything)
{
    OpenAlpha();
    Nodes().setCurrentItem(Nodes().Root()->child(0));

    Entry("mnuCloseIconset").trigger();

    EXPECT_TRUE(ask.shown.empty()) << "nothing was changed";
    EXPECT_FALSE(FileLoaded);
    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_TRUE(Nodes().isVisible());
    for (const QString name : { "mnuCloseIconset", "mnuSave", "mnuSaveAs" })
        EXPECT_FALSE(Entry(name).isEnabled()) << name.toStdString();
    EXPECT_FALSE(Find<QPushButton>("cmdRemoveIcon").isEnabled());
    EXPECT_EQ(IconTable, std::vector<IconRow>(1));
    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "");
    EXPECT_TRUE(Find<QWidget>("picSM").size().isEmpty());
    EXPECT_FALSE(Find<QLabel>("lblNoTransparentSM").isVisible());
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

/// With the window that asks for the depth.
class Depths : public Documents {
protected:
    Depths() { PromptColorDepth = true; }
};

TEST_F(Depths, TheWindowSaysWhatItIsAbout)
{
    Entry("mnuNew").trigger();

    EXPECT_EQ(Find<QDialog>("frmSelectCDepth").windowTitle(), "Select Target Color Depth");
    const std::pair<const char*, const char*> labels[] = {
        { "Label1", "Please Select the Color Depth (number of colors) for this project." },
        { "Label2", "Icons will be displayed, and saved at the color depth you select." },
        { "Label3",
            "Your choice should be based on the number of colors your PDA is cabable of "
            "displaying." },
        { "Label4",
            "If you're unsure about this setting, please refer to the owner's manual for your "
            "PDA." },
        { "Label5", "default color depth in under the program setup menu." },
        { "Label6", "You can skip having to make this choice each time, by setting a" },
        { "lblCDwarn1",
            "NOTE: Any icons viewed, or created that have more colors than your selection," },
        { "lblCDwarn2",
            "will have their color depths automatically reduced. This may result in visible "
            "(and" },
        { "lblCDwarn3",
            "possibly undesirable) changes in their appearance. Please refer to the Pixelworks" },
        { "lblCDwarn4", "help for tips on how to minimize the effects of color reduction." },
    };
    for (const auto& [name, text] : labels)
        EXPECT_EQ(Find<QLabel>(name).text(), text);
    const std::pair<const char*, const char*> options[] = {
        { "opt4Bit", "4-Bit (16 Color Grayscale)" },
        { "opt8Bit", "8-Bit (256 Colors)" },
        { "opt16Bit", "16-bit (65000 Colors)" },
        { "optBothRes", "Both high and low res icons" },
        { "optLowResOnly", "Low Res Only   --> (Remove existing high res icons if opening file.)" },
        { "optHighResOnly", "High Res Only  --> (Remove existing low res icons if opening file.)" },
    };
    for (const auto& [name, text] : options)
        EXPECT_EQ(Find<QRadioButton>(name).text(), text);
    EXPECT_EQ(Find<QGroupBox>("Frame1").title(), "Color Depth");
    EXPECT_EQ(Find<QGroupBox>("Frame2").title(), "Resolution");
}

TEST_F(Depths, NewGoesOnToTheName)
{
    Entry("mnuNew").trigger();
    EXPECT_FALSE(HasWindow("frmNewIconset"));

    Click("opt8Bit");
    Click("cmdDoneCDepth");

    EXPECT_TRUE(HasWindow("frmNewIconset"));
    EXPECT_FALSE(HasWindow("frmSelectCDepth"));
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "8-Bit");
}

TEST_F(Depths, OpenGoesOnToTheFile)
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };
    const QString path = Written(Iconset{ .name = "Deep", .resources = { Picture(3500) } }.File());
    Entry("mnuOpen").trigger();
    EXPECT_TRUE(ask.opened.empty());

    ask.Choose(path);
    Click("cmdDoneCDepth");

    EXPECT_EQ(Nodes().Root()->text(0), "Deep");
    EXPECT_FALSE(HasWindow("frmSelectCDepth"));
}

TEST_F(Depths, ClosingTheWindowByItsFrameGivesTheCommandUp)
{
    Entry("mnuOpen").trigger();

    Find<QDialog>("frmSelectCDepth").close();

    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(Depths, LowerDepthsWarn)
{
    Entry("mnuNew").trigger();
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());

    Click("opt4Bit");
    EXPECT_EQ(DefaultColorDepth, "4-Bit");
    EXPECT_TRUE(Find<QLabel>("lblCDwarn1").isVisible());
    EXPECT_TRUE(Find<QLabel>("lblCDwarn4").isVisible());

    Click("opt16Bit");
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());
}

TEST_F(Depths, TheDepthOfTheSettingsIsChosenAndAnyOtherIs16Bit)
{
    const std::tuple<const char*, const char*, bool> cases[] = { { "4-Bit", "opt4Bit", true },
        { "8-Bit", "opt8Bit", true }, { "16-Bit", "opt16Bit", false },
        { "5-Bit", "opt16Bit", false } };
    for (const auto& [depth, option, warns] : cases) {
        DefaultColorDepth = depth;
        Entry("mnuNew").trigger();

        EXPECT_TRUE(Find<QRadioButton>(option).isChecked()) << depth;
        for (const char* line : { "lblCDwarn1", "lblCDwarn2", "lblCDwarn3", "lblCDwarn4" })
            EXPECT_EQ(Find<QLabel>(line).isVisible(), warns) << depth;
        EXPECT_EQ(DefaultColorDepth, depth) << "nothing was clicked";

        Find<QDialog>("frmSelectCDepth").close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Depths, HasItsOwnColourBehindEverything)
{
    Entry("mnuNew").trigger();

    const QImage seen = Find<QDialog>("frmSelectCDepth").grab().toImage();
    EXPECT_EQ(seen.pixelColor(2, 2), QColor(224, 223, 227));
    const QPoint inFrame = Find<QGroupBox>("Frame2").geometry().bottomRight() - QPoint(6, 6);
    EXPECT_EQ(seen.pixelColor(inFrame), QColor(224, 223, 227));
}

TEST_F(Depths, EachResolutionShowsItsFramesAndItsMark)
{
    const std::tuple<const char*, const char*, bool, bool> cases[] = {
        { "optHighResOnly", "mnuHideLowRes", true, false },
        { "optLowResOnly", "mnuHideHighRes", false, true },
        { "optBothRes", "mnuShowBoth", true, true },
    };
    Entry("mnuNew").trigger();
    for (const auto& [option, mark, large, small] : cases) {
        Click(option);

        EXPECT_EQ(HighResOnly, large && !small) << option;
        EXPECT_EQ(LowResOnly, small && !large) << option;
        EXPECT_EQ(Find<QWidget>("frameLG").isVisible(), large) << option;
        EXPECT_EQ(Find<QWidget>("frameSM").isVisible(), small) << option;
        for (const char* entry : { "mnuShowBoth", "mnuHideLowRes", "mnuHideHighRes" })
            EXPECT_EQ(Entry(entry).isChecked(), entry == std::string_view(mark)) << option;
    }
}

TEST_F(Depths, EscapeGivesTheCommandUpAndTheNextOneStartsAfresh)
{
    Entry("mnuOpen").trigger();
    QTest::keyClick(&Find<QDialog>("frmSelectCDepth"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_FALSE(HasWindow("frmSelectCDepth"));
    EXPECT_TRUE(ask.opened.empty());

    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    EXPECT_TRUE(HasWindow("frmNewIconset"));
    EXPECT_TRUE(ask.opened.empty()) << "the command that was given up stays so";
}

TEST_F(Depths, TheResolutionTakesEffectAtTheClickAndAgainAtTheEnd)
{
    Entry("mnuNew").trigger();
    Click("optHighResOnly");
    EXPECT_TRUE(HighResOnly && !LowResOnly);
    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());

    Entry("mnuShowBoth").trigger();
    Click("cmdDoneCDepth");
    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());
}

} // namespace
} // namespace vypx::test
