#include "catalogs/BuiltInCatalogs.h"
#include "catalogs/CatalogFiles.h"
#include "document/Catalogs.h"
#include "document/WorkingFolder.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

std::vector<std::string> TextsOfARead()
{
    std::vector<std::string> texts;
    EXPECT_TRUE(ReadCatalogs([&](std::string_view text) { texts.emplace_back(text); }).empty());
    return texts;
}

TEST(BuiltInCatalogs, AreTheShippedFilesByteForByte)
{
    ASSERT_EQ(ShippedCatalogs().size(), 3u);
    for (const BuiltInCatalog& catalog : ShippedCatalogs())
        EXPECT_EQ(catalog.text, ReadText(VYPX_SHIPPED_DATA "/" + std::string(catalog.name)));
}

TEST(BuiltInCatalogs, AreReadWithoutAFolder)
{
    HoldCatalogs({});
    EXPECT_THAT(TextsOfARead(), ::testing::IsEmpty());
    const auto isDateBook = [](const CatalogRow& row) {
        return row.name == "Palm Date Book" && row.type == "appl" && row.creator == "date";
    };
    EXPECT_TRUE(std::any_of(PalmTable.begin(), PalmTable.end(), isDateBook));
    EXPECT_FALSE(std::filesystem::exists(AppFolder));
    ResetCatalogs();
}

TEST(BuiltInCatalogs, ThoseOfAFolderAreReadAndNeitherRepairedNorMissed)
{
    const TempFolder folder;
    const std::string text = "[Alpha]\nType=appl\nCreator=ALPH\n"; // without braces
    WriteText(folder.File("AppList.dat"), text);
    WriteText(folder.File("VY_Icons.dat"), "");

    HoldCatalogs(folder.Path());
    EXPECT_THAT(TextsOfARead(), ::testing::ElementsAre("Error! Can't find PalmApp.dat."));

    ASSERT_EQ(AppTable.size(), 2u);
    EXPECT_EQ(AppTable[1].creator, "ALPH");
    EXPECT_EQ(ReadText(folder.File("AppList.dat")), text);
    EXPECT_FALSE(std::filesystem::exists(folder.File("ini.lock")));
    ResetCatalogs();
}

} // namespace
} // namespace vypx::test
