#include "AddIconFixture.h"

namespace vypx::test {

namespace {

class AssignIcon : public AddIconFixture {
protected:
    void ExpectGone()
    {
        EXPECT_FALSE(IsOpen());
        EXPECT_FALSE(AddIconAssignMode);
    }
    void ExpectRefused(const QString& message)
    {
        const auto rows = IconTable;
        ask.Answer(QMessageBox::Ok);
        Apply();
        EXPECT_EQ(ask.shown.back().text, message);
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(IconTable, rows);
    }
};

TEST_F(AssignIcon, AnOrphanKeepsItsResourceAndPicture)
{
    OpenAssign(Orphan);
    Choose("optPalm");
    Choose("optSmallIcon");
    Pick("Palm Mail");

    Apply();

    ExpectGone();
    EXPECT_EQ(KeyOf("Palm Mail (Small Icon)"), "tAIB3503");
    EXPECT_EQ(Cell("Palm Mail (Small Icon)", &IconRow::LowResFile), "tAIB3503.bmp");
    EXPECT_EQ(Cell("Palm Mail (Small Icon)", &IconRow::IconKind), "PALM");
    EXPECT_FALSE(NodeTexts().contains(Orphan));
    EXPECT_EQ(ImageOf("Palm Mail (Small Icon)"), ImagePalm);
    EXPECT_EQ(SelectedNow(), "Palm Mail (Small Icon)");
    EXPECT_EQ(SelectedNode, "Palm Mail (Small Icon)");
    EXPECT_EQ(Text("lbl_SMsize"), "2 x 1 pixels");
    EXPECT_TRUE(IsOn("cmdDelSM"));
    EXPECT_FALSE(IsOn("cmdAssignApp")) << "until the next click";
    EXPECT_EQ(Find<QPushButton>("cmdAssignApp").text(), "Change / Share");
    EXPECT_EQ(Note(), "");

    Click("Palm Mail (Small Icon)");
    EXPECT_TRUE(IsOn("cmdAssignApp"));
}

TEST_F(AssignIcon, ADoubleClickAssignsAtOnce)
{
    OpenAssign(Orphan);

    DoubleClick("Gamma");

    ExpectGone();
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB3503");
}

TEST_F(AssignIcon, OnPurposeADoubleClickAssignsThoughSharingIsTicked)
{
    OpenAssign("Beta (Large Icon)");
    Choose("chkCreateShared");

    DoubleClick("Gamma");

    ExpectGone();
    EXPECT_FALSE(HasRow("Beta (Large Icon)"));
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB3502");
    EXPECT_EQ(IconTable.size(), 4u);
}

TEST_F(AssignIcon, TheLaunchersIconTakesItsIdAndItsPicturesAlong)
{
    OpenAssign("Alpha (Large Icon)");
    Choose("optVY");
    DoubleClick("Beam (Large Icon)");

    EXPECT_EQ(KeyOf("Beam (Large Icon)"), "tAIB2002");
    EXPECT_EQ(HighResPath, WorkPath("tAIB2002-d144.bmp"));
    EXPECT_EQ(Pixel("picLG", { 1, 0 }), QColor(255, 255, 255));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255)) << "its first pixel is transparent";

    OpenAssign("Beam (Large Icon)");
    DoubleClick("Gamma");

    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB3504") << "an ID of an application's once more";
    EXPECT_EQ(HighResPath, WorkPath("tAIB3504-d144.bmp"));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255));
}

TEST_F(AssignIcon, OnPurposeWithoutAnIdInTheFileTheNodeHasItsNewLabelAlready)
{
    VYTable.push_back({ "Wonder (Large Icon)", "2090", "" });
    OpenAssign(Orphan);
    Choose("optVY");
    Pick("Wonder (Large Icon)");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(ask.shown.back().text, "Error assigning VY icon.");
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(AddIconAssignMode);
    EXPECT_EQ(SelectedNow(), "Wonder (Large Icon)");
    EXPECT_EQ(KeyOf("Wonder (Large Icon)"), "tAIB3503");
}

TEST_F(AssignIcon, WithoutACurrentEntryNothingIsChanged)
{
    OpenAssign(Orphan);
    Pick("Gamma");
    Choose("optPalm");

    ExpectRefused("Error adding icon.");
    EXPECT_TRUE(AddIconAssignMode);
}

TEST_F(AssignIcon, TheRootIsNoIcon)
{
    OpenAssign("Beta (Large Icon)");
    Pick("Gamma");
    Click("Set");
    ExpectRefused("Error assigning icon to tree!");

    Choose("chkCreateShared");
    ExpectRefused("Error assigning icon to tree!");
    EXPECT_EQ(NodeTexts().size(), 4);
}

TEST_F(AssignIcon, WithoutASelectionNothingIsChanged)
{
    OpenAssign("Beta (Large Icon)");
    Pick("Gamma");
    Nodes().clearSelection();

    ExpectRefused("Error assigning icon to tree!");
}

TEST_F(AssignIcon, TheIconThatIsSelectedWhenItRunsIsMeant)
{
    OpenAssign(Orphan);
    Pick("Gamma");
    Click("Beta (Large Icon)");

    Apply();

    EXPECT_TRUE(HasRow(Orphan));
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB3502");
}

TEST_F(AssignIcon, ASharedIconHasTheSameResourceAndPictures)
{
    OpenAssign("Alpha (Large Icon)");
    Choose("chkCreateShared");
    Choose("optPalm");
    Pick("Palm Clock");

    Apply();

    ExpectGone();
    EXPECT_TRUE(HasRow("Alpha (Large Icon)"));
    const IconRow& row = IconTable.back();
    EXPECT_EQ(row.IconLabel, "Palm Clock (Large Icon)");
    EXPECT_EQ(row.ResourceKey, "tAIB3500");
    EXPECT_EQ(row.HighResFile, "tAIB3500-d144.bmp");
    EXPECT_EQ(row.LowResFile, "tAIB3500.bmp");
    EXPECT_EQ(row.IconKind, "PALM");
    EXPECT_EQ(SelectedNow(), "Palm Clock (Large Icon)");
    EXPECT_EQ(ShareNames[1], "Alpha (Large Icon)");
    EXPECT_EQ(ImageOf("Palm Clock (Large Icon)"), ImagePalm);
}

TEST_F(AssignIcon, ASharedIconShowsItsPicturesAndOffersThemWithTheNextClick)
{
    OpenAssign("Alpha (Large Icon)");
    Choose("chkCreateShared");
    Pick("Gamma");
    Apply();

    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
    EXPECT_EQ(Pixel("picLG", { 1, 0 }), QColor(255, 255, 255));
    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
    for (const char* off :
        { "cmdDelLG", "cmdDelSM", "cmdSaveLG", "cmdSaveSM", "cmdCopyClipLG", "cmdCopyClipSM",
            "cmdChangeTC_LG", "cmdChangeTC_SM", "cmdCreateLowRes", "cmdUndoLG", "cmdUndoSM" })
        EXPECT_FALSE(IsOn(off)) << off;
    EXPECT_TRUE(IsOn("cmdImportLG") && IsOn("cmdImportSM"));

    Click("Gamma (Large Icon)");
    EXPECT_TRUE(IsOn("cmdDelLG") && IsOn("cmdDelSM"));
}

TEST_F(AssignIcon, SharingWithoutACurrentEntryIsRefused)
{
    OpenAssign("Alpha (Large Icon)");
    Pick("Gamma");
    Choose("chkCreateShared");
    Choose("optSmallIcon");

    ExpectRefused("Error adding icon.");
}

TEST_F(AssignIcon, AnOwnerThatNoSaveCanTieIsToldAtOnce)
{
    IconTable[2].ResourceKey = "tAIB3000";
    OpenAssign("Beta (Large Icon)");

    DoubleClick("Gamma");

    EXPECT_NE(Note(), "");
}

TEST_F(AssignIcon, TheSpaceBarUsesNoOtherCommandAfterwards)
{
    Click(Orphan);
    Find<QPushButton>("cmdAssignApp").setFocus();
    Press("cmdAssignApp");
    DoubleClick("Gamma");

    EXPECT_EQ(Nodes().window()->focusWidget(), &Nodes());
}

} // namespace
} // namespace vypx::test
