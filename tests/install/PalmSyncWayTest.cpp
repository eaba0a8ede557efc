#include "support/CommonUser.h"
#include "support/InstallFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PalmSyncWay : public InstallFixture {
protected:
    PalmSyncWay() { fs::create_directories(folder.File("sync/Ada")); }

    std::int16_t Queue(std::string file, std::string user = "Ada") const
    {
        return MakePalmSyncWay(folder.File("sync"))->Install(user, file);
    }
    std::int16_t QueueSet(const std::string& user = "Ada") const
    {
        return Queue(folder.File("set.prc"), user);
    }
    /// A file under another name is queued; the name of its copy.
    std::string CopyOf(const std::string& name) const
    {
        fs::remove_all(Waiting(""));
        WriteBytes(folder.File(name), PalmDatabase("My Icons"));
        EXPECT_EQ(Queue(folder.File(name)), InstallResult::Queued) << name;
        const std::set<std::string> names = NamesIn(Waiting(""));
        EXPECT_EQ(names.size(), 1u) << name;
        return names.empty() ? "" : *names.begin();
    }
    std::string Waiting(const std::string& name) const
    {
        return folder.File("sync/Ada/install/" + name);
    }
};

TEST_F(PalmSyncWay, CopiesTheFileIntoTheQueueOfTheUserAndMakesThatOne)
{
    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_EQ(ReadBytes(Waiting("set.prc")), PalmDatabase("My Icons"));
    EXPECT_THAT(NamesIn(Waiting("")), ElementsAre("set.prc")) << "nothing beside it";
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), ElementsAre("install"));
    EXPECT_EQ(ReadBytes(folder.File("set.prc")), PalmDatabase("My Icons")) << "and stays";
}

TEST_F(PalmSyncWay, LeavesAloneWhatWaitsThereUnderOtherNames)
{
    fs::create_directory(Waiting(""));
    WriteText(Waiting("other.prc"), "x");

    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_THAT(NamesIn(Waiting("")), ElementsAre("other.prc", "set.prc"));
    EXPECT_EQ(ReadText(Waiting("other.prc")), "x");
}

TEST_F(PalmSyncWay, GivesTheCopyAnEndingThatTheToolTakes)
{
    EXPECT_EQ(CopyOf("a.prc"), "a.prc");
    EXPECT_EQ(CopyOf("b.PRC"), "b.prc");
    EXPECT_EQ(CopyOf("C.Prc"), "C.prc");
    EXPECT_EQ(CopyOf("d.PDB"), "d.pdb");
    EXPECT_EQ(CopyOf("e.vpt"), "e.vpt.prc");
    EXPECT_EQ(CopyOf("f"), "f.prc");
    EXPECT_EQ(CopyOf("prc"), "prc.prc");
    EXPECT_EQ(CopyOf(".PRC"), ".prc");
    EXPECT_EQ(CopyOf("g.prc.bak"), "g.prc.bak.prc");
    EXPECT_EQ(CopyOf("h.prc "), "h.prc .prc");
    EXPECT_EQ(CopyOf("\xC3\x84ndern \xE2\x82\xAC.PRC"), "\xC3\x84ndern \xE2\x82\xAC.prc");
}

TEST_F(PalmSyncWay, FindsTheFolderOfAUserWithAnUmlaut)
{
    fs::create_directory(platform::NativePath(folder.File("sync/J\xC3\xBCrgen M\xC3\xBCller")));

    EXPECT_EQ(QueueSet("J\xFCrgen M\xFCller"), InstallResult::Queued);

    EXPECT_THAT(
        NamesIn(folder.File("sync/J\xC3\xBCrgen M\xC3\xBCller/install")), ElementsAre("set.prc"));
}

TEST_F(PalmSyncWay, RefusesAUserWithoutAFolder)
{
    WriteText(folder.File("sync/File"), "");

    for (const std::string user : { "Bob", "File" })
        EXPECT_EQ(QueueSet(user), InstallResult::WrongUser) << user;

    EXPECT_THAT(NamesIn(folder.File("sync")), ElementsAre("Ada", "File"));
}

TEST_F(PalmSyncWay, RefusesAUserThatNoSystemHasAFolderFor)
{
    EXPECT_EQ(QueueSet(std::string(1000, 'x')), InstallResult::WrongUser);
}

TEST_F(PalmSyncWay, RefusesAUserThatLeadsOutOfTheFolder)
{
    const std::string cut("Ada\0", 4);
    for (const std::string& user :
        { std::string(), std::string("."), std::string(".."), std::string("../sync/Ada"),
            std::string("Ada/"), std::string("/"), folder.File("sync/Ada"), cut })
        EXPECT_EQ(QueueSet(user), InstallResult::WrongUser) << user;

    EXPECT_THAT(NamesIn(folder.File("sync")), ElementsAre("Ada"));
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), IsEmpty());
}

TEST_F(PalmSyncWay, AnswersWithTheUserWhenTheSyncFolderHasGone)
{
    fs::remove_all(folder.File("sync"));

    EXPECT_EQ(QueueSet(), InstallResult::WrongUser);

    EXPECT_FALSE(fs::exists(folder.File("sync")));
}

TEST_F(PalmSyncWay, TellsOfAMissingFileBeforeAnythingElse)
{
    fs::create_directory(folder.File("folder.prc"));

    EXPECT_EQ(Queue(folder.File("missing.prc")), InstallResult::FileMissing);
    EXPECT_EQ(Queue(folder.File("missing.prc"), "Bob"), InstallResult::FileMissing);
    EXPECT_EQ(Queue(folder.File("folder.prc")), InstallResult::FileMissing);
    EXPECT_EQ(Queue(""), InstallResult::FileMissing);

    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), IsEmpty());
}

TEST_F(PalmSyncWay, TakesNoFileThatIsTooShortForADatabase)
{
    WriteBytes(folder.File("set.prc"), Bytes(77));
    EXPECT_EQ(QueueSet(), InstallResult::Unknown);
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), IsEmpty());

    WriteBytes(folder.File("set.prc"), Bytes(78));
    EXPECT_EQ(QueueSet(), InstallResult::Queued);
}

TEST_F(PalmSyncWay, FailsWhereAFileStandsInTheQueuesPlace)
{
    WriteText(folder.File("sync/Ada/install"), "mine");

    EXPECT_EQ(QueueSet(), InstallResult::Unknown);

    EXPECT_EQ(ReadText(folder.File("sync/Ada/install")), "mine");
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), ElementsAre("install"));
}

TEST_F(PalmSyncWay, TakesAQueueThatItMadeAwayAgainWhenNothingCameIntoIt)
{
    const std::string longest = std::string(251, 'x') + ".vpt"; // as a copy it has no name
    WriteBytes(folder.File(longest), PalmDatabase("My Icons"));

    EXPECT_EQ(Queue(folder.File(longest)), InstallResult::Unknown);
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), IsEmpty());

    fs::create_directory(Waiting(""));
    EXPECT_EQ(Queue(folder.File(longest)), InstallResult::Unknown);
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), ElementsAre("install")) << "not its own";
    EXPECT_THAT(NamesIn(Waiting("")), IsEmpty());
}

TEST_F(PalmSyncWay, QueuesWhereTurnsCannotBeTaken)
{
    fs::create_directories(Waiting("vypx.lock"));

    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_THAT(NamesIn(Waiting("")), ElementsAre("set.prc", "vypx.lock"));
}

TEST_F(PalmSyncWay, SaysWhereTheFileWaitsAndWhatIsToBeDone)
{
    const auto way = MakePalmSyncWay("/home/ada/palm");

    EXPECT_TRUE(way->UsesUser());
    EXPECT_EQ(way->Description(), "palm-sync, in /home/ada/palm");
#ifndef _WIN32
    EXPECT_EQ(way->WhatNext("J\xFCrgen", "/tmp/Set.PRC"),
        "It waits as Set.prc in /home/ada/palm/J\xC3\xBCrgen/install. Run palm-sync sync "
        "\"J\xC3\xBCrgen\" -d \"/home/ada/palm\", then press HotSync on the handheld.");
    EXPECT_THAT(way->WhatNext("A\"$`\\", "/tmp/set.prc"),
        ::testing::HasSubstr("sync \"A\\\"\\$\\`\\\\\" -d"));
#endif
}

#ifndef _WIN32

TEST_F(PalmSyncWay, GivesTheCopyTheRightsOfTheFile)
{
    fs::permissions(folder.File("set.prc"), fs::perms(0640));

    EXPECT_EQ(QueueSet(), InstallResult::Queued);

    EXPECT_EQ(fs::status(Waiting("set.prc")).permissions(), fs::perms(0640));
}

TEST_F(PalmSyncWay, FailsWhereItMayNotReadOrWrite)
{
    const auto queue = [&] {
        const CommonUser common;
        return QueueSet();
    };
    fs::create_directory(Waiting(""));
    fs::permissions(folder.File("set.prc"), fs::perms::none);
    EXPECT_EQ(queue(), InstallResult::Unknown) << "a file that can't be read";

    fs::permissions(folder.File("set.prc"), fs::perms(0644));
    fs::permissions(Waiting(""), fs::perms(0555));
    EXPECT_EQ(queue(), InstallResult::Unknown) << "a queue that can't be written";

    fs::remove(Waiting(""));
    fs::permissions(folder.File("sync/Ada"), fs::perms(0555));
    EXPECT_EQ(queue(), InstallResult::Unknown) << "a queue that can't be made";

    fs::permissions(folder.File("sync"), fs::perms::none);
    EXPECT_EQ(queue(), InstallResult::Unknown) << "users that can't be looked at";

    fs::permissions(folder.File("sync"), fs::perms::owner_all);
    EXPECT_THAT(NamesIn(folder.File("sync/Ada")), IsEmpty());
    fs::permissions(folder.File("sync/Ada"), fs::perms::owner_all);
}

#endif

} // namespace
} // namespace vypx::test
