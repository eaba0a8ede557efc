#include "catalogs/PrcSearch.h"

#include "support/SearchFixture.h"

namespace vypx::test {

namespace {

using platform::RegistryValues;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DesktopPath : public Searching {
protected:
    DesktopPath()
    {
        StartupSearchRunning = true;
        Put("a.prc", {});
    }
    ~DesktopPath() override { StartupSearchRunning = false; }
};

TEST_F(DesktopPath, WithoutAKeyIsTheSettingIfItNamesAFolder)
{
    PalmDesktopFolder = SearchFolder;

    SearchPrcFiles(listener);

    EXPECT_TRUE(ScanHasNew);
    EXPECT_THAT(listPRC, ElementsAre(InPalm("a.prc")));
}

TEST_F(DesktopPath, WithoutKeyAndSettingNothingIsDoneOrSaid)
{
    for (const std::string& setting : { std::string(), folder.File("gone"), InPalm("a.prc") }) {
        PalmDesktopFolder = setting;
        ScanHasNew = true;

        const SearchEnd end = SearchAndAdd(listener);

        EXPECT_FALSE(ScanHasNew) << setting;
        EXPECT_THAT(listPRC, IsEmpty());
        EXPECT_THAT(end.add.files, IsEmpty());
        EXPECT_THAT(listener.texts, IsEmpty());
        EXPECT_THAT(listener.found, IsEmpty());
    }
}

TEST_F(DesktopPath, WhatTheSettingsFolderHoldsIsAdded)
{
    Put("sub/b.prc", PrcFile("My App", "appl", "MyAp"));
    PalmDesktopFolder = SearchFolder;
    SearchFolder = folder.File("gone");

    const SearchEnd end = SearchAndAdd(listener);

    ASSERT_EQ(end.add.files.size(), 2u);
    EXPECT_EQ(end.add.files[0].verdict, PrcVerdict::TooShort);
    EXPECT_EQ(end.add.files[1].verdict, PrcVerdict::Added);
    EXPECT_EQ(Apps(), Entry("My App", "MyAp"));
    EXPECT_THAT(listener.texts, IsEmpty());
}

TEST_F(DesktopPath, OnPurposeWithTheKeyAFolderSearchGoesByTheSearchBefore)
{
    const RegistryValues key{ .values = { { "Other", "x" } } };

    AllowFolderSearch(key);
    EXPECT_FALSE(ScanHasNew);
    GetDesktopPath(listener, key);
    AllowFolderSearch(key);
    EXPECT_TRUE(ScanHasNew);
    ScanHasNew = false;
    AllowFolderSearch(std::nullopt);
    EXPECT_TRUE(ScanHasNew) << "without the key it always adds";
}

TEST_F(DesktopPath, OfTheKeyIsTheValueOfThatName)
{
    PalmDesktopFolder = "/not/asked";

    GetDesktopPath(listener,
        RegistryValues{
            .values = { { "HotSyncPath", "C:\\Sync" }, { "DesktopPath", "C:\\Palm" } } });

    EXPECT_TRUE(ScanHasNew);
    EXPECT_EQ(PalmDesktopPath, "C:\\Palm");
}

TEST_F(DesktopPath, OnPurposeAnyValueOfTheKeyAllowsTheSecondStage)
{
    GetDesktopPath(listener, RegistryValues{ .values = { { "Other", "x" } } });
    EXPECT_TRUE(ScanHasNew);
    EXPECT_EQ(PalmDesktopPath, "");

    GetDesktopPath(listener, RegistryValues{});
    EXPECT_FALSE(ScanHasNew);
}

TEST_F(DesktopPath, AKeyThatCannotBeReadWhollyIsTold)
{
    GetDesktopPath(listener, RegistryValues{ .isWhole = false });

    EXPECT_THAT(listener.texts, ElementsAre("Error finding path to Palm Desktop"));
}

} // namespace
} // namespace vypx::test
