#include "DropsFixture.h"

namespace vypx::test {

namespace {

/// The eight targets of one behaviour.
class WindowDrops : public DropsFixture, public ::testing::WithParamInterface<const char*> {
protected:
    using DropsFixture::Drop;
    bool Drop(const QString& path) { return Drop(GetParam(), QStringList{ path }); }
};

INSTANTIATE_TEST_SUITE_P(Targets, WindowDrops,
    ::testing::Values("MDIForm1", "Form1", "TreeView1", "frameKey", "frameLG", "frameSM",
        "frameTC_LG", "frameTC_SM"),
    [](const auto& of) { return std::string(of.param); });

TEST_P(WindowDrops, APictureAsksWhereItIsToGo)
{
    const QString path = PictureFile(4, 4, { 1, 2, 3 });

    EXPECT_TRUE(Drop(path));

    ASSERT_NE(Window(), nullptr);
    EXPECT_TRUE(DroppedFile);
    EXPECT_EQ(DroppedFileName, path.toStdString());
}

TEST_P(WindowDrops, AnIconsetTakesThePlaceOfAnUnchangedOne)
{
    for (const char* name : { "other.prc", "OTHER.PDB" }) {
        Open(QString::fromStdString(program.File("set.prc")));

        EXPECT_TRUE(Drop(AnotherIconset(name)));

        EXPECT_EQ(RootText(), "Other") << name;
        EXPECT_EQ(FileName, program.File(name));
        EXPECT_FALSE(DroppedFile);
    }
}

TEST_P(WindowDrops, AChangedIconsetIsAskedAbout)
{
    IconsetChanged = true;
    ask.Answer(QMessageBox::Cancel);

    Drop(AnotherIconset());

    EXPECT_EQ(RootText(), "Set");
    EXPECT_FALSE(DroppedFile);
    ASSERT_EQ(ask.shown.size(), 1u);
    EXPECT_EQ(ask.shown[0].text,
        "The current iconset has been modified.\n"
        "Are you sure you want to load a different iconset?");
    EXPECT_EQ(ask.shown[0].title, "Current Iconset Was Changed!");
    EXPECT_EQ(ask.shown[0].icon, QMessageBox::Warning);
    EXPECT_EQ(ask.shown[0].buttons, QMessageBox::Ok | QMessageBox::Cancel);

    ask.Answer(QMessageBox::Ok);
    Drop(AnotherIconset());
    EXPECT_EQ(RootText(), "Other");
    EXPECT_FALSE(DroppedFile);
}

TEST_P(WindowDrops, OnPurposeAnyOtherFileWaitsForTheNextImport)
{
    const QString path = Written(Bytes(10, 'x'), "notes.txt");

    EXPECT_TRUE(Drop(path));

    EXPECT_TRUE(DroppedFile);
    EXPECT_EQ(DroppedFileName, path.toStdString());
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(Note().startsWith("notes.txt is neither an iconset nor a picture."))
        << Note().toStdString();
    for (const char* ending : { "prc, ", "pdb, ", "bmp, ", "gif, ", "jpeg, ", "jpg, ", "png" })
        EXPECT_TRUE(Note().contains(ending)) << ending;
}

class WaitingFiles : public DropsFixture {
protected:
    /// A picture by its content alone.
    void DropNotes()
    {
        Drop("Form1", { Written(EncodeBmp24(vypx::Picture(4, 4)), "picture.dat") });
        ASSERT_TRUE(DroppedFile);
    }
};

TEST_F(WaitingFiles, TheNextImportFailsOnItWhateverItHolds)
{
    Click("Alpha (Large Icon)");
    DropNotes();

    Press("cmdImportLG");

    EXPECT_EQ(ask.opened.size(), 1u) << "that of the iconset, and no other dialog";
    EXPECT_TRUE(Note().startsWith("picture.dat was not imported: ")) << Note().toStdString();
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
    EXPECT_FALSE(IsOn("cmdUndoLG"));
    EXPECT_FALSE(DroppedFile);
}

TEST_F(WaitingFiles, TheImportAfterThatAsksForAFile)
{
    Click("Alpha (Large Icon)");
    DropNotes();
    Press("cmdImportSM");

    Import("cmdImportSM", PictureFile(4, 4, { 1, 2, 3 }));

    EXPECT_EQ(Text("lbl_SMsize"), "4 x 4 pixels");
    EXPECT_EQ(Note(), "");
}

TEST_F(WaitingFiles, OpenForgetsThemAndShowsItsDialog)
{
    DropNotes();

    Open(AnotherIconset());

    EXPECT_EQ(ask.opened.size(), 2u); // one before this test
    EXPECT_EQ(RootText(), "Other");
    EXPECT_FALSE(DroppedFile);
}

TEST_F(WaitingFiles, OneDroppedWhileTheDepthIsBeingChosenIsForgottenToo)
{
    PromptColorDepth = true;
    Entry("mnuOpen").trigger();
    DropNotes();
    ask.Choose(AnotherIconset());

    Find<QPushButton>("cmdDoneCDepth").click();

    EXPECT_EQ(RootText(), "Other");
    EXPECT_FALSE(DroppedFile);
    EXPECT_EQ(Note(), "");
}

TEST_F(WaitingFiles, CancelInTheQuestionOfALaterDropForgetsThem)
{
    DropNotes();
    IconsetChanged = true;
    ask.Answer(QMessageBox::Cancel);

    Drop("Form1", { AnotherIconset() });

    EXPECT_FALSE(DroppedFile);
    EXPECT_EQ(Note(), "");
}

TEST_F(WaitingFiles, ALowResPictureIsMadeOfTheHighResOneAllTheSame)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportLG", 20, 10);
    DropNotes();
    ask.Answer(QMessageBox::Ok);

    Press("cmdCreateLowRes");

    EXPECT_EQ(Text("lbl_SMsize"), "10 x 5 pixels");
}

} // namespace
} // namespace vypx::test
