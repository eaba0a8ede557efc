#include "ThumbnailFixture.h"

#include <sys/stat.h>
#include <unistd.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;

using ThumbnailFiles = ThumbnailFixture;

TEST_F(ThumbnailFiles, TheSameSetGivesTheSameBytes)
{
    Write(SoundSet());
    ASSERT_EQ(Run().exitCode, 0);
    const Bytes first = ReadBytes(folder.File("out.png"));
    ASSERT_EQ(Run().exitCode, 0);
    EXPECT_EQ(ReadBytes(folder.File("out.png")), first);
}

TEST_F(ThumbnailFiles, WhatIsNoIconsetLeavesOutAsItWas)
{
    WriteText(folder.File("out.png"), "old");
    WriteText(folder.File("set.prc"), "short");
    EXPECT_EQ(Run().exitCode, 1);

    std::filesystem::remove(folder.File("set.prc"));
    EXPECT_EQ(Run().exitCode, 1);

    ASSERT_EQ(::mkfifo(folder.File("set.prc").c_str(), 0600), 0);
    EXPECT_EQ(Run().exitCode, 1) << "a pipe never ends";
    EXPECT_EQ(RunTool({ "thumbnail", "/dev/zero", folder.File("out.png") }).exitCode, 1);
    EXPECT_EQ(RunTool({ "thumbnail", folder.Path(), folder.File("out.png") }).exitCode, 1);

    EXPECT_EQ(ReadText(folder.File("out.png")), "old");
}

TEST_F(ThumbnailFiles, EqualTextsOfALoadAreToldOnceWithTheirNumber)
{
    Iconset set = SoundSet();
    for (int i = 0; i < 300; ++i)
        set.resources.push_back({ "abmp", 4000 + i, { 1, 2 } });
    for (int i = 0; i < 3; ++i) // of one label
        set.resources.push_back({ i == 0 ? "Tbmp" : "abmp", 3500, Family(1) });
    Write(set);

    const ToolRun run = Run();

    EXPECT_EQ(run.exitCode, 0);
    EXPECT_THAT(run.errors,
        HasSubstr("pixelworks-cli: Warning, file contains a duplicate resource! (2 times)\n"));
}

TEST_F(ThumbnailFiles, AFileBeyondTheLimitIsNotRead)
{
    Write(SoundSet());
    std::filesystem::resize_file(folder.File("set.prc"), (1u << 24) + 10'000'001);

    EXPECT_EQ(Run().errors, "pixelworks-cli: The file could not be read.\n");
}

TEST_F(ThumbnailFiles, OutThatCannotBeWrittenIsTold)
{
    Write(SoundSet());
    const auto runTo = [&](const std::string& out) {
        return RunTool({ "thumbnail", folder.File("set.prc"), out });
    };

    EXPECT_EQ(runTo(folder.File("gone/out.png")).exitCode, 1);
    std::filesystem::create_directory(folder.File("folder"));
    EXPECT_THAT(runTo(folder.File("folder")).errors, HasSubstr("there is a folder of this name"));
    EXPECT_EQ(runTo(folder.File("folder")).exitCode, 1);
    const Bytes set = ReadBytes(folder.File("set.prc"));
    EXPECT_EQ(runTo(folder.File("set.prc")).exitCode, 2);
    EXPECT_EQ(ReadBytes(folder.File("set.prc")), set);
    EXPECT_EQ(runTo("/dev/full").exitCode, 1);
    EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "folder" }));
}

TEST_F(ThumbnailFiles, ADanglingLinkIsFollowed)
{
    Write(SoundSet());
    std::filesystem::create_symlink(folder.File("real.png"), folder.File("out.png"));

    EXPECT_EQ(Run().exitCode, 0);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.File("out.png")));
    EXPECT_TRUE(std::filesystem::is_regular_file(folder.File("real.png")));
}

TEST_F(ThumbnailFiles, AFullDiskLeavesTheOldPicture)
{
    Write(SoundSet());
    const auto runWithFault = [&](int at) {
        WriteText(folder.File("out.png"), "old");
        return Run({},
            "LD_PRELOAD=" VYPX_FAULTS " ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 "
            "FAULT_PATH=out.png FAULT_KIND=space FAULT_AT="
                + std::to_string(at) + " FAULT_COUNT=" + folder.File("count"));
    };
    ASSERT_EQ(runWithFault(0).exitCode, 0);
    const int operations = std::stoi(ReadText(folder.File("count")));
    int told = 0;
    for (int at = 1; at <= operations; ++at) {
        const ToolRun run = runWithFault(at);
        EXPECT_EQ(run.exitCode == 1, !run.errors.empty()) << at;
        EXPECT_EQ(run.exitCode == 1, ReadText(folder.File("out.png")) == "old") << at;
        EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc", "out.png", "count" })) << at;
        told += run.exitCode;
    }
    EXPECT_GE(told, 4) << "an open, a write, a sync and a rename at least";
}

TEST_F(ThumbnailFiles, WrongUseIsExitCode2)
{
    Write(SoundSet());
    EXPECT_EQ(Run({ "--size", "15" }).exitCode, 2);
    EXPECT_EQ(Run({ "--size", "1025" }).exitCode, 2);
    EXPECT_EQ(Run({ "--app-folder", folder.File("gone") }).exitCode, 2);
    EXPECT_EQ(RunTool({ "thumbnail", folder.File("set.prc") }).exitCode, 2);
}

TEST_F(ThumbnailFiles, AFolderOfCatalogsIsNotRepaired)
{
    Write(SoundSet());
    std::filesystem::create_directory(folder.File("catalogs"));
    const std::string text = "[Alpha]\nType=appl\nCreator=AL\n"; // without braces
    WriteText(folder.File("catalogs/AppList.dat"), text);
    WriteText(folder.File("catalogs/PalmApp.dat"), "");
    WriteText(folder.File("catalogs/VY_Icons.dat"), "");

    EXPECT_EQ(Run({ "--app-folder", folder.File("catalogs") }).exitCode, 0);

    EXPECT_EQ(ReadText(folder.File("catalogs/AppList.dat")), text);
    EXPECT_EQ(Listing("catalogs").size(), 3u);
}

TEST(Version, IsTold)
{
    const ToolRun run = RunTool({ "--version" });
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.output, "pixelworks-cli (VY Pixelworks) 2.0.0\n");
}

} // namespace
} // namespace vypx::test
