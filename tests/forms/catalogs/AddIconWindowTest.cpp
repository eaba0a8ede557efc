#include "AddIconFixture.h"

namespace vypx::test {

namespace {

class AddIconWindow : public AddIconFixture { };

TEST_F(AddIconWindow, SaysWhatItDoesInAddMode)
{
    OpenAdd();

    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Window()->windowTitle(), "Add New Icon");
    EXPECT_EQ(TextOf("cmdApplyNewIcon"), "Add New Icon(s)");
    for (const char* control : { "ListAddedIcons", "cmdAddtoList", "cmdRmvIcon", "lblIconsToAdd",
             "chkBothSizes", "cmdCancelNewIcon" })
        EXPECT_TRUE(IsSeen(control)) << control;
    EXPECT_FALSE(IsSeen("chkCreateShared"));
    EXPECT_FALSE(CanApply());
    EXPECT_TRUE(IsChosen("optApp") && IsChosen("optLargeIcon"));
    EXPECT_EQ(Offered(), QStringList({ "Gamma", "Delta" })) << "in the catalog's order";
    EXPECT_FALSE(Window()->isModal());
    EXPECT_TRUE(frame->isEnabled());
    EXPECT_FALSE(AddIconAssignMode);
    EXPECT_EQ(Window()->grab().toImage().pixelColor(2, 2), QColor(224, 223, 227));
}

TEST_F(AddIconWindow, SaysWhatItDoesInAssignMode)
{
    OpenAssign(Orphan);

    EXPECT_EQ(Window()->windowTitle(), "Assign App to Orphaned Icon");
    EXPECT_EQ(TextOf("cmdApplyNewIcon"), "Assign App to Icon");
    for (const char* control : { "ListAddedIcons", "cmdAddtoList", "cmdRmvIcon", "lblIconsToAdd",
             "chkBothSizes", "chkCreateShared" })
        EXPECT_FALSE(IsSeen(control)) << control;
    EXPECT_FALSE(CanApply());
    EXPECT_TRUE(AddIconAssignMode);
    EXPECT_FALSE(AddIconChangeMode);
}

TEST_F(AddIconWindow, SaysWhatItDoesInChangeMode)
{
    OpenAssign("Alpha (Large Icon)");

    EXPECT_EQ(Window()->windowTitle(), "Assign App to Icon");
    EXPECT_EQ(TextOf("cmdApplyNewIcon"), "Assign App to Icon");
    for (const char* control :
        { "ListAddedIcons", "cmdAddtoList", "cmdRmvIcon", "lblIconsToAdd", "chkBothSizes" })
        EXPECT_FALSE(IsSeen(control)) << control;
    EXPECT_TRUE(IsSeen("chkCreateShared"));
    EXPECT_FALSE(IsChosen("chkCreateShared"));
    EXPECT_TRUE(AddIconAssignMode);
    EXPECT_FALSE(AddIconChangeMode) << "it serves the window's beginning only";
}

TEST_F(AddIconWindow, BearsTheWordsThatUsersKnow)
{
    OpenAdd();

    EXPECT_EQ(TextOf("optApp"), "Applcation Icons");
    EXPECT_EQ(TextOf("optPalm"), "Palm System Icons");
    EXPECT_EQ(TextOf("optVY"), "Vantry Icons");
    EXPECT_EQ(TextOf("optLargeIcon"), "Large Icons");
    EXPECT_EQ(TextOf("optSmallIcon"), "Small Icons");
    EXPECT_EQ(TextOf("chkCreateShared"), "Create Shared Icon");
    EXPECT_EQ(TextOf("chkBothSizes"), "Both sizes");
    QStringList words;
    for (const QLabel* label : Window()->findChildren<QLabel*>())
        words << label->text();
    for (const QString text : { "Available Icons", "Icons to be added",
             "You can only have one of each icon type per iconset.",
             "If the icon you wish to add isn't shown, ", "make sure it isn't already assigned." })
        EXPECT_TRUE(words.contains(text)) << text.toStdString();
}

TEST_F(AddIconWindow, TheOptionsSayWhatIsOffered)
{
    OpenAdd();

    Choose("optSmallIcon");
    EXPECT_EQ(Offered(), QStringList({ "Beta", "Gamma", "Delta" })) << "Alpha has both";
    Choose("optPalm");
    EXPECT_EQ(Offered(), QStringList({ "Palm Clock", "Palm Mail" }));
    Choose("optVY");
    EXPECT_EQ(Offered(), QStringList("Beam (Small Icon)"));
    Choose("optLargeIcon");
    EXPECT_EQ(Offered(), QStringList({ "Beam (Large Icon)", "Copy (Large Icon)" }));
    EXPECT_FALSE(IsChosen("optApp") || IsChosen("optPalm") || IsChosen("optSmallIcon"));
}

TEST_F(AddIconWindow, AnOptionSelectsNothing)
{
    OpenAdd();
    Pick("Gamma");

    Choose("optSmallIcon");

    EXPECT_TRUE(List().selectedItems().isEmpty());
    Push("cmdAddtoList");
    EXPECT_EQ(Waiting(), QStringList()) << "nothing is current";
}

TEST_F(AddIconWindow, TheSelectedEntriesAreAddedWithTheirSize)
{
    OpenAdd();
    Pick("Gamma");
    Pick("Delta", Qt::ControlModifier);
    Push("cmdAddtoList");
    Choose("optSmallIcon");
    Pick("Beta");
    Pick("Delta", Qt::ShiftModifier);
    Push("cmdAddtoList");
    Choose("optVY");
    Pick("Beam (Small Icon)");
    Push("cmdAddtoList");

    EXPECT_EQ(Waiting(),
        QStringList({ "Gamma (Large Icon)", "Delta (Large Icon)", "Beta (Small Icon)",
            "Gamma (Small Icon)", "Delta (Small Icon)", "Beam (Small Icon)" }));
    EXPECT_EQ(Offered(), QStringList());
    EXPECT_TRUE(CanApply());
    Choose("optApp");
    EXPECT_EQ(Offered(), QStringList()) << "what waits isn't offered";
}

TEST_F(AddIconWindow, KeysSelectSeveralAndEnterAddsThem)
{
    OpenAdd();
    Choose("optSmallIcon");
    Pick("Beta");

    Key("ComboAppListIcon", Qt::Key_Down, Qt::ShiftModifier);
    Key("ComboAppListIcon", Qt::Key_Return);

    EXPECT_EQ(Waiting(), QStringList({ "Beta (Small Icon)", "Gamma (Small Icon)" }));
    EXPECT_EQ(Offered(), QStringList("Delta"));
    EXPECT_TRUE(IsOpen());
}

TEST_F(AddIconWindow, ADoubleClickAddsTheEntry)
{
    OpenAdd();

    DoubleClick("Delta");

    EXPECT_EQ(Waiting(), QStringList("Delta (Large Icon)"));
    EXPECT_EQ(Offered(), QStringList("Gamma"));
    EXPECT_TRUE(CanApply());
}

TEST_F(AddIconWindow, OtherButtonsDoubleClickNothing)
{
    OpenAdd();

    DoubleClick(List(), "Delta", Qt::RightButton);

    EXPECT_EQ(Waiting(), QStringList());
}

TEST_F(AddIconWindow, ADoubleClickTakesALabelAway)
{
    OpenAdd();
    DoubleClick("Gamma");
    DoubleClick("Delta");

    DoubleClick(Added(), "Gamma (Large Icon)");
    EXPECT_EQ(Waiting(), QStringList("Delta (Large Icon)"));
    EXPECT_EQ(Offered(), QStringList("Gamma"));
    EXPECT_TRUE(CanApply());

    DoubleClick(Added(), "Delta (Large Icon)");
    EXPECT_EQ(Offered(), QStringList({ "Gamma", "Delta" }));
    EXPECT_FALSE(CanApply());
}

TEST_F(AddIconWindow, SelectedLabelsAreTakenAwayByButtonAndKey)
{
    OpenAdd();
    Choose("optSmallIcon");
    for (const char* entry : { "Beta", "Gamma", "Delta" })
        DoubleClick(entry);

    Pick(Added(), "Beta (Small Icon)");
    Pick(Added(), "Delta (Small Icon)", Qt::ControlModifier);
    Push("cmdRmvIcon");
    EXPECT_EQ(Waiting(), QStringList("Gamma (Small Icon)"));
    EXPECT_EQ(Offered(), QStringList({ "Beta", "Delta" }));

    Pick(Added(), "Gamma (Small Icon)");
    Activate();
    Repeat("ListAddedIcons", Qt::Key_Delete);
    EXPECT_EQ(Waiting().size(), 1) << "held from before";
    Key("ListAddedIcons", Qt::Key_Delete);
    EXPECT_EQ(Waiting(), QStringList());
    EXPECT_FALSE(CanApply());
}

TEST_F(AddIconWindow, OnPurposeASelectionEnablesTheButtonThoughNothingWaits)
{
    OpenAdd();
    ASSERT_FALSE(CanApply());

    Pick("Gamma");

    EXPECT_TRUE(CanApply());
}

TEST_F(AddIconWindow, AKeyThatSelectsEnablesTheButtonAsWell)
{
    OpenAssign(Orphan);
    List().setFocus();
    EXPECT_FALSE(CanApply()) << "the focus alone selects nothing";

    Key("ComboAppListIcon", Qt::Key_Down);

    EXPECT_TRUE(CanApply());
}

TEST_F(AddIconWindow, ASecondClickOnASelectedEntryEnablesTheButtonAgain)
{
    OpenAdd();
    Choose("optSmallIcon");
    DoubleClick("Beta");
    Pick("Gamma");
    DoubleClick(Added(), "Beta (Small Icon)");
    ASSERT_FALSE(CanApply());

    Pick("Gamma");

    EXPECT_TRUE(CanApply());
}

TEST_F(AddIconWindow, BothSizesAddsTheLargeAndTheSmallIcon)
{
    OpenAdd();
    Choose("chkBothSizes");
    DoubleClick("Gamma");
    Choose("optSmallIcon");
    DoubleClick("Beta");
    Choose("optVY");
    DoubleClick("Beam (Small Icon)");
    Choose("optLargeIcon");
    DoubleClick("Copy (Large Icon)");

    EXPECT_EQ(Waiting(),
        QStringList({ "Gamma (Large Icon)", "Gamma (Small Icon)", "Beta (Small Icon)",
            "Beam (Large Icon)", "Beam (Small Icon)", "Copy (Large Icon)" }));
}

TEST_F(AddIconWindow, SharingKeepsTheLauncherOut)
{
    OpenAssign("Beta (Large Icon)");
    Choose("optVY");

    Choose("chkCreateShared");
    EXPECT_FALSE(CanUseIn("optVY"));
    EXPECT_TRUE(IsChosen("optPalm"));
    EXPECT_EQ(Offered(), QStringList({ "Palm Clock", "Palm Mail" }));

    Choose("chkCreateShared");
    EXPECT_TRUE(CanUseIn("optVY"));
    EXPECT_TRUE(IsChosen("optPalm"));
    Choose("optApp");
    Choose("chkCreateShared");
    EXPECT_TRUE(IsChosen("optApp"));
}

TEST_F(AddIconWindow, EachEntrySaysWhoseItIs)
{
    OpenAdd();
    EXPECT_EQ(List().item(0)->toolTip(), "Gamma: type appl, creator GAMM");

    Choose("optVY");
    EXPECT_EQ(List().item(0)->toolTip(), "Beam (Large Icon): resource ID 2002");
}

TEST_F(AddIconWindow, NamesAreShownLetterForLetter)
{
    AppTable.push_back({ "<b>R\xE9sum\xE9</b>", "appl", "RSME", "" });
    OpenAdd();

    EXPECT_EQ(Offered().last(), QString::fromUtf8("<b>Résumé</b>"));
    EXPECT_FALSE(List().item(2)->toolTip().contains("<b>")) << "it would be shown in bold";
    DoubleClick(QString::fromUtf8("<b>Résumé</b>"));
    Apply();

    EXPECT_TRUE(HasRow("<b>R\xE9sum\xE9</b> (Large Icon)"));
    EXPECT_EQ(SelectedNow(), QString::fromUtf8("<b>Résumé</b> (Large Icon)"));
}

} // namespace
} // namespace vypx::test
