#include "WindowFixture.h"

#include "document/SettingsFile.h"
#include "forms/common/UserStore.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSettings>

namespace vypx::test {

namespace {

class Options : public WindowFixture {
protected:
    Options()
    {
        Start();
        PromptColorDepth = true;
        Entry("mnuOptions").trigger();
    }

    QAbstractButton& Box(const QString& name) { return Find<QAbstractButton>(name); }
    void Click(const QString& name) { Box(name).click(); }
    void Done()
    {
        Click("cmdDoneOptions");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(Options, CaptionsStandLetterForLetter)
{
    const std::pair<const char*, const char*> captions[] = {
        { "chkRemeberDirs", "Remember Last Used Directories" },
        { "chkCreateLowRes",
            "Automatically create low-res icon from high res icon. (Only if low-res icon is "
            "empty.)" },
        { "chkCreateBak", "Create Backup (.bak) Copy of Iconset on Save" },
        { "chkKeepUnknown", "Keep \"Unknown\" Icons When Saving" },
        { "chkWarnOverwrite", "Warn About Overwriting Files on Save" },
        { "chkShowSplash", "Show Splash Screen at Startup" },
        { "chkShowTips", "Show Tip of the day at startup" },
        { "chkStartupSearch", "Automatically Search for New Palm Apps at Startup" },
        { "chkRememberBackColor", "Remember Preview Background Color" },
        { "chkPromptForCDepth",
            "Prompt for color depth and resolution when opening or creating an iconset" },
        { "optBothRes", "Both High and Low Res Icons" },
        { "optHighResOnly", "High Res Icons Only on New and Opened Files" },
        { "optLowResOnly", "Low Res Icons Only on New and Opened Files" },
        { "optPalm35", "Compile for Palm OS 3.5 or higher (Scanlines, RLE Compression)" },
        { "optPalm40", "Compile for Palm OS 4.0 or higher (Packbits, Scanlines, RLE Compression)" },
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(Box(name).text(), caption);

    EXPECT_EQ(Find<QDialog>("frmProgOptions").windowTitle(), "Program Options");
    EXPECT_EQ(Find<QGroupBox>("frameCD").title(), "Default Color Depth");
    EXPECT_EQ(Find<QLabel>("lblCantChange").text(),
        "The color depth can' t be changed while a file is loaded.");
    const char* const warning[] = {
        "NOTE: Any icons viewed, or created that have more colors than than your selection,",
        "will have their color depths automatically reduced. This may result in visible (and",
        "possibly undesirable) changes in their appearance. Please refer to the Pixelworks",
        "help for tips on how to minimize the effects of color reduction.",
    };
    for (int line = 0; line < 4; ++line)
        EXPECT_EQ(Find<QLabel>("lblCDwarn" + QString::number(line + 1)).text(), warning[line]);
    QStringList texts;
    for (const QLabel* label : Find<QDialog>("frmProgOptions").findChildren<QLabel*>())
        texts << label->text();
    for (const QGroupBox* box : Find<QDialog>("frmProgOptions").findChildren<QGroupBox*>())
        texts << box->title();
    for (const char* fixed : { "General Options", "Image Compression Options",
             "If you're unsure which version of Palm OS your PDA uses, you should select:",
             "\"Compile for Palm OS 3.5 or higher\"", "Version String", "Palm User ID" })
        EXPECT_TRUE(texts.contains(fixed)) << fixed;
}

TEST_F(Options, OpensAtItsPlaceAndDoesNotBlock)
{
    EXPECT_EQ(Find<QDialog>("frmProgOptions").pos(), QPoint(20, 20)) << "300 twips";
    EXPECT_FALSE(Find<QDialog>("frmProgOptions").isModal());
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(Options, EveryBoxSetsItsVariableAtOnce)
{
    const std::pair<const char*, bool*> boxes[] = {
        { "chkRemeberDirs", &UseLastDirs },
        { "chkCreateLowRes", &AutoCreateLowRes },
        { "chkCreateBak", &CreateBackup },
        { "chkKeepUnknown", &KeepUnknown },
        { "chkWarnOverwrite", &WarnOverwrite },
        { "chkShowSplash", &ShowSplash },
        { "chkStartupSearch", &StartupSearch },
        { "chkRememberBackColor", &RememberPreviewColor },
        { "chkPromptForCDepth", &PromptColorDepth },
    };
    for (const auto& [name, variable] : boxes) {
        const bool before = *variable;
        EXPECT_EQ(Box(name).isChecked(), before) << name;
        Click(name);
        EXPECT_EQ(*variable, !before) << name;
    }
    Click("optPalm40");
    EXPECT_TRUE(UsePackbits);
    Click("optPalm35");
    EXPECT_FALSE(UsePackbits);
}

TEST_F(Options, TheTipsBoxWritesTheUsersSettingAtOnce)
{
    QSettings("VY Pixelworks", "VY Pixelworks").clear();
    EXPECT_TRUE(ShowTipsAtStartup()) << "the default";

    Click("chkShowTips");
    EXPECT_TRUE(ShowTipsAtStartup());

    Click("chkShowTips");
    EXPECT_FALSE(ShowTipsAtStartup());
}

TEST_F(Options, TheResolutionShowsPanelsAndCheckMarks)
{
    Click("optHighResOnly");
    EXPECT_TRUE(HighResOnly && !LowResOnly);
    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());
    EXPECT_FALSE(Entry("mnuShowBoth").isChecked());

    Click("optLowResOnly");
    EXPECT_TRUE(LowResOnly && !HighResOnly);
    EXPECT_FALSE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Entry("mnuHideHighRes").isChecked());

    Click("optBothRes");
    EXPECT_FALSE(LowResOnly || HighResOnly);
    EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("frameSM").isVisible());
    EXPECT_TRUE(Entry("mnuShowBoth").isChecked());
}

TEST_F(Options, LowerDepthsComeWithAWarning)
{
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());

    Click("opt4Bit");
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
    EXPECT_TRUE(Find<QLabel>("lblCDwarn4").isVisible());

    Click("opt8Bit");
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);
    EXPECT_TRUE(Find<QLabel>("lblCDwarn1").isVisible());

    Click("opt16Bit");
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());
}

TEST_F(Options, AnOpenIconsetLocksTheDepthAndNothingElse)
{
    Click("opt8Bit");
    PromptColorDepth = false;
    Open(Written(Iconset{ .resources = { Picture(3500) } }.File()));

    for (const QString name : { "opt16Bit", "opt8Bit", "opt4Bit", "chkPromptForCDepth" })
        EXPECT_FALSE(Box(name).isEnabled()) << name.toStdString();
    EXPECT_FALSE(Find<QGroupBox>("frameCD").isEnabled());
    EXPECT_TRUE(Find<QLabel>("lblCantChange").isVisible());
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());
    EXPECT_TRUE(Box("chkCreateBak").isEnabled());
    EXPECT_TRUE(Box("optHighResOnly").isEnabled());
    EXPECT_TRUE(Box("optPalm40").isEnabled());
}

TEST_F(Options, DoneTakesTheTextsSavesAndCloses)
{
    Find<QLineEdit>("txtVstring").setText(" 4.0  ");
    Find<QLineEdit>("txtPalmUserID").setText("  Jo Palm ");
    Click("opt8Bit");

    Done();

    EXPECT_EQ(VersionString, " 4.0") << "only the blanks at its end go";
    EXPECT_EQ(PalmUserID, "Jo Palm");
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "8-Bit");
    EXPECT_EQ(frame->findChild<QDialog*>("frmProgOptions"), nullptr);
    EXPECT_NE(Settings().find("Palm User ID=Jo Palm\n"), std::string::npos);
    EXPECT_NE(Settings().find("User Color Depth=8-Bit\n"), std::string::npos);
}

TEST_F(Options, IsLockedAtOnceWhereAnIconsetIsOpen)
{
    Done();
    PromptColorDepth = false;
    LowResOnly = true;
    DefaultColorDepth = ColorDepth::Bits8;
    Open(Written(Iconset{ .resources = { Picture(3500) } }.File()));

    Entry("mnuOptions").trigger();

    EXPECT_FALSE(Box("opt8Bit").isEnabled());
    EXPECT_TRUE(Box("opt8Bit").isChecked());
    EXPECT_TRUE(Box("optLowResOnly").isChecked());
    EXPECT_TRUE(Find<QLabel>("lblCantChange").isVisible());
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());
}

TEST_F(Options, ThereIsNoCancel)
{
    Find<QLineEdit>("txtPalmUserID").setText("Jo");
    Find<QLineEdit>("txtVstring").setText("5.5");
    Click("opt4Bit");

    QTest::keyClick(&Find<QDialog>("frmProgOptions"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_EQ(frame->findChild<QDialog*>("frmProgOptions"), nullptr);
    EXPECT_EQ(PalmUserID + " " + VersionString, "Jo 5.5");
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "4-Bit");
    EXPECT_NE(Settings().find("Palm User ID=Jo\n"), std::string::npos);
}

TEST_F(Options, AnExitTakesTheTextsToo)
{
    Find<QLineEdit>("txtPalmUserID").setText("Jo");

    Entry("mnuExit").trigger();

    EXPECT_NE(Settings().find("Palm User ID=Jo\n"), std::string::npos);
}

TEST_F(Options, LettersThatTheFileCannotHoldCannotBeTyped)
{
    for (const char* name : { "txtPalmUserID", "txtVstring" }) {
        auto& edit = Find<QLineEdit>(name);
        edit.clear();
        for (const char* letter : { "\u0141", "u", "\u00E9" })
            edit.insert(QString::fromUtf8(letter));
        EXPECT_EQ(edit.text(), QString::fromUtf8("u\u00E9")) << name;
    }
}

TEST_F(Options, HasItsOwnColourBehindEverything)
{
    QCoreApplication::processEvents(); // which ends the layout
    const QImage seen = Find<QDialog>("frmProgOptions").grab().toImage();
    EXPECT_EQ(seen.pixelColor(2, 2), QColor(224, 223, 227));
    const auto& depths = Find<QGroupBox>("frameCD");
    const QPoint inFrame =
        depths.mapTo(depths.window(), depths.rect().bottomRight() - QPoint(6, 6));
    EXPECT_EQ(seen.pixelColor(inFrame), QColor(224, 223, 227));
}

/// While the window that asks for the depth stands as well.
class OptionsAndDepth : public Options {
protected:
    OptionsAndDepth()
    {
        Entry("mnuNew").trigger();
        depth = &Find<QDialog>("frmSelectCDepth");
    }

    bool IsChosen(const QString& name)
    {
        return Find<QDialog>("frmProgOptions").findChild<QRadioButton*>(name)->isChecked();
    }
    void ClickThere(const QString& name) { depth->findChild<QRadioButton*>(name)->click(); }

    QDialog* depth = nullptr;
};

TEST_F(OptionsAndDepth, ShowWhatIsChosenThereAndTakenBack)
{
    ClickThere("opt4Bit");
    ClickThere("optLowResOnly");
    EXPECT_TRUE(IsChosen("opt4Bit"));
    EXPECT_TRUE(IsChosen("optLowResOnly"));

    depth->close();
    EXPECT_TRUE(IsChosen("opt16Bit"));
    EXPECT_TRUE(IsChosen("optBothRes"));
}

TEST_F(OptionsAndDepth, WhatIsChosenHereMeanwhileStays)
{
    ClickThere("opt4Bit");
    Find<QDialog>("frmProgOptions").findChild<QRadioButton*>("opt8Bit")->click();

    depth->close();

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);
}

TEST_F(OptionsAndDepth, WhatIsTakenBackIsNotSavedAtTheExit)
{
    ClickThere("opt4Bit");

    Entry("mnuExit").trigger();

    EXPECT_NE(Settings().find("User Color Depth=16-Bit\n"), std::string::npos);
}

TEST_F(Options, AnEmptyVersionStringBecomesTheDefault)
{
    Find<QLineEdit>("txtVstring").setText("   ");

    Done();

    EXPECT_EQ(VersionString, "3.20");
}

TEST_F(Options, AnyOtherDepthInTheFileShowsAs16Bit)
{
    Done();
    SetDefaultColorDepth("24-Bit");

    Entry("mnuOptions").trigger();

    EXPECT_TRUE(Box("opt16Bit").isChecked());
    EXPECT_EQ(DefaultColorDepthWord(), "24-Bit") << "until another one is chosen";
}

TEST_F(Options, EveryOptionSurvivesTheNextStart)
{
    const QStringList names{ "chkRemeberDirs", "chkCreateLowRes", "chkCreateBak", "chkKeepUnknown",
        "chkWarnOverwrite", "chkShowSplash", "chkStartupSearch", "chkRememberBackColor",
        "chkPromptForCDepth", "optHighResOnly", "opt4Bit", "optPalm40" };
    for (const QString& name : names)
        Click(name);
    Find<QLineEdit>("txtVstring").setText("9.9");
    Find<QLineEdit>("txtPalmUserID").setText("Someone");
    std::map<QString, bool> chosen;
    for (const QString& name : names)
        chosen[name] = Box(name).isChecked();
    Done();
    Entry("mnuExit").trigger();
    frame.reset();

    SetDefaultSettings();
    Start();
    ReadSettings(); // with what the fixture changes for other tests
    Entry("mnuOptions").trigger();

    for (const auto& [name, on] : chosen)
        EXPECT_EQ(Box(name).isChecked(), on) << name.toStdString();
    EXPECT_EQ(Find<QLineEdit>("txtVstring").text(), "9.9");
    EXPECT_EQ(Find<QLineEdit>("txtPalmUserID").text(), "Someone");
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());
}

class SettingsAtStart : public WindowFixture { };

TEST_F(SettingsAtStart, BadNumbersAreNamedInOneBox)
{
    WriteSettings("[PreviewBackColor]\nRed=abc\n[Main Window Size]\nWidth=99999\n");
    ask.Answer(QMessageBox::Ok);

    Start();

    ASSERT_EQ(ask.shown.size(), 1u);
    EXPECT_TRUE(ask.shown[0].text.contains("PreviewBackColor: Red"));
    EXPECT_TRUE(ask.shown[0].text.contains("Main Window Size: Width"));
    EXPECT_EQ(frame->width(), 933) << "14000 twips";
}

TEST_F(SettingsAtStart, AFileOfRandomBytesIsNoObstacle)
{
    std::string bytes;
    for (unsigned i = 0; i < 5000; ++i)
        bytes += static_cast<char>(i * 2654435761u >> 24);
    WriteSettings(bytes);

    Start();
    Open(Written(Iconset{ .resources = { Picture(3500) } }.File()));

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_TRUE(FileLoaded);
}

TEST_F(SettingsAtStart, ANegativeSizeStillShowsAWindow)
{
    WriteSettings("[Main Window Size]\nWidth=-500\nHeight=0\n");

    Start();

    EXPECT_GE(frame->width(), 200);
    EXPECT_GE(frame->height(), 200);
}

TEST_F(SettingsAtStart, TheRememberedColourIsThePanels)
{
    WriteSettings("[PreviewBackColor]\nRemember=True\nRed=10\nGreen=20\nBlue=30\n");

    Start();

    EXPECT_EQ(Find<QWidget>("picLGfrm").grab().toImage().pixelColor(5, 5), QColor(10, 20, 30));
}

TEST_F(SettingsAtStart, AColourThatIsNotRememberedIsBlue)
{
    WriteSettings("[PreviewBackColor]\nRemember=False\nRed=10\nGreen=20\nBlue=30\n");

    Start();

    EXPECT_EQ(Find<QWidget>("picSMfrm").grab().toImage().pixelColor(5, 5), QColor(0, 0, 255));
}

TEST_F(SettingsAtStart, AnOpenedFilesFolderIsSavedAtOnce)
{
    Start();

    Open(Written(Iconset{}.File()));

    EXPECT_NE(Settings().find("Last Directory for Iconset Load=" + program.Path() + "\n"),
        std::string::npos);
}

TEST_F(SettingsAtStart, TheExitSavesTheWindowsSize)
{
    Start();
    frame->resize(900, 700);

    Entry("mnuExit").trigger();

    EXPECT_NE(
        Settings().find("[Main Window Size]\nWidth=13500\nHeight=10500\n"), std::string::npos);
}

TEST_F(Options, TheWindowFitsTheScreenWithItsButtonInSight)
{
    auto& window = Find<QDialog>("frmProgOptions");
    const QRect screen = window.screen()->availableGeometry();

    EXPECT_TRUE(screen.contains(window.frameGeometry()))
        << window.width() << " x " << window.height();
    for (const int height : { 500, 300 }) {
        window.resize(window.width(), height);
        QCoreApplication::processEvents();
        auto& done = Find<QPushButton>("cmdDoneOptions");
        EXPECT_TRUE(window.rect().contains(QRect(done.mapTo(&window, QPoint()), done.size())));
    }
    EXPECT_EQ(window.height(), 300) << "the options scroll";
}

TEST_F(Options, ALongCaptionTakesMoreLinesWhereItsWidthAsksForThem)
{
    auto& box = Box("chkCreateLowRes");
    const int oneLine = box.heightForWidth(2000);

    EXPECT_GE(box.heightForWidth(250), 2 * oneLine - 8);
    QTest::mouseClick(&box, Qt::LeftButton, {}, box.rect().bottomLeft() + QPoint(40, -3));
    EXPECT_FALSE(AutoCreateLowRes) << "all of its lines take a click";
}

TEST_F(Options, TextsHoldWhatTheirKeysCanHold)
{
    const QString longest(254, 'x');
    for (const char* name : { "txtVstring", "txtPalmUserID" }) {
        auto& text = Find<QLineEdit>(name);
        text.clear();
        text.insert(longest + "y");
        EXPECT_EQ(text.text(), longest);
    }
    Done();

    SetDefaultSettings();
    ReadSettings();

    EXPECT_EQ(VersionString, longest.toStdString());
    EXPECT_EQ(PalmUserID, longest.toStdString());
}

} // namespace
} // namespace vypx::test
