#include "screen/DesktopFixture.h"

#include "support/Files.h"

#include <chrono>
#include <thread>

namespace vypx::test {

namespace {

using FilesFromDesktop = DesktopFixture;

TEST_F(FilesFromDesktop, ARunningCopyWithoutADocumentOpensTheFile)
{
    StartBus();
    const auto copy = StartCopy();
    WaitForCopies(1);

    EXPECT_EQ(Open({ Set("a.prc") }), Done);

    EXPECT_TRUE(WaitForWindow(TitleOf("a.prc")));
    EXPECT_EQ(WaitForCopies(1).size(), 1u);
    EXPECT_EQ(ReadText(File("errors")), "");
}

TEST_F(FilesFromDesktop, ASecondFileGoesToANewCopyAndAThirdToAFreeOne)
{
    StartBus();
    const auto copy = StartCopy();
    WaitForCopies(1);
    Open({ Set("a.prc") });

    EXPECT_EQ(Open({ Set("b.prc") }), Done);
    EXPECT_TRUE(WaitForWindow(TitleOf("b.prc")));
    WaitForCopies(2);
    const auto free = StartCopy();
    WaitForCopies(3);
    EXPECT_EQ(Open({ Set("c.prc") }), Done);

    EXPECT_TRUE(WaitForWindow(TitleOf("c.prc")));
    EXPECT_TRUE(WaitForWindow(TitleOf("a.prc")));
    WaitForCopies(3);
    EXPECT_EQ(Windows(Empty), 0u);
}

TEST_F(FilesFromDesktop, ManyFilesAtOnceComeToACopyEach)
{
    StartBus();
    const auto copy = StartCopy();
    WaitForCopies(1);
    std::vector<std::string> files;
    for (const char* const name : { "a.prc", "b.prc", "c.pdb", "d.vpt", "e.prc", "f.prc" })
        files.push_back(Set(name));

    EXPECT_EQ(Open(files), Done);

    for (const char* const name : { "a.prc", "b.prc", "c.pdb", "d.vpt", "e.prc", "f.prc" })
        EXPECT_TRUE(WaitForWindow(TitleOf(name))) << name;
    EXPECT_EQ(WaitForCopies(6).size(), 6u);
}

TEST_F(FilesFromDesktop, FilesOfSeveralClientsComeToACopyEach)
{
    StartBus();
    const auto copy = StartCopy();
    WaitForCopies(1);

    const auto one = BeginOpen({ Set("a.prc") }), two = BeginOpen({ Set("b.prc") }),
               three = BeginOpen({ Set("c.prc") });

    for (const char* const name : { "a.prc", "b.prc", "c.prc" })
        EXPECT_TRUE(WaitForWindow(TitleOf(name))) << name;
    WaitForCopies(3);
}

TEST_F(FilesFromDesktop, AfterACrashOfTheOwnerTheNextCopyHears)
{
    StartBus();
    const auto one = StartCopy();
    WaitForCopies(1);
    const auto two = StartCopy();
    WaitForCopies(2);
    Crash(Owner());
    WaitForCopies(1);

    EXPECT_EQ(Open({ Set("a.prc") }), Done);

    EXPECT_TRUE(WaitForWindow(TitleOf("a.prc")));
    WaitForCopies(1);
}

TEST_F(FilesFromDesktop, AnOwnerThatCrashesAmidAHandOverIsToldToTheClient)
{
    StartBus();
    const auto owner = StartCopy();
    const std::string ownerName = WaitForCopies(1).at(0);
    Open({ Set("a.prc") });
    const auto other = StartCopy();
    const auto copies = WaitForCopies(2);
    const std::string otherName = copies[0] == ownerName ? copies[1] : copies[0];
    Stop(otherName); // so that the hand-over takes its time

    const auto listener = Listen("IsFree");
    const auto client = BeginOpen({ Set("b.prc") });
    WaitForCall(*listener, "IsFree");
    Crash(ownerName);

    std::string answer;
    for (std::string line = client->ReadLine(); !line.empty(); line = client->ReadLine())
        answer = line;
    EXPECT_EQ(answer, "error");
    Continue(otherName);
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_EQ(Windows(TitleOf("b.prc")), 0u);
    EXPECT_TRUE(IsFree(otherName));
}

TEST_F(FilesFromDesktop, ACopyThatHangsIsPassedOverAndNeverOpensTheFileAfterwards)
{
    StartBus();
    const auto owner = StartCopy();
    const std::string ownerName = WaitForCopies(1).at(0);
    Open({ Set("a.prc") });
    const auto other = StartCopy();
    const auto copies = WaitForCopies(2);
    const std::string otherName = copies[0] == ownerName ? copies[1] : copies[0];
    Stop(otherName);

    EXPECT_EQ(Open({ Set("b.prc") }), Done);
    EXPECT_TRUE(WaitForWindow(TitleOf("b.prc")));
    Continue(otherName);

    WaitForCopies(3);
    EXPECT_TRUE(WaitUntil([&] { return IsFree(otherName); }));
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_EQ(Windows(TitleOf("b.prc")), 1u);
}

TEST_F(FilesFromDesktop, AFileThatWaitsWhenItsCopyIsLeftGoesToAnother)
{
    StartBus();
    const auto first = StartCopy();
    const std::string firstName = WaitForCopies(1).at(0);
    ASSERT_TRUE(WaitForWindow(Empty));
    const auto windows = [&] {
        return screen.Run({ "xdotool", "search", "--onlyvisible", "--class", "vy-pixelworks" });
    };
    const std::size_t before = windows().size();
    ASSERT_TRUE(WaitUntil([&] { return windows().size() > before; }, [&] { screen.Key("alt+f"); }));
    EXPECT_EQ(Open({ Set("a.prc") }), Done);
    EXPECT_FALSE(IsFree(firstName)); // the file waits for the menu's end
    EXPECT_EQ(Windows(TitleOf("a.prc")), 0u);

    screen.Key("Up"); // Exit, the last entry
    screen.Key("Return");

    EXPECT_TRUE(WaitForWindow(TitleOf("a.prc")));
    const auto copies = WaitForCopies(1);
    EXPECT_NE(copies, std::vector<std::string>{ firstName });
}

TEST_F(FilesFromDesktop, SplashIsWaitedForAndThenTheFileComes)
{
    WriteSettings("[Splash Screen]\nShow splash screen at startup=True\n");
    StartBus();
    const auto copy = StartCopy();
    const std::string name = WaitForCopies(1).at(0);
    ASSERT_TRUE(WaitForWindow("Welcome"));
    EXPECT_EQ(Open({ Set("a.prc") }), Done);
    EXPECT_FALSE(IsFree(name));
    EXPECT_EQ(Windows("Welcome"), 1u);

    EXPECT_TRUE(
        WaitUntil([&] { return Windows(TitleOf("a.prc")) == 1; }, [&] { screen.Key("space"); }));
}

TEST_F(FilesFromDesktop, WhatIsNoFileOfThisComputerIsToldAndAnswered)
{
    StartBus();
    const auto copy = StartCopy();
    const std::string name = WaitForCopies(1).at(0);

    const std::string answer = Open({ "file://server/a.prc", Set("a.prc") });

    EXPECT_EQ(answer, "error");
    EXPECT_TRUE(WaitUntil([&] { return !IsFree(name); }));
    EXPECT_EQ(Windows(TitleOf("a.prc")), 0u); // the box stands before it
    screen.Key("Return");
    EXPECT_TRUE(
        WaitUntil([&] { return Windows(TitleOf("a.prc")) == 1; }, [&] { screen.Key("Return"); }));
}

TEST_F(FilesFromDesktop, OddCallsAreAnsweredByErrors)
{
    StartBus();
    const auto copy = StartCopy();
    const std::string name = WaitForCopies(1).at(0);
    const std::string application = "org.freedesktop.Application.";

    EXPECT_EQ(Call(application + "ActivateAction", { "x", "[]", "{}" }), "error");
    EXPECT_EQ(Send(application + "Open", { "int32:7" }), "error");
    EXPECT_EQ(Send(application + "Open", { "array:string:file:///a.prc" }), "error");
    EXPECT_EQ(Send(application + "NoSuch", {}), "error");
    EXPECT_EQ(Send("org.example.Other.Open", {}), "error");
    EXPECT_EQ(Open(std::vector<std::string>(500, "/tmp/a.prc")), "error");

    EXPECT_TRUE(IsFree(name));
    EXPECT_EQ(WaitForCopies(1).size(), 1u);
}

TEST_F(FilesFromDesktop, ACopyTakesNothingThatWouldAskOrIsNoIconset)
{
    StartBus();
    const auto copy = StartCopy();
    const std::string name = WaitForCopies(1).at(0);
    const auto take = [&](const std::string& path, const std::string& token) {
        return Send(name.substr(0, name.find_last_not_of("0123456789") + 1) + ".Take",
            { "string:" + path, "string:" + token, "string:" });
    };

    for (const char* const path : { "", "a.prc", "/tmp/photo.png" })
        EXPECT_EQ(take(path, ""), "error") << path;
    EXPECT_TRUE(IsFree(name));
    EXPECT_NE(take(Set("a.prc"), std::string(100000, 'x')), "error");

    EXPECT_TRUE(WaitForWindow(TitleOf("a.prc")));
}

} // namespace
} // namespace vypx::test
