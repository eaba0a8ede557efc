#include "install/InstallResult.h"

#include <gtest/gtest.h>

namespace vypx {
namespace {

constexpr std::string_view UnknownText =
    "Error! Unknown error while trying to send the iconset to the Palm Install tool.";

TEST(InstallMessage, SaysNothingOfASuccess) { EXPECT_EQ(InstallMessage(0), ""); }

TEST(InstallMessage, KnowsTheThreeFailuresOfTheTable)
{
    EXPECT_EQ(InstallMessage(-512),
        "Error! An iconset with this filename is already waiting to be hotsynced.");
    EXPECT_EQ(InstallMessage(-554),
        "Error! The Palm User ID does not appear to be correct.\n"
        "Please check the Palm User ID in the Program Options screen.");
    EXPECT_EQ(InstallMessage(-513), "Error! The install tool was unable to locate the file.");
}

TEST(InstallMessage, TellsAllOthersAlike)
{
    for (const int result : { 1, -1, 512, 513, 554, -511, -514, -553, -555, 32767, -32768 })
        EXPECT_EQ(InstallMessage(static_cast<std::int16_t>(result)), UnknownText) << result;
}

TEST(InstallResult, HasTheNumbersOfThePalmInstallTool)
{
    EXPECT_EQ(InstallResult::Queued, 0);
    EXPECT_EQ(static_cast<std::uint16_t>(InstallResult::AlreadyWaiting), 0xFE00);
    EXPECT_EQ(static_cast<std::uint16_t>(InstallResult::WrongUser), 0xFDD6);
    EXPECT_EQ(static_cast<std::uint16_t>(InstallResult::FileMissing), 0xFDFF);
    EXPECT_EQ(InstallMessage(InstallResult::Unknown), UnknownText);
}

} // namespace
} // namespace vypx
