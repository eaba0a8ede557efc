#include "catalogs/CatalogFiles.h"

#include "document/Catalogs.h"
#include "support/CommonUser.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// What becomes of tables and repairs when something comes between.
class CatalogReads : public LoadFixture {
protected:
    const ShowMessage silent = [](std::string_view) {};
};

/// While its box stands, what was read before is whole, and another read finds the table whole.
TEST_F(CatalogReads, AReadThatShowsABoxLeavesTheTableUntilItsEnd)
{
    WriteText(folder.File("AppList.dat"), "[Old]\nType=appl\nCreator={OLDA}\n");
    ReadAppIni(silent);
    WriteText(folder.File("AppList.dat"), "[New]\nType=appl\nCreator=\n[Newer]\n");
    std::vector<CatalogRow> amid;
    std::size_t inner = 0;

    ReadAppIni([&](std::string_view) {
        amid = AppTable;
        WriteText(folder.File("AppList.dat"), std::string("[A]\n[B]\n[C]\n[D]\n[E]\n[F]\n"));
        ReadAppIni(silent);
        inner = AppTable.size();
    });

    EXPECT_THAT(amid, ElementsAre(CatalogRow{}, CatalogRow{ "Old", "appl", "OLDA", "" }));
    EXPECT_EQ(inner, 7u);
    ASSERT_EQ(AppTable.size(), 3u);
    EXPECT_EQ(AppTable[1], (CatalogRow{ "New", "appl", "XXXX", "" }));
}

#ifndef _WIN32 // where no folder of ours refuses

TEST_F(CatalogReads, ARepairThatCannotBeWrittenIsSaid)
{
    WriteText(folder.File("AppList.dat"), "[A]\nType=appl\nCreator=AB\n[B]\nType=appl\n");
    EXPECT_TRUE(ReadAndRepairApps(silent).couldRepair);
    WriteText(folder.File("PalmApp.dat"), "[A]\nType=appl\nCreator=AB\n[B]\nCreator={ABCD}\n");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    std::filesystem::permissions(folder.Path(),
        std::filesystem::perms::owner_write | std::filesystem::perms::group_write
            | std::filesystem::perms::others_write,
        std::filesystem::perm_options::remove);
    const CatalogRead read = [&] {
        const CommonUser common;
        return ReadAndRepairPalm(silent);
    }();
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);

    EXPECT_FALSE(read.couldRepair);
    EXPECT_EQ(PalmTable.at(1).creator, "AB  ");
}

#endif

} // namespace
} // namespace vypx::test
