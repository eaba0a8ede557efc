#include "AppListFixture.h"

namespace vypx::test {

namespace {

/// The window for the catalogs while documents and other windows come and go.
class EditorMeetings : public AppListFixture {
protected:
    EditorMeetings() { OpenEditor(); }
};

TEST_F(EditorMeetings, WithoutAnIconsetEntriesCanBeRemovedAndNothingReloaded)
{
    EXPECT_TRUE(IsOn("cmdDeleteApp"));
    EXPECT_FALSE(IsSeen("lblCloseIconset"));
    EXPECT_FALSE(IsOn("cmdApplyAndReload"));
}

TEST_F(EditorMeetings, UnderAnIconsetNothingCanBeRemoved)
{
    OpenIconset();
    OpenEditor();

    EXPECT_FALSE(IsOn("cmdDeleteApp"));
    EXPECT_TRUE(IsSeen("lblCloseIconset"));
    EXPECT_TRUE(IsOn("cmdApplyAndReload"));
    ShowPalmPage();
    EXPECT_FALSE(IsOn("cmdDeleteApp")) << "nor on the other page";
}

TEST_F(EditorMeetings, FollowsTheDocumentWhileItIsOpen)
{
    OpenIconset();
    OpenEditor();

    Entry("mnuCloseIconset").trigger();
    EXPECT_TRUE(IsOn("cmdDeleteApp"));
    EXPECT_FALSE(IsSeen("lblCloseIconset"));
    EXPECT_FALSE(IsOn("cmdApplyAndReload"));

    Entry("mnuNew").trigger();
    TypeOver(Find<QLineEdit>("txtNewIconsetDBName"), "New");
    ClickOn(Find<QPushButton>("cmdDoneName"));
    EXPECT_FALSE(IsOn("cmdDeleteApp"));
    EXPECT_FALSE(IsOn("cmdApplyAndReload")) << "it has no file";
}

TEST_F(EditorMeetings, ANameThatTheIconsetGetsEnablesTheReload)
{
    OpenIconset();
    OpenEditor();
    FileName.clear();
    Press("opt_PalmSys");
    EXPECT_FALSE(IsOn("cmdApplyAndReload"));
    ask.SaveTo(QString::fromStdString(program.File("saved.prc")));

    Entry("mnuSaveAs").trigger();

    EXPECT_TRUE(IsOn("cmdApplyAndReload"));
}

TEST_F(EditorMeetings, ALoadClosesItAndItsCompanion)
{
    Press("cmdManual");
    ASSERT_NE(Manual(), nullptr);

    OpenIconset();

    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Manual(), nullptr);
}

TEST_F(EditorMeetings, ACancelledFileDialogLeavesItOpen)
{
    ask.CancelDialog();
    Entry("mnuOpen").trigger();

    EXPECT_NE(Editor(), nullptr);
}

TEST_F(EditorMeetings, EscapeAndItsFrameCloseItWithItsCompanion)
{
    Press("cmdManual");
    QTest::keyClick(Editor(), Qt::Key_Escape);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Manual(), nullptr);

    OpenEditor();
    Editor()->close();
    EXPECT_EQ(Editor(), nullptr);
}

TEST_F(EditorMeetings, AHeldEscapeThatClosedAnotherWindowDoesNotCloseIt)
{
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(Editor(), &repeat);

    EXPECT_NE(Editor(), nullptr);
}

TEST_F(EditorMeetings, TheNoteOfNamesThatCannotBeSeenGoesWithTheNextReading)
{
    Press("cmdAppEditDone");
    std::string many;
    for (int i = 0; i < 100; ++i)
        many +=
            Section(std::string(97, 'x') + std::to_string(100 + i), "A" + std::to_string(100 + i));
    WriteText(AppListFile(), many);
    OpenEditor();
    EXPECT_TRUE(Find<QLabel>("lblNote").text().contains("AppList.dat"));
    Press("cmdAppEditDone");
    WriteText(AppListFile(), Section("Alpha", "ALPH"));

    OpenEditor();

    EXPECT_FALSE(Find<QLabel>("lblNote").isVisible());
}

} // namespace
} // namespace vypx::test
