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
