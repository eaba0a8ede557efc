#ifndef _WIN32

#include "install/InstallWays.h"

#include "document/WorkingFolder.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/TempFolder.h"
#include "support/Variable.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// A folder of palm-sync and one of J-Pilot.
class Ways : public ::testing::Test {
protected:
    Ways()
    {
        std::filesystem::create_directory(folder.File("palm"));
        std::filesystem::create_directory(folder.File(".jpilot"));
        WriteText(folder.File("file"), "");
    }

    std::string Chosen(const std::string& palmSync, const std::string& jpilot) const
    {
        const auto path = [&](const std::string& name) {
            return name.empty() ? name : folder.File(name);
        };
        const auto way = ChooseInstallWay({ .programFolder = folder.Path(),
            .palmSyncFolder = path(palmSync),
            .jpilotFolder = path(jpilot) });
        return way ? way->Description() : "none";
    }

    TempFolder folder;
};

TEST_F(Ways, PalmSyncComesBeforeJPilot)
{
    EXPECT_EQ(Chosen("palm", ".jpilot"), "palm-sync, in " + folder.File("palm"));
    EXPECT_EQ(Chosen("palm", ""), "palm-sync, in " + folder.File("palm"));
}

TEST_F(Ways, JPilotIsTakenWherePalmSyncIsNotSetUp)
{
    for (const char* palmSync : { "", "missing", "file" })
        EXPECT_EQ(Chosen(palmSync, ".jpilot"), "J-Pilot, in " + folder.File(".jpilot")) << palmSync;
}

TEST_F(Ways, ThereIsNoneWhereNoFolderExists)
{
    for (const char* palmSync : { "", "missing", "file" })
        for (const char* jpilot : { "", "missing", "file" })
            EXPECT_EQ(Chosen(palmSync, jpilot), "none") << palmSync << jpilot;
}

TEST_F(Ways, TheLibraryOfThePalmInstallToolIsNoWayHere)
{
    WriteText(folder.File("InstAide.dll"), "");

    EXPECT_EQ(Chosen("", ""), "none");
}

TEST(PlacesForInstall, AreThoseOfSettingsAndSystem)
{
    const Variable own("JPILOT_HOME", nullptr), home("HOME", "/home/ada");
    ProgramFolder = "/opt/pixelworks";
    PalmSyncFolder = "/home/ada/palm";

    const InstallPlaces places = PlacesForInstall();
    ProgramFolder.clear();
    PalmSyncFolder.clear();

    EXPECT_EQ(places.programFolder, "/opt/pixelworks");
    EXPECT_EQ(places.palmSyncFolder, "/home/ada/palm");
    EXPECT_EQ(places.jpilotFolder, "/home/ada/.jpilot");
}

TEST(PlacesForInstall, FollowJPilotsVariableBeforeTheHome)
{
    const Variable home("HOME", "/home/ada");
    {
        const Variable own("JPILOT_HOME", "/srv/pilot");
        EXPECT_EQ(PlacesForInstall().jpilotFolder, "/srv/pilot/.jpilot");
    }
    {
        const Variable own("JPILOT_HOME", "/srv/pilot/");
        EXPECT_EQ(PlacesForInstall().jpilotFolder, "/srv/pilot/.jpilot");
    }
    const Variable own("JPILOT_HOME", "");
    EXPECT_EQ(PlacesForInstall().jpilotFolder, "/home/ada/.jpilot") << "empty counts as unset";
}

TEST(PlacesForInstall, KnowNoJPilotWithoutAHome)
{
    const Variable own("JPILOT_HOME", ""), home("HOME", "");

    EXPECT_EQ(PlacesForInstall().jpilotFolder, "");
    EXPECT_EQ(PlacesForInstall().palmSyncFolder, "") << "as nothing is set";
    EXPECT_FALSE(ChooseInstallWay(PlacesForInstall()));
}

} // namespace
} // namespace vypx::test

#endif
