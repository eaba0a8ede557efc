#include "support/CommonUser.h"
#include "support/RowsFixture.h"

/// Where an icon can't become one of the launcher, its pictures stay.
namespace vypx::test {

namespace {

using ::testing::ElementsAre;

constexpr const char* VYFailed = "Error assigning VY icon.";

class AssignFailures : public RowsFixture {
protected:
    static constexpr const char* Icon = "Alpha (Large Icon)";
    static constexpr const char* Entry = "Start (Large Icon)";

    AssignFailures()
    {
        AddRow(Icon, "tAIB3500");
        Fill(SlotLG, Icon, Red);
        Fill(SlotSM, Icon, Blue);
        IconsetChanged = false;
    }

    static RowsOutcome Assign() { return ApplyAssignIcon(Request(Icon, Catalog::Launcher, Entry)); }
    void ExpectNothingChanged()
    {
        const auto before = State();
        const RowsOutcome outcome = Assign();
        ExpectStopped(outcome, VYFailed);
        EXPECT_EQ(State(), before);
        EXPECT_FALSE(IconsetChanged);
    }
};

TEST_F(AssignFailures, AFileOfTheNewNameThatAnotherIconShowsIsNeverTouched)
{
    for (const char* name : { "tAIB2000.bmp", "tAIB2000-d144.bmp" }) {
        AddRow("Gamma (Large Icon)", "tAIB3600");
        WritePicture(name, { 9, 9, 9 });
        IconTable[1].HighResFile = name;

        ExpectNothingChanged();

        IconTable.pop_back();
        Tree.Clear();
        Tree.SetRoot(Root);
        Tree.Add({ .key = Icon, .image = ImageApp });
    }
}

TEST_F(AssignFailures, WhereAPictureHasVanishedNothingChanges)
{
    std::filesystem::remove(WorkPath("tAIB3500-d144.bmp"));

    ExpectNothingChanged();
}

TEST_F(AssignFailures, WhereTheLowResPictureHasVanishedTheOtherStaysToo)
{
    std::filesystem::remove(WorkPath("tAIB3500.bmp"));

    ExpectNothingChanged();
}

TEST_F(AssignFailures, WhereASharedPictureHasVanishedNothingChanges)
{
    AddRow("Gamma (Large Icon)", "tAIB3500");
    IconTable[1].LowResFile = "tAIB3500.bmp";
    std::filesystem::remove(WorkPath("tAIB3500.bmp"));

    ExpectNothingChanged();
}

TEST_F(AssignFailures, AFolderInTheWayOfAPictureStopsBoth)
{
    std::filesystem::create_directories(WorkPath("tAIB2000.bmp/in the way"));

    ExpectNothingChanged();
}

TEST_F(AssignFailures, AfterAFailureTheSameWorksOnceTheReasonIsGone)
{
    std::filesystem::create_directories(WorkPath("tAIB2000.bmp/in the way"));
    Assign();
    std::filesystem::remove_all(WorkPath("tAIB2000.bmp"));

    ExpectDone(Assign(), Entry);

    EXPECT_EQ(Seen(SlotLG, Entry), BytesOf(Red));
    EXPECT_EQ(Seen(SlotSM, Entry), BytesOf(Blue));
}

TEST_F(AssignFailures, AFailureSaysWhyInPlainWords)
{
    std::filesystem::remove(WorkPath("tAIB3500.bmp"));

    EXPECT_NE(Assign().note, "");
}

#ifndef _WIN32

TEST_F(AssignFailures, WhereTheWorkingFolderCanNotBeWrittenNothingChanges)
{
    std::filesystem::permissions(WorkFolder(),
        std::filesystem::perms::owner_write | std::filesystem::perms::group_write
            | std::filesystem::perms::others_write,
        std::filesystem::perm_options::remove);
    {
        const CommonUser common;
        ExpectNothingChanged();
    }
    std::filesystem::permissions(WorkFolder(), std::filesystem::perms::owner_all);
}

TEST_F(AssignFailures, WhereASharedPictureCanNotBeCopiedNothingChanges)
{
    AddRow("Gamma (Large Icon)", "tAIB3500");
    IconTable[1].LowResFile = "tAIB3500.bmp";
    std::filesystem::permissions(WorkPath("tAIB3500.bmp"), std::filesystem::perms::none);
    std::filesystem::permissions(WorkFolder(), std::filesystem::perms::all);
    const Bytes low = BytesOf(Blue);
    const auto rows = IconTable;
    const auto bitmaps = BitmapTable;
    {
        const CommonUser common;
        ExpectStopped(Assign(), VYFailed);
    }

    EXPECT_EQ(IconTable, rows);
    EXPECT_EQ(BitmapTable, bitmaps);
    EXPECT_EQ(ReadBytes(WorkPath("tAIB3500.bmp")), low);
    EXPECT_TRUE(IsThere("tAIB3500-d144.bmp"));
    EXPECT_EQ(FilesBelow(WorkFolder()).size(), 2u) << "no half of a copy is left";
    EXPECT_THAT(NodeKeys(), ElementsAre(Icon, "Gamma (Large Icon)"));
}

#endif

} // namespace
} // namespace vypx::test
