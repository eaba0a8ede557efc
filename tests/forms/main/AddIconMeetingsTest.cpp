#include "AddIconFixture.h"

#include <functional>

namespace vypx::test {

namespace {

/// The window stays open while the document and the program under it change.
class AddIconMeetings : public AddIconFixture {
protected:
    void ImportHighRes(int width, int height)
    {
        AutoCreateLowRes = false;
        Import("cmdImportLG", PictureFile(width, height, { 1, 2, 3 }));
    }
};

TEST_F(AddIconMeetings, ALargePictureCanNotBecomeASmallIcon)
{
    Click("Alpha (Large Icon)");
    ImportHighRes(33, 22);
    OpenAssign("Alpha (Large Icon)");
    EXPECT_FALSE(CanUseIn("optSmallIcon"));
    EXPECT_TRUE(IsChosen("optLargeIcon"));

    Click("Beta (Large Icon)");
    EXPECT_TRUE(CanUseIn("optSmallIcon"));
    Choose("optSmallIcon");
    EXPECT_EQ(Offered(), QStringList({ "Beta", "Gamma", "Delta" }));
    Filter("ta");
    Pick("Delta");

    Click("Alpha (Large Icon)");
    EXPECT_FALSE(CanUseIn("optSmallIcon"));
    EXPECT_TRUE(IsChosen("optLargeIcon"));
    EXPECT_EQ(Offered(), QStringList("Delta")) << "the filter stays";
    EXPECT_EQ(SelectedOf(List()), QStringList("Delta"));
}

TEST_F(AddIconMeetings, TheBoundsOfASmallIconAreMet)
{
    Click("Alpha (Large Icon)");
    ImportHighRes(32, 22);
    OpenAssign("Alpha (Large Icon)");
    EXPECT_TRUE(CanUseIn("optSmallIcon"));

    ImportHighRes(32, 23);
    EXPECT_FALSE(CanUseIn("optSmallIcon")) << "the picture under the window is another one";
    Press("cmdDelLG");
    EXPECT_TRUE(CanUseIn("optSmallIcon"));
}

TEST_F(AddIconMeetings, ALargePictureKeepsTheLaunchersSmallIconsOut)
{
    Click("Alpha (Large Icon)");
    ImportHighRes(45, 22);
    OpenAdd();
    Choose("optVY");
    Choose("optSmallIcon");
    EXPECT_EQ(Offered(), QStringList("Beam (Small Icon)")) << "a new icon has no picture";

    Push("cmdCancelNewIcon");
    OpenAssign(Orphan);
    Choose("optVY");
    Choose("optSmallIcon");
    EXPECT_EQ(Offered(), QStringList("Beam (Small Icon)"));
    Click("Alpha (Large Icon)");
    EXPECT_TRUE(CanUseIn("optSmallIcon")) << "which only Change takes away";
    EXPECT_EQ(Offered(), QStringList());
}

TEST_F(AddIconMeetings, EachCommandTakesTheWindowIntoItsMode)
{
    OpenAdd();
    DoubleClick("Gamma");
    QDialog* const window = Window();

    OpenAssign(Orphan);
    EXPECT_EQ(Window(), window);
    EXPECT_EQ(window->windowTitle(), "Assign App to Orphaned Icon");
    EXPECT_FALSE(IsSeen("ListAddedIcons"));
    EXPECT_FALSE(CanApply());
    EXPECT_TRUE(AddIconAssignMode);
    EXPECT_EQ(Offered(), QStringList({ "Gamma", "Delta" })) << "nothing waits any more";

    OpenAssign("Beta (Large Icon)");
    EXPECT_EQ(window->windowTitle(), "Assign App to Icon");
    EXPECT_TRUE(IsSeen("chkCreateShared"));
    Choose("optPalm");
    Choose("chkCreateShared");

    OpenAdd();
    EXPECT_EQ(Window(), window);
    EXPECT_EQ(window->windowTitle(), "Add New Icon");
    EXPECT_EQ(TextOf("cmdApplyNewIcon"), "Add New Icon(s)");
    EXPECT_FALSE(AddIconAssignMode);
    EXPECT_EQ(Waiting(), QStringList());
    EXPECT_TRUE(IsChosen("optApp") && CanUseIn("optVY"));
    DoubleClick("Gamma");
    Apply();
    EXPECT_TRUE(HasRow("Gamma (Large Icon)")) << "and shares nothing";
    EXPECT_EQ(IconTable.back().ResourceKey, "tAIB3504");
}

TEST_F(AddIconMeetings, AddMeetsAddAndKeepsWhatWaits)
{
    OpenAdd();
    Choose("optSmallIcon");
    DoubleClick("Gamma");
    Filter("ta");

    OpenAdd();

    EXPECT_EQ(Waiting(), QStringList("Gamma (Small Icon)"));
    EXPECT_EQ(Offered(), QStringList({ "Beta", "Delta" }));
    EXPECT_TRUE(CanApply());
}

TEST_F(AddIconMeetings, AMinimisedWindowComesBack)
{
    OpenAdd();
    Window()->setWindowState(Qt::WindowMinimized);

    OpenAdd();

    EXPECT_FALSE(Window()->isMinimized());
    EXPECT_TRUE(IsOpen());
}

TEST_F(AddIconMeetings, EveryWayOutEndsTheMode)
{
    const std::function<void()> ways[] = {
        [&] { Push("cmdCancelNewIcon"); },
        [&] { Key("txtFilter", Qt::Key_Escape); },
        [&] { Window()->close(); },
    };
    for (const auto& leave : ways) {
        OpenAssign("Beta (Large Icon)");
        ASSERT_TRUE(AddIconAssignMode);
        leave();
        EXPECT_FALSE(IsOpen());
        EXPECT_FALSE(AddIconAssignMode || AddIconChangeMode);
        EXPECT_EQ(IconTable.size(), 4u);
    }
    OpenAdd();
    DoubleClick("Gamma");
    Apply();
    EXPECT_TRUE(HasRow("Gamma (Large Icon)"));
}

TEST_F(AddIconMeetings, IconsThatAreClearedAreOfferedAgain)
{
    OpenAdd();
    Filter("a");
    Pick("Delta");
    Click("Beta (Large Icon)");
    QTest::keyClick(&Nodes(), Qt::Key_R);
    ask.Answer(QMessageBox::Ok);

    Press("cmdClrDeleted");

    EXPECT_EQ(Offered(), QStringList({ "Beta", "Gamma", "Delta" }));
    EXPECT_EQ(SelectedOf(List()), QStringList("Delta"));
    EXPECT_EQ(List().currentItem()->text(), "Delta");
    EXPECT_EQ(Part<QLineEdit>("txtFilter").text(), "a");
}

TEST_F(AddIconMeetings, ItIsDisabledUnderTheCropWindow)
{
    Click("Alpha (Large Icon)");
    OpenAdd();
    ImportHighRes(100, 80);
    ASSERT_NE(frame->findChild<QDialog*>("frmCrop"), nullptr);
    EXPECT_FALSE(Window()->isEnabled());

    QTest::mouseClick(frame->findChild<QDialog*>("frmCrop")->findChild<QPushButton*>("cmdCancel"),
        Qt::LeftButton);

    EXPECT_TRUE(Window()->isEnabled());
    EXPECT_TRUE(CanUseIn("cmdCancelNewIcon"));
}

TEST_F(AddIconMeetings, ItIsDisabledUnderTheColourEditor)
{
    Click("Alpha (Large Icon)");
    OpenAdd();
    Press("cmdChangeTC_LG");
    auto* const editor = frame->findChild<QDialog*>("frmChangeTC");
    ASSERT_NE(editor, nullptr);
    EXPECT_FALSE(Window()->isEnabled());

    editor->close();

    EXPECT_TRUE(Window()->isEnabled());
}

TEST_F(AddIconMeetings, TheExitClosesIt)
{
    OpenAssign("Beta (Large Icon)");

    frame->Form().ExitProgram();

    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(AddIconAssignMode);
}

TEST_F(AddIconMeetings, AnIconThatIsThereMeanwhileIsPassedOver)
{
    OpenAdd();
    DoubleClick("Gamma");
    DoubleClick("Delta");
    IconTable.push_back({ "Gamma (Large Icon)", "tAIB3900", "NEW", "NEW", 1, "APP" });
    frame->Form().RebuildTree();

    Apply();

    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB3900");
    EXPECT_EQ(KeyOf("Delta (Large Icon)"), "tAIB3902");
    EXPECT_EQ(NodeTexts().count("Gamma (Large Icon)"), 1);
}

TEST_F(AddIconMeetings, ACancelledWindowComesBackEmpty)
{
    OpenAdd();
    Choose("optPalm");
    Choose("chkBothSizes");
    DoubleClick("Palm Mail");
    Push("cmdCancelNewIcon");

    OpenAdd();

    EXPECT_EQ(Waiting(), QStringList());
    EXPECT_TRUE(IsChosen("optApp"));
    EXPECT_FALSE(IsChosen("chkBothSizes"));
    EXPECT_FALSE(CanApply());
}

} // namespace
} // namespace vypx::test
