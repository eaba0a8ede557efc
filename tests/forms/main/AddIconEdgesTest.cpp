// New icons and new owners where something else has happened to the document or the window.
#include "AddIconFixture.h"

namespace vypx::test {

namespace {

class AddIconEdges : public AddIconFixture {
protected:
    void Rename(const QString& text)
    {
        Click("Set");
        Press("cmdChangeDataBaseName");
        auto& edit = Find<QLineEdit>("txtLabelEdit");
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
        ASSERT_TRUE(QTest::qWaitFor([&] { return DatabaseName == text.toStdString(); }));
    }
    void AddGamma()
    {
        OpenAdd();
        DoubleClick("Gamma");
        Apply();
    }
};

TEST_F(AddIconEdges, ARenamedRootKeepsItsName)
{
    Rename("Renamed");
    AddGamma();
    EXPECT_EQ(Nodes().Root()->text(0), "Renamed");

    OpenAssign(Orphan);
    Pick("Delta");
    Apply();
    EXPECT_EQ(Nodes().Root()->text(0), "Renamed");
    const std::string before = SelectedNode;
    QTest::mouseClick(
        Nodes().viewport(), Qt::LeftButton, {}, Nodes().visualItemRect(Nodes().Root()).center());

    EXPECT_EQ(SelectedNode, before) << "a click on the root leaves it";
    EXPECT_FALSE(IsOn("cmdAssignApp"));
    Press("cmdChangeDataBaseName");
    QTest::keyClick(&Find<QLineEdit>("txtLabelEdit"), Qt::Key_Return);
    QTest::qWait(0);
    EXPECT_EQ(DatabaseName, "Renamed");
}

TEST_F(AddIconEdges, AnUnnamedNewIconsetTakesNoIcons)
{
    OpenAdd();
    DoubleClick("Gamma");
    IconsetChanged = false;
    Entry("mnuCloseIconset").trigger();
    Entry("mnuNew").trigger();
    Find<QAbstractButton>("cmdDoneName").click();
    ASSERT_TRUE(IsOpen());
    const std::vector<IconRow> rows = IconTable;
    DoubleClick("Gamma");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(Messages().back(), "Error assigning icon to tree!");
    EXPECT_EQ(IconTable, rows);
    EXPECT_TRUE(IsOpen());
}

TEST_F(AddIconEdges, AnAssignmentEndsUndo)
{
    Click(Orphan);
    Press("cmdDelSM");
    ASSERT_TRUE(IsOn("cmdUndoSM"));

    Press("cmdAssignApp");
    Pick("Gamma");
    Apply();

    EXPECT_FALSE(IsOn("cmdUndoSM"));
    EXPECT_FALSE(Entry("mnuUndo_SM").isEnabled());
}

TEST_F(AddIconEdges, TheSharingLabelsAreListedAtOnce)
{
    OpenAssign("Beta (Large Icon)");
    Choose("chkCreateShared");
    Pick("Gamma");

    Apply();

    EXPECT_EQ(TextsOf(Find<QListWidget>("listShared")), QStringList("Beta (Large Icon)"));
    EXPECT_EQ(Find<QLabel>("lblTotalIcons").text(), "Total Icons = 4") << "the orphan is marked";
}

TEST_F(AddIconEdges, ASmallIconCanBeChosenAfterAllHighResPicturesWereRemoved)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 40, 40);
    Press("cmdAssignApp");
    ASSERT_FALSE(CanUseIn("optSmallIcon"));
    ask.Answer(QMessageBox::Yes);

    Entry("mnuRemoveHR").trigger();

    EXPECT_TRUE(CanUseIn("optSmallIcon"));
}

TEST_F(AddIconEdges, APictureThatAnUndoBroughtBackCanNotBecomeASmallIcon)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 40, 40);
    Press("cmdAssignApp");
    Press("cmdDelLG");
    ASSERT_TRUE(CanUseIn("optSmallIcon"));

    Press("cmdUndoLG");

    EXPECT_FALSE(CanUseIn("optSmallIcon"));
}

TEST_F(AddIconEdges, AnOpenThatIsCancelledLeavesTheBounds)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 40, 40);
    IconsetChanged = false;
    Press("cmdAssignApp");
    IconsetChanged = false;
    ask.CancelDialog();

    Entry("mnuOpen").trigger();
    frame->findChild<Form1*>()->UpdateIconStats();

    EXPECT_FALSE(CanUseIn("optSmallIcon"));
}

TEST_F(AddIconEdges, AnEmptyListIsToldInANote)
{
    OpenAdd();
    Pick("Gamma");

    Apply();

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Note().startsWith("No icon was added")) << Note().toStdString();
    AddGamma();
    EXPECT_EQ(Note(), "");
}

TEST_F(AddIconEdges, ALabelThatTheRootBearsIsTold)
{
    Open(Written(Iconset{ .name = "Gamma (Large Icon)", .resources = { Picture(3500) } }.File(),
        "other.prc"));
    AddGamma();

    EXPECT_FALSE(HasRow("Gamma (Large Icon)"));
    EXPECT_TRUE(Note().startsWith("No icon was added")) << Note().toStdString();

    OpenAssign(NodeTexts().at(0));
    Pick("Gamma");
    Apply();
    EXPECT_TRUE(Note().contains("\"Gamma (Large Icon)\" is in the tree already")) << "as the root";
}

TEST_F(AddIconEdges, AMaximisedWindowComesBackToItsNormalSize)
{
    OpenAdd();
    Window()->setWindowState(Qt::WindowMaximized);

    OpenAdd();

    EXPECT_FALSE(Window()->isMaximized());
}

TEST_F(AddIconEdges, ChangeMeetsChangeAndBeginsAnew)
{
    OpenAssign("Alpha (Large Icon)");
    Choose("chkCreateShared");
    Choose("optPalm");
    Pick("Palm Mail");

    OpenAssign("Beta (Large Icon)");

    EXPECT_FALSE(IsChosen("chkCreateShared"));
    EXPECT_TRUE(IsChosen("optApp"));
    EXPECT_EQ(SelectedOf(List()), QStringList());
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(Window()->windowTitle(), "Assign App to Icon");
}

TEST_F(AddIconEdges, ADoubleClickThatDeselectsAssignsTheEntryUnderIt)
{
    OpenAssign(Orphan);
    Pick("Gamma");
    const QPoint place = PlaceOf(List(), "Gamma");
    QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::ControlModifier, place);

    EXPECT_TRUE(HasRow("Gamma (Large Icon)"));
    EXPECT_FALSE(HasRow(Orphan));
}

TEST_F(AddIconEdges, ARunThatUsesUpTheIdsStopsWithItsMessage)
{
    IconTable[1].ResourceKey = "tAIB9998";
    OpenAdd();
    DoubleClick("Gamma");
    DoubleClick("Delta");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(
        Messages().back(), "Error, maximum resource ID number exceeded.\nCan't add new icon.");
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB10000");
    EXPECT_EQ(IconTable.back().IconLabel, "") << "the row that was made for it stays";
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Waiting(), QStringList("Delta (Large Icon)"));
}

TEST_F(AddIconEdges, NotesShowLabelsWithTheirLetters)
{
    AppTable.push_back({ "Caf\xE9", "appl", "CAFE", "" });
    IconTable[1].ResourceKey = "tAIB9999";
    OpenAdd();
    DoubleClick(QString::fromUtf8("Café"));

    Apply();

    EXPECT_TRUE(Note().contains(QString::fromUtf8("\"Café\""))) << Note().toStdString();
}

} // namespace
} // namespace vypx::test
