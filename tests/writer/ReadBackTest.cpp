#include "writer/ReadBack.h"

#include "support/CompileFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

/// Icons of applications that the catalog knows.
class ReadingBack : public Compiling {
protected:
    void AddApp(char letter, int id, const std::string& type = "tAIB")
    {
        const std::string name = std::string("App ") + letter,
                          creator = std::string("APP") + letter;
        m_catalog += "[" + name + "]\nType=appl\nCreator={" + creator + "}\n";
        AppTable.push_back({ name, "appl", creator, "" });
        Add(name + " (Large Icon)", id, true, false, "APP", 1, type);
    }
    std::string Note()
    {
        WriteText(folder.File("AppList.dat"), m_catalog);
        CompileIconset();
        return IconsWithoutRoom();
    }
    std::size_t IconsOpened()
    {
        EXPECT_EQ(LoadFile(FileName, listener), LoadResult::Opened);
        return IconTable.size();
    }

private:
    std::string m_catalog;
};

TEST_F(ReadingBack, SevenIconsFitOnOnePicture)
{
    for (const char letter : std::string("ABCDEFG"))
        AddApp(letter, 3500);

    EXPECT_EQ(Note(), "");
    EXPECT_EQ(IconsOpened(), 7u);
}

TEST_F(ReadingBack, TheEighthIsTold)
{
    for (const char letter : std::string("ABCDEFGH"))
        AddApp(letter, 3500);

    EXPECT_EQ(Note(),
        "Only 7 of its 8 icons will be shown when it is opened again: too many of them share a "
        "picture.");
    EXPECT_EQ(IconsOpened(), 7u);
}

TEST_F(ReadingBack, IconsThatAreNotSavedDoNotCount)
{
    for (const char letter : std::string("ABCDEFG"))
        AddApp(letter, 3500);
    Add("Alpha (Large Icon)", 3501, true, false, "APP", 0);
    Add("Alpha (Small Icon)", 3502, false, false);

    EXPECT_EQ(Note(), "");
}

TEST_F(ReadingBack, ANameInBothCatalogsIsOneIcon)
{
    for (const char letter : std::string("ABCDEFGH"))
        AddApp(letter, 3500);
    PalmTable = AppTable;

    EXPECT_THAT(Note(), ::testing::StartsWith("Only 7 of its 8 icons"));
    EXPECT_EQ(IconsOpened(), 7u);
}

TEST_F(ReadingBack, ManyNamesOfOneApplicationAreManyIcons)
{
    AddApp('A', 3500);
    for (int i = 0; i < 8; ++i)
        AppTable.push_back({ "Twin " + std::to_string(i), "appl", "APPA", "" });

    EXPECT_THAT(Note(), ::testing::StartsWith("Only 7 of its 9 icons"));
    EXPECT_EQ(IconsOpened(), 7u);
}

TEST_F(ReadingBack, AnIconOfTheLauncherIsNoOneElses)
{
    for (const char letter : std::string("ABCDEFGH"))
        AddApp(letter, 3500);
    VYTable.push_back({ "Start (Large Icon)", "3500", "" });

    EXPECT_EQ(Note(), "");
    EXPECT_EQ(IconsOpened(), 1u);
}

TEST_F(ReadingBack, IconsThatTheIndexDoesNotNameAreOneForEachPicture)
{
    for (const char letter : std::string("ABCDEFGHIJ"))
        AddApp(letter, 12000); // beyond the index's IDs

    EXPECT_EQ(Note(), "");
    EXPECT_EQ(IconsOpened(), 1u);
}

} // namespace
} // namespace vypx::test
