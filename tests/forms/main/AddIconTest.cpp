#include "AddIconFixture.h"

#include "document/IconStats.h"

namespace vypx::test {

namespace {

class AddIcon : public AddIconFixture {
protected:
    /// Puts them on the list and applies it.
    void Add(const QStringList& names)
    {
        OpenAdd();
        for (const QString& name : names)
            DoubleClick(name);
        Apply();
    }
};

TEST_F(AddIcon, OnPurposeTheCommandAloneChangesTheIconset)
{
    ASSERT_FALSE(IconsetChanged);

    OpenAdd();
    EXPECT_TRUE(IconsetChanged);
    EXPECT_TRUE(frame->windowTitle().contains('*'));
    Push("cmdCancelNewIcon");

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(IconTable.size(), 4u);
}

TEST_F(AddIcon, NewIconsAreEmptyAndTheLastOneIsSelected)
{
    OpenAdd();
    Choose("chkBothSizes");
    DoubleClick("Gamma");

    Apply();

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB3504");
    EXPECT_EQ(KeyOf("Gamma (Small Icon)"), "tAIB3507");
    EXPECT_EQ(NodeTexts(),
        QStringList({ "Alpha (Large Icon)", "Alpha (Small Icon)", "Beta (Large Icon)",
            "Gamma (Large Icon)", "Gamma (Small Icon)", Orphan }));
    EXPECT_EQ(SelectedNow(), "Gamma (Small Icon)");
    EXPECT_EQ(ImageOf("Gamma (Small Icon)"), ImageApp);
    EXPECT_EQ(Nodes().NodeOf("Gamma (Large Icon)")->foreground(0).color(), QColor(0, 0, 255));
    EXPECT_EQ(SelectedNode, "Gamma (Small Icon)");
    EXPECT_EQ(LastClickedText, "Gamma (Small Icon)");
    EXPECT_EQ(StatTotal, 5) << "counted anew";
}

TEST_F(AddIcon, ANewIconTakesPicturesAndOffersNothingElse)
{
    Click("Alpha (Large Icon)");
    Press("cmdDelSM");
    ASSERT_TRUE(IsOn("cmdUndoSM"));

    Add({ "Gamma" });

    for (const char* on : { "cmdImportLG", "cmdImportSM", "cmdPastePicLG", "cmdPastePicSM",
             "mnuPasteLG", "mnuPasteSM", "cmdRemoveIcon", "cmdAssignApp", "cmdAddIcon" })
        EXPECT_TRUE(CanUse(on)) << on;
    for (const char* off : { "cmdDelLG", "cmdDelSM", "cmdSaveLG", "cmdSaveSM", "cmdCopyClipLG",
             "cmdCopyClipSM", "cmdChangeTC_LG", "cmdChangeTC_SM", "cmdCreateLowRes", "cmdUndoLG",
             "cmdUndoSM", "mnuUndo_LG", "mnuUndo_SM", "cmdChangeDataBaseName" })
        EXPECT_FALSE(CanUse(off)) << off;
    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
    EXPECT_EQ(Find<QPushButton>("cmdAssignApp").text(), "Change / Share");
    EXPECT_EQ(HighResPath + LowResPath, "");
    EXPECT_EQ(Text("lblLG_Size"), "Max 64 x 44");
    EXPECT_EQ(Text("lblSM_Size"), "Max 32 x 22");
    for (const QString letters : { "LG", "SM" }) {
        EXPECT_TRUE(Find<QWidget>("pic" + letters).size().isEmpty());
        EXPECT_EQ(Text("lbl_" + letters + "size"), "");
        for (const QString part : { "picColSwatch", "lblC_RGB_", "lblNoTransparent" })
            EXPECT_FALSE(IsShown(part + letters)) << part.toStdString();
    }
}

TEST_F(AddIcon, TheNewIconIsTheOneThatKeysAndImportsWorkOn)
{
    Click("Alpha (Large Icon)");
    Add({ "Gamma" });

    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_EQ(IconTable.back().IconState, 0);
    EXPECT_EQ(IconTable[0].IconState, 1);
    QTest::keyClick(&Nodes(), Qt::Key_R);
    AutoCreateLowRes = false;
    Import("cmdImportLG", PictureFile(10, 10, { 1, 2, 3 }));

    EXPECT_EQ(IconTable.back().HighResFile, "tAIB3504-d144.bmp");
    EXPECT_TRUE(FileExists(WorkPath("tAIB3504-d144.bmp")));
}

TEST_F(AddIcon, ANewIconsetIsBuiltFromNothing)
{
    Entry("mnuNew").trigger();
    Find<QLineEdit>("txtNewIconsetDBName").setText("Mine");
    Press("cmdDoneName");
    OpenAdd();
    DoubleClick("Alpha");
    Choose("optSmallIcon");
    DoubleClick("Alpha");
    Choose("optPalm");
    DoubleClick("Palm Mail");
    Choose("optVY");
    DoubleClick("Beam (Small Icon)");
    Apply();

    EXPECT_EQ(KeyOf("Alpha (Large Icon)"), "tAIB3500");
    EXPECT_EQ(KeyOf("Alpha (Small Icon)"), "tAIB3503");
    EXPECT_EQ(KeyOf("Palm Mail (Small Icon)"), "tAIB3505");
    EXPECT_EQ(KeyOf("Beam (Small Icon)"), "tAIB2003");
    EXPECT_EQ(ImageOf("Palm Mail (Small Icon)"), ImagePalm);
    EXPECT_EQ(ImageOf("Beam (Small Icon)"), ImageVY);
    EXPECT_EQ(Nodes().Root()->text(0), "Mine");
    EXPECT_EQ(SelectedNow(), "Beam (Small Icon)");
}

TEST_F(AddIcon, AStopShowsWhatWasAddedAndKeepsTheWindow)
{
    OpenAdd();
    DoubleClick("Gamma");
    DoubleClick("Delta");
    AppTable.pop_back();
    AppTable.push_back({ "Zeta", "appl", "ZETA", "" });
    ask.Answer(QMessageBox::Ok, [&] {
        EXPECT_EQ(SelectedNow(), "Gamma (Large Icon)") << "the tree shows it behind the box";
    });

    Apply();

    EXPECT_EQ(ask.shown.back().text, "Error assigning icon to tree!");
    EXPECT_EQ(ask.shown.back().title, "VY Pixelworks");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(StatTotal, 4);
    EXPECT_EQ(Offered(), QStringList("Zeta"));
    EXPECT_EQ(Waiting(), QStringList("Delta (Large Icon)")) << "what was added waits no more";
    EXPECT_TRUE(Note().contains("Delta (Large Icon)")) << Note().toStdString();

    DoubleClick(Added(), "Delta (Large Icon)");
    DoubleClick("Zeta");
    Apply();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(IconTable.size(), 6u);
    EXPECT_EQ(Note(), "");
}

TEST_F(AddIcon, AShortNameIsRefused)
{
    VYTable.push_back({ "Trash", "2050", "" });
    OpenAdd();
    Choose("optVY");
    DoubleClick("Trash");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(ask.shown.back().text, "Error adding icon.");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(IconTable.size(), 4u);
}

TEST_F(AddIcon, ALauncherIconWithoutAnIdIsRefused)
{
    VYTable.push_back({ "Wonder (Large Icon)", "", "" });
    OpenAdd();
    Choose("optVY");
    DoubleClick("Wonder (Large Icon)");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(ask.shown.back().text, "Error assigning VY icon.");
    EXPECT_TRUE(IsOpen());
}

TEST_F(AddIcon, WithNothingToAddTheSelectedIconStaysAsItIs)
{
    Click("Alpha (Large Icon)");
    const std::string path = HighResPath;
    ASSERT_NE(path, "");
    OpenAdd();
    Pick("Gamma");

    Apply();

    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(IconTable.size(), 4u);
    EXPECT_EQ(HighResPath, path);
    EXPECT_TRUE(IsOn("cmdDelLG"));
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
}

TEST_F(AddIcon, IconsThatShareAResourceAtTheTopOfTheRangeAreTold)
{
    IconTable[1].ResourceKey = "tAIB9999";
    Add({ "Gamma" });
    EXPECT_EQ(KeyOf("Gamma (Large Icon)"), "tAIB10000");
    EXPECT_TRUE(Note().contains("can't tie tAIB10000")) << Note().toStdString();

    Add({ "Delta" });

    EXPECT_EQ(KeyOf("Delta (Large Icon)"), "tAIB10000");
    EXPECT_TRUE(Note().contains("Delta (Large Icon)") && Note().contains("Gamma (Large Icon)"));
    ask.Answer(QMessageBox::Ok);
    Entry("mnuCloseIconset").trigger();
    EXPECT_FALSE(Note().contains("Delta"));
}

TEST_F(AddIcon, WithoutADocumentTheWholeCatalogIsShownAndNothingAdded)
{
    OpenAdd();
    ask.Answer(QMessageBox::Ok);
    Entry("mnuCloseIconset").trigger();
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Offered(), QStringList({ "Alpha", "Beta", "Gamma", "Delta" }));
    EXPECT_FALSE(IsOn("cmdAddIcon"));
    DoubleClick("Alpha");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(ask.shown.back().text, "Error assigning icon to tree!");
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(IconTable.size(), 1u);
}

TEST_F(AddIcon, ASelectionOffersTheCommandAgainAfterANewThatWasCancelled)
{
    for (const char* node : { "Set", "Beta (Large Icon)" }) {
        Entry("mnuNew").trigger();
        EXPECT_FALSE(IsOn("cmdAddIcon"));
        Press("cmdCancelName");
        EXPECT_FALSE(IsOn("cmdAddIcon"));

        Click(node);

        EXPECT_TRUE(IsOn("cmdAddIcon")) << node;
    }
}

TEST_F(AddIcon, AMarkedIconStaysMarkedInTheTree)
{
    Click("Beta (Large Icon)");
    QTest::keyClick(&Nodes(), Qt::Key_R);

    Add({ "Gamma" });

    EXPECT_EQ(ImageOf("Beta (Large Icon)"), ImageDelete);
    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
}

TEST_F(AddIcon, ANameThatIsBeingTypedIntoTheTreeCounts)
{
    OpenAdd();
    DoubleClick("Gamma");
    Click("Set");
    Press("cmdChangeDataBaseName");
    Nodes().findChild<QLineEdit*>("txtLabelEdit")->setText("Renamed");

    Apply();

    EXPECT_EQ(DatabaseName, "Renamed");
    EXPECT_EQ(SelectedNow(), "Gamma (Large Icon)");
}

} // namespace
} // namespace vypx::test
