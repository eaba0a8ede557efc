#include "support/InstallFixture.h"

#include "support/Skips.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

/// The queue of palm-sync where something has the name of the copy already.
class PalmSyncWaiting : public InstallFixture {
protected:
    PalmSyncWaiting() { fs::create_directories(folder.File("sync/Ada/install")); }

    std::int16_t Queue(std::string file) const
    {
        std::string user = "Ada";
        return MakePalmSyncWay(folder.File("sync"))->Install(user, file);
    }
    std::int16_t QueueOver(const Bytes& waiting) const
    {
        WriteBytes(Waiting(), waiting);
        return Queue(folder.File("set.prc"));
    }
    void ExpectOnlyTheCopyInTheQueue() const
    {
        EXPECT_THAT(NamesIn(folder.File("sync/Ada/install")), ElementsAre("set.prc"));
    }
    std::string Waiting() const { return folder.File("sync/Ada/install/set.prc"); }

    const Bytes set = PalmDatabase("My Icons");
};

TEST_F(PalmSyncWaiting, AnOlderIconsetOfTheSameNameIsReplaced)
{
    EXPECT_EQ(QueueOver(PalmDatabase("My Icons", "older, and longer")), InstallResult::Queued);

    EXPECT_EQ(ReadBytes(Waiting()), set);
    ExpectOnlyTheCopyInTheQueue();
}

TEST_F(PalmSyncWaiting, NamesEndAsReadersEndThem)
{
    Bytes sameToReaders = PalmDatabase("My Icons");
    sameToReaders[8] = 127;
    sameToReaders[9] = 'x';
    EXPECT_EQ(QueueOver(sameToReaders), InstallResult::Queued);
    EXPECT_EQ(ReadBytes(Waiting()), set);

    const std::string full = "123456789 123456789 123456789 12"; // no zero behind it
    WriteBytes(folder.File("set.prc"), PalmDatabase(full));
    EXPECT_EQ(QueueOver(PalmDatabase(full, "older")), InstallResult::Queued);
    EXPECT_EQ(ReadBytes(Waiting()), PalmDatabase(full));
}

TEST_F(PalmSyncWaiting, AnyOtherDatabaseStays)
{
    for (const char* name : { "my icons", "My Icons ", "My Icon", "My Icons~", "" }) {
        EXPECT_EQ(QueueOver(PalmDatabase(name)), InstallResult::AlreadyWaiting) << name;

        EXPECT_EQ(ReadBytes(Waiting()), PalmDatabase(name));
        ExpectOnlyTheCopyInTheQueue();
    }
}

TEST_F(PalmSyncWaiting, AFileThatIsTooShortForADatabaseStays)
{
    Bytes shortened = set;
    shortened.resize(77);
    EXPECT_EQ(QueueOver(shortened), InstallResult::AlreadyWaiting);
    EXPECT_EQ(ReadBytes(Waiting()), shortened);
    EXPECT_EQ(QueueOver({}), InstallResult::AlreadyWaiting);

    shortened.resize(78);
    EXPECT_EQ(QueueOver(shortened), InstallResult::Queued);
    EXPECT_EQ(ReadBytes(Waiting()), set);
}

TEST_F(PalmSyncWaiting, AFolderStays)
{
    fs::create_directory(Waiting());

    EXPECT_EQ(Queue(folder.File("set.prc")), InstallResult::AlreadyWaiting);

    EXPECT_TRUE(fs::is_directory(Waiting()));
    ExpectOnlyTheCopyInTheQueue();
}

TEST_F(PalmSyncWaiting, ALinkStaysAndSoDoesWhatItLeadsTo)
{
    SKIP_WITHOUT_LINKS();
    for (const char* target : { "real.prc", "missing.prc", "set.prc" }) {
        WriteBytes(folder.File("real.prc"), PalmDatabase("My Icons", "older"));
        fs::remove(Waiting());
        fs::create_symlink(folder.File(target), Waiting());

        EXPECT_EQ(Queue(folder.File("set.prc")), InstallResult::AlreadyWaiting) << target;

        EXPECT_TRUE(fs::is_symlink(Waiting()));
        EXPECT_EQ(ReadBytes(folder.File("real.prc")), PalmDatabase("My Icons", "older"));
        EXPECT_FALSE(fs::exists(folder.File("missing.prc")));
        EXPECT_EQ(ReadBytes(folder.File("set.prc")), set);
        ExpectOnlyTheCopyInTheQueue();
    }
}

TEST_F(PalmSyncWaiting, TheVeryFileThatIsToBeQueuedIsASuccessAndStaysAsItIs)
{
    WriteBytes(Waiting(), set);
    const auto before = platform::IdentityOf(Waiting());

    EXPECT_EQ(Queue(Waiting()), InstallResult::Queued);
    EXPECT_EQ(Queue(folder.File("sync/../sync/Ada/install/set.prc")), InstallResult::Queued);

    EXPECT_EQ(platform::IdentityOf(Waiting()), before) << "not even written";
    ExpectOnlyTheCopyInTheQueue();
}

TEST_F(PalmSyncWaiting, ALinkAsTheFileIsQueuedAsWhatItLeadsTo)
{
    SKIP_WITHOUT_LINKS();
    fs::create_symlink(folder.File("set.prc"), folder.File("link.prc"));

    EXPECT_EQ(Queue(folder.File("link.prc")), InstallResult::Queued);

    const std::string copy = folder.File("sync/Ada/install/link.prc");
    EXPECT_FALSE(fs::is_symlink(copy));
    EXPECT_EQ(ReadBytes(copy), set);
}

TEST_F(PalmSyncWaiting, AQueueBehindALinkIsUsed)
{
    SKIP_WITHOUT_LINKS();
    fs::create_directory(folder.File("elsewhere"));
    fs::remove(folder.File("sync/Ada/install"));
    fs::create_directory_symlink(folder.File("elsewhere"), folder.File("sync/Ada/install"));

    EXPECT_EQ(Queue(folder.File("set.prc")), InstallResult::Queued);

    EXPECT_THAT(NamesIn(folder.File("elsewhere")), ElementsAre("set.prc"));
    EXPECT_TRUE(fs::is_symlink(folder.File("sync/Ada/install")));
}

} // namespace
} // namespace vypx::test
