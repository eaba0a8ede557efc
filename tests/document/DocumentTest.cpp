#include "document/Document.h"

#include "document/IconStats.h"
#include "document/SettingsFile.h"
#include "platform/Platform.h"
#include "support/LoadFixture.h"

namespace vypx::test {

namespace {

class Document : public LoadFixture { };

TEST_F(Document, BeginsWithOneEmptyRow)
{
    EXPECT_EQ(IconTable.size(), 1u);
    EXPECT_EQ(IconTable[0], IconRow());
    EXPECT_EQ(BitmapTable.size(), 1u);
    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(Tree.HasRoot());
}

TEST_F(Document, ResettingPutsEverythingBack)
{
    FileLoaded = IconsetChanged = TemplateMode = SkipOpenDialog = DroppedFile = true;
    DropLGEnabled = DropSMEnabled = LoadedAsTemplate = true;
    FileName = DatabaseName = Parent = DroppedFileName = SelectedNode = LastClickedText = "x";
    HighResPath = LowResPath = "x";
    LGloaded = SMloaded = LGhasTransparent = SMhasTransparent = true;
    MaskR_LG = MaskG_LG = MaskB_LG = MaskR_SM = MaskG_SM = MaskB_SM = 1;
    R = G = B = 1;
    TransparentUse = false;
    IconTable.assign(2, {});
    BitmapTable.assign(2, {});
    BitmapRow = 1;
    Itbl.assign(2, {});
    FileCashe.assign(2, 0);
    IconFileSize = 1;
    ShareNames.assign(2, "x");
    Tree.SetRoot("x");
    StatTotal = StatLarge = StatSmall = StatHighRes = StatLowRes = StatUnknown = 1;
    StatDeletable = SettingsSaved = true;

    ResetDocument();

    EXPECT_EQ(IconsetChanged.Times(), 0u);
    EXPECT_FALSE(IconsetChanged);
    for (const bool flag : { FileLoaded, LoadedAsTemplate, TemplateMode, SkipOpenDialog,
             DroppedFile, DropLGEnabled, DropSMEnabled, LGloaded, SMloaded, LGhasTransparent,
             SMhasTransparent, StatDeletable, SettingsSaved })
        EXPECT_FALSE(flag);
    EXPECT_TRUE(TransparentUse);
    EXPECT_EQ(FileName + DatabaseName + Parent + DroppedFileName + SelectedNode + LastClickedText
            + HighResPath + LowResPath,
        "");
    for (const int number :
        { MaskR_LG, MaskG_LG, MaskB_LG, MaskR_SM, MaskG_SM, MaskB_SM, R, G, BitmapRow, IconFileSize,
            StatTotal, StatLarge, StatSmall, StatHighRes, StatLowRes, StatUnknown })
        EXPECT_EQ(number, 0);
    EXPECT_EQ(B, 255);
    EXPECT_EQ(IconTable, std::vector<IconRow>(1));
    EXPECT_EQ(BitmapTable, std::vector<BitmapEntry>(1));
    EXPECT_TRUE(Itbl.empty() && FileCashe.empty() && ShareNames.empty());
    EXPECT_FALSE(Tree.HasRoot());
}

TEST_F(Document, FindsTheFirstRowOfALabel)
{
    IconTable.assign(3, {});
    IconTable[1].IconLabel = "Alpha (Large Icon)";
    IconTable[2].IconLabel = "Alpha (Large Icon)";

    EXPECT_EQ(FindIconRow("Alpha (Large Icon)"), 1u);
    EXPECT_EQ(FindIconRow("alpha (large icon)"), std::nullopt);
    EXPECT_EQ(FindIconRow(""), std::nullopt);
}

TEST_F(Document, CompactingKeepsOrderAndAllCells)
{
    IconTable.assign(5, {});
    IconTable[1] = { "B", "tAIB2", "b.bmp", "NEW", 0, "APP" };
    IconTable[3] = { "A", "tAIB1", "NEW", "a.bmp", 1, "VY" };
    const IconRow b = IconTable[1], a = IconTable[3];

    CompactIconTable();

    EXPECT_EQ(IconTable, (std::vector<IconRow>{ b, a }));
}

TEST_F(Document, CompactingKeepsOneRowWhereToldTo)
{
    IconTable.assign(3, {});
    CompactIconTable(true);
    EXPECT_EQ(IconTable.size(), 1u);
    CompactIconTable();
    EXPECT_TRUE(IconTable.empty());
}

TEST_F(Document, OnlyAFileNameIsAnImage)
{
    EXPECT_FALSE(ImageFileValid(""));
    EXPECT_FALSE(ImageFileValid("NEW"));
    EXPECT_TRUE(ImageFileValid("tAIB1005.bmp"));
    EXPECT_TRUE(ImageFileValid("new"));
}

TEST_F(Document, WorkingFilesLieBelowTheProgramsFolder)
{
    AppFolder = "/opt/icons";
    SetTempSuffix(0);
    EXPECT_EQ(platform::NativePath(WorkPath("tAIB1005.bmp")),
        platform::NativePath("/opt/icons") / "temp" / "tAIB1005.bmp");
    SetTempSuffix(2);
    EXPECT_EQ(platform::NativePath(WorkPath("tAIB1005.bmp")),
        platform::NativePath("/opt/icons") / "temp2" / "tAIB1005.bmp");
}

} // namespace
} // namespace vypx::test
