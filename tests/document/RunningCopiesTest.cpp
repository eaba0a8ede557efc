#include "document/RunningCopies.h"

#include "document/RunCount.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::StartsWith;

class RunningCopiesTest : public ::testing::Test {
protected:
    struct Copy : RunningCopies {
        explicit Copy(const TempFolder& folder) { Enter(folder.Path()); }
    };
    std::unique_ptr<Copy> Start() const { return std::make_unique<Copy>(folder); }
    /// As the program does at its end.
    void Leave(Copy& copy) const
    {
        if (copy.Number() >= 1)
            WriteRunCount(copy.Number() - 1, folder.Path());
        copy.Leave();
    }
    int Count() const { return ReadRunCount(folder.Path()); }

    const TempFolder folder;
};

TEST_F(RunningCopiesTest, TheFirstWorksInTempAndForgetsACountThatACrashLeft)
{
    WriteRunCount(3, folder.Path());

    const auto first = Start();

    EXPECT_FALSE(first->AnotherRan());
    EXPECT_EQ(first->Number(), 0);
    EXPECT_EQ(first->FolderName(), "temp");
    EXPECT_TRUE(fs::is_directory(folder.File("temp")));
    EXPECT_EQ(Count(), 0);
}

TEST_F(RunningCopiesTest, FurtherOnesGetTheNextNumbers)
{
    const auto first = Start(), second = Start(), third = Start();

    EXPECT_TRUE(second->AnotherRan());
    EXPECT_EQ(second->Number(), 1);
    EXPECT_EQ(second->FolderName(), "temp1");
    EXPECT_EQ(third->Number(), 2);
    EXPECT_EQ(third->FolderName(), "temp2");
    EXPECT_TRUE(fs::is_directory(folder.File("temp2")));
    EXPECT_EQ(Count(), 2);
}

TEST_F(RunningCopiesTest, OnPurposeAFourthCopyGetsTheNumberOfOneThatLeft)
{
    const auto first = Start(), second = Start(), third = Start();
    Leave(*second);
    EXPECT_EQ(Count(), 0) << "although the third still runs";

    const auto fourth = Start();

    EXPECT_EQ(fourth->FolderName(), "temp1");
    EXPECT_EQ(Count(), 1);
}

TEST_F(RunningCopiesTest, ANumberWhoseFolderAnotherCopyHoldsIsPassedOver)
{
    const auto first = Start(), second = Start(), third = Start();
    Leave(*second);
    const auto fourth = Start();

    const auto fifth = Start();

    EXPECT_EQ(third->FolderName(), "temp2");
    EXPECT_EQ(fifth->FolderName(), "temp3");
    EXPECT_EQ(fifth->Number(), 3);
    EXPECT_EQ(Count(), 3);
}

TEST_F(RunningCopiesTest, AnyOtherCountsEvenWhenTheFirstHasLeft)
{
    const auto first = Start(), second = Start();
    Leave(*first);

    const auto third = Start();

    EXPECT_TRUE(third->AnotherRan());
    EXPECT_EQ(third->FolderName(), "temp2");
}

TEST_F(RunningCopiesTest, ALockFileThatACrashLeftIsNotBelieved)
{
    fs::create_directory(folder.File("temp"));
    WriteText(folder.File("temp/in-use.lock"), "");

    const auto copy = Start();

    EXPECT_FALSE(copy->AnotherRan());
    EXPECT_EQ(copy->FolderName(), "temp");
}

TEST_F(RunningCopiesTest, TheCountIsNotWhatKeepsCopiesApart)
{
    const auto first = Start(), second = Start();
    WriteRunCount(0, folder.Path());

    const auto third = Start();

    EXPECT_EQ(third->FolderName(), "temp2");
}

TEST_F(RunningCopiesTest, WithoutTheGateTheLocksDecideAlone)
{
    fs::create_directory(folder.File("copies.lock"));

    const auto first = Start(), second = Start();

    EXPECT_EQ(first->FolderName(), "temp");
    EXPECT_EQ(second->FolderName(), "temp1");
}

TEST_F(RunningCopiesTest, WhereTheFolderCannotBeLockedOneOfTheProcessServes)
{
    fs::create_directories(folder.File("temp/in-use.lock")); // no file, so it can't be locked

    const auto first = Start();

    EXPECT_THAT(
        first->FolderName(), StartsWith("temp-" + std::to_string(platform::ProcessNumber())));
    EXPECT_EQ(first->Number(), 0);
    const auto second = Start();
    EXPECT_TRUE(second->AnotherRan());
    EXPECT_EQ(second->FolderName(), "temp1");
}

TEST_F(RunningCopiesTest, AFolderOfTheProcessIsNeverOneThatIsThereAlready)
{
    fs::create_directories(folder.File("temp/in-use.lock"));
    const std::string name = "temp-" + std::to_string(platform::ProcessNumber()) + "-1";
    fs::create_directory(folder.File(name));

    const auto copy = Start();

    EXPECT_NE(copy->FolderName(), name);
    EXPECT_TRUE(fs::is_directory(folder.File(copy->FolderName())));
}

TEST_F(RunningCopiesTest, ANumberedFolderStaysAndOneOfTheProcessGoes)
{
    const auto first = Start(), second = Start();
    WriteRunCount(0, folder.Path());
    fs::create_directories(folder.File("temp1"));
    Leave(*second);
    EXPECT_TRUE(fs::is_directory(folder.File("temp1")));
    fs::remove_all(folder.File("temp1"));
    WriteText(folder.File("temp1"), "a file in the way");
    const auto third = Start();
    const std::string name = third->FolderName();
    EXPECT_TRUE(fs::is_directory(folder.File(name)));

    Leave(*third);

    EXPECT_THAT(name, StartsWith("temp-"));
    EXPECT_FALSE(fs::exists(folder.File(name)));
}

TEST_F(RunningCopiesTest, ACountThatCannotBeWrittenIsToldAndTheFolderTakenAllTheSame)
{
    fs::create_directory(folder.File("VYPX.ini"));
    RunningCopies copy;

    EXPECT_FALSE(copy.Enter(folder.Path()));

    EXPECT_EQ(copy.FolderName(), "temp");
    EXPECT_TRUE(Start()->AnotherRan());
}

TEST_F(RunningCopiesTest, WhereNothingCanBeMadeItBelievesToBeAlone)
{
    RunningCopies copy;

    EXPECT_FALSE(copy.Enter(folder.File("missing/program")));

    EXPECT_FALSE(copy.AnotherRan());
    EXPECT_EQ(copy.Number(), 0);
}

} // namespace
} // namespace vypx::test
