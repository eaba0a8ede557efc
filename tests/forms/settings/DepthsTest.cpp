#include "DocumentFixture.h"

#include "forms/settings/frmSelectCDepth.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace vypx::test {

namespace {

/// With the window that asks for the depth.
class Depths : public Documents {
protected:
    Depths() { PromptColorDepth = true; }

    void OpenAlphaBefore()
    {
        PromptColorDepth = false;
        OpenAlpha();
        PromptColorDepth = true;
    }
};

TEST_F(Depths, TheWindowSaysWhatItIsAbout)
{
    Entry("mnuNew").trigger();

    EXPECT_EQ(Find<QDialog>("frmSelectCDepth").windowTitle(), "Select Target Color Depth");
    EXPECT_FALSE(Find<QDialog>("frmSelectCDepth").isModal());
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
    OpenAlphaBefore();
    for (const char* command : { "mnuOpen", "mnuNew" }) {
        Entry(command).trigger();
        Click("opt4Bit");
        Click("optLowResOnly");

        Find<QDialog>("frmSelectCDepth").close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        EXPECT_FALSE(HasWindow("frmSelectCDepth"));
        EXPECT_FALSE(HasWindow("frmNewIconset"));
        EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16) << "the open document keeps its depth";
        EXPECT_FALSE(LowResOnly);
        EXPECT_TRUE(Find<QWidget>("frameLG").isVisible());
        EXPECT_TRUE(Entry("mnuShowBoth").isChecked());
        EXPECT_EQ(Nodes().Root()->text(0), "Set");
    }
    EXPECT_EQ(ask.opened.size(), 1u) << "the first one only";
}

TEST_F(Depths, LowerDepthsWarn)
{
    Entry("mnuNew").trigger();
    EXPECT_FALSE(Find<QLabel>("lblCDwarn1").isVisible());

    const std::tuple<const char*, const char*, bool> clicks[] = { { "opt4Bit", "4-Bit", true },
        { "opt16Bit", "16-Bit", false }, { "opt8Bit", "8-Bit", true } };
    for (const auto& [option, depth, warns] : clicks) {
        Click(option);

        EXPECT_EQ(DefaultColorDepthWord(), depth);
        for (const char* line : { "lblCDwarn1", "lblCDwarn2", "lblCDwarn3", "lblCDwarn4" })
            EXPECT_EQ(Find<QLabel>(line).isVisible(), warns) << depth;
    }
}

TEST_F(Depths, TheDepthOfTheSettingsIsChosenAndAnyOtherIs16Bit)
{
    const std::tuple<const char*, const char*, bool> cases[] = { { "4-Bit", "opt4Bit", true },
        { "8-Bit", "opt8Bit", true }, { "16-Bit", "opt16Bit", false },
        { "5-Bit", "opt16Bit", false } };
    for (const auto& [depth, option, warns] : cases) {
        SetDefaultColorDepth(depth);
        Entry("mnuNew").trigger();

        EXPECT_TRUE(Find<QRadioButton>(option).isChecked()) << depth;
        EXPECT_EQ(Find<QDialog>("frmSelectCDepth").focusWidget(), &Find<QRadioButton>(option));
        for (const char* line : { "lblCDwarn1", "lblCDwarn2", "lblCDwarn3", "lblCDwarn4" })
            EXPECT_EQ(Find<QLabel>(line).isVisible(), warns) << depth;
        EXPECT_EQ(DefaultColorDepthWord(), depth) << "nothing was clicked";

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
    Entry("mnuHideLowRes").trigger();
    Entry("mnuOpen").trigger();
    Click("opt8Bit");
    QTest::keyClick(&Find<QDialog>("frmSelectCDepth"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_FALSE(HasWindow("frmSelectCDepth"));
    EXPECT_TRUE(ask.opened.empty());
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked()) << "no resolution was chosen";
    EXPECT_FALSE(Find<QWidget>("frameSM").isVisible());

    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    EXPECT_TRUE(HasWindow("frmNewIconset"));
    EXPECT_TRUE(ask.opened.empty()) << "the command that was given up stays so";
}

TEST_F(Depths, WhatTheOptionsChoseSinceStands)
{
    Entry("mnuOptions").trigger();
    Entry("mnuNew").trigger();
    const auto inDepths = [&](const char* option) {
        Find<QDialog>("frmSelectCDepth").findChild<QAbstractButton*>(option)->click();
    };
    const auto inOptions = [&](const char* option) {
        Find<QDialog>("frmProgOptions").findChild<QAbstractButton*>(option)->click();
    };
    const auto isShown = [&](const char* option) {
        return Find<QDialog>("frmSelectCDepth").findChild<QRadioButton*>(option)->isChecked();
    };
    inDepths("opt4Bit");
    inOptions("opt16Bit");
    inOptions("opt8Bit"); // by way of another one
    inOptions("optHighResOnly");
    EXPECT_TRUE(isShown("opt8Bit"));
    EXPECT_TRUE(isShown("optHighResOnly"));
    EXPECT_TRUE(Find<QLabel>("lblCDwarn1").isVisible());
    inDepths("opt8Bit");
    inDepths("opt16Bit");
    inDepths("optLowResOnly");
    inOptions("cmdDoneOptions");
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "16-Bit");

    QTest::keyClick(&Find<QDialog>("frmSelectCDepth"), Qt::Key_Escape);

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);
    EXPECT_TRUE(HighResOnly && !LowResOnly);
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "8-Bit");
    EXPECT_TRUE(Entry("mnuHideLowRes").isChecked());
}

TEST_F(Depths, WhatTheOptionsChoseAgainStands)
{
    Entry("mnuOptions").trigger();
    Entry("mnuNew").trigger();
    Find<QDialog>("frmSelectCDepth").findChild<QAbstractButton*>("opt4Bit")->click();
    for (const char* option : { "opt8Bit", "opt4Bit" })
        Find<QDialog>("frmProgOptions").findChild<QAbstractButton*>(option)->click();

    QTest::keyClick(&Find<QDialog>("frmSelectCDepth"), Qt::Key_Escape);

    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
}

TEST_F(Depths, ADocumentThatBeganKeepsItsDepth)
{
    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    Entry("mnuNew").trigger();
    Click("opt4Bit");
    Click("optHighResOnly");
    Find<QLineEdit>("txtNewIconsetDBName").setText("My Set");
    Click("cmdDoneName");
    EXPECT_EQ(Find<QLabel>("lblTargetCD").text(), "4-Bit");

    QTest::keyClick(&Find<QDialog>("frmSelectCDepth"), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
    EXPECT_TRUE(HighResOnly);

    Entry("mnuNew").trigger();
    Click("opt8Bit");
    PromptColorDepth = false;
    OpenAlpha();
    QTest::keyClick(&Find<QDialog>("frmSelectCDepth"), Qt::Key_Escape);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);
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
