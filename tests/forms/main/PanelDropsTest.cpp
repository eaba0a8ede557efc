#include "DropsFixture.h"

namespace vypx::test {

namespace {

/// What a drop on one of the panels' pictures differs in.
struct PanelRow {
    const char* target;
    const char* size; // of the picture in its slot
    const char* otherSize;
    const char* noIcons;      // told in a document without icons
    const char* noneSelected; // told where no icon is selected
    bool takesPrc;
    const char* question;
    const char* title;
};

constexpr auto SelectValid = "You must first select a valid icon in the tree.";
constexpr auto Iconset1 = "The current iconset has been modified.\n"
                          "Are you sure you want to load a different iconset?";
constexpr auto IconPack = "The current IconPack has been modified.\n"
                          "Are you sure you want to load a different IconPack?";

const PanelRow Rows[] = {
    { "picLG", "lbl_LGsize", "lbl_SMsize", "You must first select an icon in the tree.",
        "You must first select an icon in the tree.", false, IconPack,
        "Current IconPack Was Changed!" },
    { "picLGfrm", "lbl_LGsize", "lbl_SMsize",
        "You must add a large icon before an image can be loaded.", SelectValid, true, Iconset1,
        "Current Iconset Was Changed!" },
    { "picSM", "lbl_SMsize", "lbl_LGsize", SelectValid, SelectValid, true, Iconset1,
        "Current Iconset Was Changed!" },
    { "picSMfrm", "lbl_SMsize", "lbl_LGsize", SelectValid, SelectValid, true, Iconset1,
        "Current Iconset Was Changed!" },
};

class PanelDrops : public DropsFixture, public ::testing::WithParamInterface<PanelRow> {
protected:
    using DropsFixture::Drop;
    bool Drop(const QString& path) { return Drop(GetParam().target, QStringList{ path }); }
};

INSTANTIATE_TEST_SUITE_P(Targets, PanelDrops, ::testing::ValuesIn(Rows),
    [](const auto& of) { return std::string(of.param.target); });

TEST_P(PanelDrops, APictureGoesIntoItsSlot)
{
    AutoCreateLowRes = false;
    Click("Alpha (Large Icon)");
    const QString before = Text(GetParam().otherSize);

    int width = 3;
    for (const char* name : { "new.bmp", "NEW.JPG", "new.gif", "new.jpeg", "new.Png", "a.b.bmp" }) {
        EXPECT_TRUE(Drop(PictureFile(++width, 4, { 1, 2, 3 }, name)));

        EXPECT_EQ(Text(GetParam().size), QString("%1 x 4 pixels").arg(width)) << name;
        EXPECT_FALSE(DroppedFile);
    }
    EXPECT_EQ(Text(GetParam().otherSize), before);
    EXPECT_EQ(Window(), nullptr);
    EXPECT_TRUE(IconsetChanged);
}

TEST_P(PanelDrops, WithoutASelectedIconAPictureIsRefusedInWords)
{
    ask.Answer(QMessageBox::Ok);

    Drop(PictureFile(4, 4, { 1, 2, 3 }, "new.gif"));

    EXPECT_EQ(Messages(), QStringList(GetParam().noneSelected));
    EXPECT_EQ(ask.shown.back().title, "VY Pixelworks");
    EXPECT_EQ(Text(GetParam().size), "");
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(DroppedFile);
}

TEST_P(PanelDrops, InADocumentWithoutIconsAPictureIsRefusedInWords)
{
    MakeNew();
    ask.Answer(QMessageBox::Ok);

    Drop(PictureFile(4, 4, { 1, 2, 3 }));

    EXPECT_EQ(Messages(), QStringList(GetParam().noIcons));
    EXPECT_FALSE(DroppedFile);
}

TEST_P(PanelDrops, APdbIsOpenedAfterAQuestionInItsWords)
{
    IconsetChanged = true;
    ask.Answer(QMessageBox::Cancel);
    Drop(AnotherIconset("other.pdb"));
    EXPECT_EQ(RootText(), "Set");
    EXPECT_FALSE(DroppedFile);
    ask.Answer(QMessageBox::Ok);

    Drop(AnotherIconset("other.pdb"));

    EXPECT_EQ(RootText(), "Other");
    EXPECT_EQ(Messages(), QStringList({ GetParam().question, GetParam().question }));
    EXPECT_EQ(ask.shown.back().title, GetParam().title);
    EXPECT_EQ(ask.shown.back().icon, QMessageBox::Warning);
    EXPECT_EQ(ask.shown.back().buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_FALSE(DroppedFile);
}

TEST_P(PanelDrops, APdbTakesThePlaceOfAnUnchangedDocumentWithoutAQuestion)
{
    Drop(AnotherIconset("OTHER.PDB"));

    EXPECT_EQ(RootText(), "Other");
    EXPECT_FALSE(DroppedFile);
}

TEST_P(PanelDrops, APdbIsOpenedIntoADocumentWithoutIcons)
{
    MakeNew();

    Drop(AnotherIconset("other.pdb"));

    EXPECT_EQ(RootText(), "Other");
}

TEST_P(PanelDrops, OnPurposeAPrcDoesNothingOnTheHighResPicture)
{
    EXPECT_TRUE(Drop(AnotherIconset("other.prc")));

    EXPECT_EQ(RootText(), GetParam().takesPrc ? "Other" : "Set");
    EXPECT_EQ(Note(), "");
    EXPECT_FALSE(DroppedFile);
}

TEST_P(PanelDrops, AnyOtherFileIsNotedAndForgotten)
{
    Click("Alpha (Large Icon)");

    Drop(Written(Bytes(10, 'x'), "notes.txt"));

    EXPECT_TRUE(Note().startsWith("notes.txt ")) << Note().toStdString();
    EXPECT_EQ(Note().contains("prc"), GetParam().takesPrc);
    EXPECT_FALSE(DroppedFile);
    ask.CancelDialog();
    Press("cmdImportLG");
}

TEST_P(PanelDrops, ALargePictureOpensTheCropWindow)
{
    Click("Alpha (Large Icon)");

    Drop(PictureFile(100, 80, { 1, 2, 3 }));

    const auto* const crop = frame->findChild<QDialog*>("frmCrop");
    ASSERT_NE(crop, nullptr);
    EXPECT_TRUE(crop->isVisible() && crop->isEnabled());
    EXPECT_FALSE(frame->isEnabled());
    EXPECT_FALSE(DroppedFile);
}

TEST_P(PanelDrops, AFileThatIsGoneLeavesTheSlot)
{
    Click("Alpha (Large Icon)");
    const auto data = Files({ PictureFile(4, 4, { 1, 2, 3 }, "gone.bmp") });

    EXPECT_NE(Release(GetParam().target, *data), Qt::IgnoreAction);
    std::filesystem::remove(program.File("gone.bmp"));
    QCoreApplication::processEvents();

    EXPECT_TRUE(Note().startsWith("gone.bmp was not imported: ")) << Note().toStdString();
    EXPECT_EQ(Text(GetParam().size), "2 x 1 pixels");
    EXPECT_FALSE(DroppedFile);
}

} // namespace
} // namespace vypx::test
