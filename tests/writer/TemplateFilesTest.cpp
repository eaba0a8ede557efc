#include "support/TemplateFixture.h"

#include "support/Skips.h"

#include <filesystem>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Where templates go, and what files and their names make of them.
using TemplateFiles = TemplateFixture;

TEST_F(TemplateFiles, TheOpenFileIsMetUnderEveryName)
{
    SKIP_WITHOUT_LINKS();
    WriteText(FileName, "the iconset");
    const std::filesystem::path file = FileName;
    std::filesystem::create_symlink(file, folder.File("link.vpt"));
    std::filesystem::create_hard_link(file, folder.File("twin.vpt"));
    std::filesystem::create_directory_symlink(folder.Path(), folder.File("here"));
    WriteText(folder.File("other.vpt"), "another");

    EXPECT_TRUE(WouldReplaceOpenIconset(FileName));
    EXPECT_TRUE(WouldReplaceOpenIconset(folder.File("./out.prc")));
    EXPECT_TRUE(WouldReplaceOpenIconset(folder.File("here/out.prc")));
    EXPECT_TRUE(WouldReplaceOpenIconset(folder.File("link.vpt")));
    EXPECT_TRUE(WouldReplaceOpenIconset(folder.File("twin.vpt")));
    EXPECT_FALSE(WouldReplaceOpenIconset(folder.File("other.vpt")));
    EXPECT_FALSE(WouldReplaceOpenIconset(folder.File("not-there.vpt")));
    EXPECT_FALSE(WouldReplaceOpenIconset(folder.File("no/such/t.vpt")));

    LoadedAsTemplate = true;
    EXPECT_FALSE(WouldReplaceOpenIconset(FileName)) << "a template for a template";
    EXPECT_FALSE(WouldReplaceOpenIconset(folder.File("link.vpt")));
}

TEST_F(TemplateFiles, TheOpenFilesPlaceIsKeptForItWhenItIsGone)
{
    FileName = folder.File("set.vpt");

    EXPECT_TRUE(WouldReplaceOpenIconset(folder.File("set.vpt")));
    EXPECT_TRUE(WouldReplaceOpenIconset(folder.File("./set.vpt")));
    EXPECT_FALSE(WouldReplaceOpenIconset(folder.File("other.vpt")));
}

TEST_F(TemplateFiles, AnIconsetThatWasNeverSavedHasNoFileToLose)
{
    FileName.clear();
    WriteText(Path(), "old");

    EXPECT_FALSE(WouldReplaceOpenIconset(Path()));
    EXPECT_FALSE(WouldReplaceOpenIconset(folder.File("new.vpt")));
}

TEST_F(TemplateFiles, AnIconsetsCopyLoadsAsATemplateAndATemplatesAsAnIconset)
{
    Fill(SlotLG, Large, Plain(64, 44, { 1, 2, 3 }));
    CompileIconset(TargetFromFlags());
    Export();
    std::filesystem::copy_file(FileName, folder.File("copy.vpt"));
    std::filesystem::copy_file(Path(), folder.File("copy.prc"));

    ASSERT_EQ(LoadTemplate(folder.File("copy.vpt")), LoadResult::Opened);
    EXPECT_THAT(Labels(), ElementsAre(Large, Sharing));
    for (const IconRow& row : IconTable)
        EXPECT_EQ(row.LowResFile + row.HighResFile, "NEWNEW");

    ASSERT_EQ(Load(folder.File("copy.prc")), LoadResult::Opened);
    EXPECT_FALSE(LoadedAsTemplate);
    EXPECT_FALSE(IconTable.empty());
    for (const IconRow& row : IconTable)
        for (const std::string& cell : { row.LowResFile, row.HighResFile }) {
            ASSERT_TRUE(ImageFileValid(cell)) << row.IconLabel;
            EXPECT_EQ(Stored(cell).Width(), 1);
        }
    EXPECT_THAT(listener.messages, IsEmpty());
}

TEST_F(TemplateFiles, AnOpenThatIsForIconsetsRefusesItsEnding)
{
    Export();

    EXPECT_EQ(Load(Path()), LoadResult::WrongFileType);
    EXPECT_EQ(
        LoadTemplate(FileName = Written(ReadBytes(Path()), "t.prc")), LoadResult::WrongFileType);

    EXPECT_THAT(listener.messages, ElementsAre("Incorrect file type.", "Incorrect file type."));
}

} // namespace
} // namespace vypx::test
