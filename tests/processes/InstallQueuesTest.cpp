#include "Child.h"
#include "FaultAt.h"
#include "support/InstallFixture.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <sstream>
#include <tuple>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

/// A queue of either way, and what it is to become when "set.prc" is queued.
struct QueueCase {
    std::string name, way;
    std::string queue;                 ///< path of its file from the home of both
    std::optional<std::string> before; ///< empty: neither file nor palm-sync's "install"
    std::string word;                  ///< in the paths of all that is done to it

    friend void PrintTo(const QueueCase& queueCase, std::ostream* out) { *out << queueCase.name; }
};

std::string AsText(const Bytes& bytes) { return { bytes.begin(), bytes.end() }; }

const std::vector<QueueCase> Cases{
    { "PalmSync", "palm-sync", "Ada/install/set.prc", AsText(PalmDatabase("My Icons", "older")),
        "Ada/install" },
    { "PalmSyncFirst", "palm-sync", "Ada/install/set.prc", {}, "Ada/install" },
    { "JPilot", "jpilot", "jpilot.install", "/a.prc\n/without its end.prc", "jpilot.install" },
    { "JPilotFirst", "jpilot", "jpilot.install", {}, "jpilot.install" },
};

/// Every operation of a queueing fails once in every way, or the process dies there.
class InstallFaults : public ::testing::WithParamInterface<std::tuple<QueueCase, std::string>>,
                      public InstallFixture {
protected:
    InstallFaults() { Restore(); }

    void Restore() const
    {
        fs::remove_all(Home());
        fs::create_directories(Home() + "/Ada");
        if (!Case().before)
            return;
        fs::create_directories(fs::path(Queue()).parent_path());
        WriteText(Queue(), *Case().before);
    }
    std::optional<std::string> Now() const
    {
        return fs::exists(Queue()) ? std::optional(ReadText(Queue())) : std::nullopt;
    }
    std::optional<std::string> Changed() const
    {
        if (Case().way == "palm-sync")
            return ReadText(folder.File("set.prc"));
        const std::string lines = Case().before ? *Case().before + "\n" : "";
        return lines + folder.File("set.prc") + "\n";
    }
    /// Nothing stands beside the queue, or in its place where it was not made.
    void ExpectNothingBesideTheQueue(int at) const
    {
        const bool isThere = Now().has_value();
        if (Case().way == "jpilot") {
            EXPECT_EQ(NamesIn(Home()),
                isThere ? std::set<std::string>({ "Ada", "jpilot.install" })
                        : std::set<std::string>({ "Ada" }))
                << at;
            return;
        }
        EXPECT_EQ(NamesIn(Home() + "/Ada").size(), isThere ? 1u : 0u) << at;
        if (isThere) {
            EXPECT_THAT(NamesIn(Home() + "/Ada/install"), ElementsAre("set.prc")) << at;
        }
    }

    /// Queues with its `at`-th operation at fault; 0: none.
    int Run(int at) const
    {
        return Child({ VYPX_INSTALL_HELPER, Case().way, Home(), folder.File("set.prc") },
            FaultAt(Case().word, Kind(), at, folder.File("count")))
            .Wait();
    }

    const QueueCase& Case() const { return std::get<0>(GetParam()); }
    const std::string& Kind() const { return std::get<1>(GetParam()); }
    std::string Home() const { return folder.File("home"); }
    std::string Queue() const { return Home() + "/" + Case().queue; }
};

TEST_P(InstallFaults, LeaveTheOldQueueOrTheNewAndTellWhich)
{
    ASSERT_EQ(Run(0), 0);
    ASSERT_EQ(Now(), Changed());
    ExpectNothingBesideTheQueue(0);
    const int operations = std::stoi(ReadText(folder.File("count")));
    EXPECT_GE(operations, 9) << "a lock taken and left; a file locked, written, synced and renamed";

    int told = 0;
    for (int at = 1; at <= operations; ++at) {
        Restore();
        const int exitCode = Run(at);

        EXPECT_TRUE(exitCode == (Kills(Kind()) ? -1 : 0) || exitCode == 1) << exitCode;
        EXPECT_EQ(exitCode == -1, Kills(Kind())) << at;
        EXPECT_TRUE(Now() == Case().before || Now() == Changed()) << "a third thing after " << at;
        if (!Kills(Kind())) {
            EXPECT_EQ(Now() == Changed(), exitCode == 0) << "told wrongly, at " << at;
            ExpectNothingBesideTheQueue(at);
        }
        told += exitCode == 1 ? 1 : 0;
        EXPECT_EQ(Run(0), 0) << "what is left must not block the next one, after " << at;
        EXPECT_EQ(Now(), Changed());
        ExpectNothingBesideTheQueue(at);
    }
    if (Kind() == "space" || Kind() == "io") {
        EXPECT_GE(told, 5) << "open, write, sync, close and rename of the file at least";
    }
}

INSTANTIATE_TEST_SUITE_P(Queues, InstallFaults,
    ::testing::Combine(::testing::ValuesIn(Cases),
        ::testing::Values("space", "io", "short", "before", "within", "after")),
    [](const auto& name) { return std::get<0>(name.param).name + "_" + std::get<1>(name.param); });

/// Two copies of the program that queue at once, each its own files.
class InstallTurns : public InstallFixture {
protected:
    InstallTurns()
    {
        fs::create_directories(folder.File("home/Ada"));
        for (const char copy : { 'a', 'b' })
            for (int i = 0; i < Files; ++i) {
                const std::string path = folder.File(copy + std::to_string(i) + ".prc");
                WriteBytes(path, PalmDatabase(path));
                (copy == 'a' ? first : second).push_back(path);
            }
    }
    /// Both have queued all of theirs.
    void QueueBoth(const std::string& way) const
    {
        const auto command = [&](const std::vector<std::string>& files) {
            std::vector<std::string> words{ VYPX_INSTALL_HELPER, way, folder.File("home") };
            words.insert(words.end(), files.begin(), files.end());
            return words;
        };
        Child one(command(first)), other(command(second));
        EXPECT_EQ(one.Wait(), 0);
        EXPECT_EQ(other.Wait(), 0);
    }

    static constexpr int Files = 200 / VYPX_ROUNDS_DIVISOR;
    std::vector<std::string> first, second;
};

TEST_F(InstallTurns, LoseNoLineOfJPilotsList)
{
    QueueBoth("jpilot");

    std::istringstream text(ReadText(folder.File("home/jpilot.install")));
    std::vector<std::string> lines, all = first;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    all.insert(all.end(), second.begin(), second.end());
    EXPECT_THAT(lines, ::testing::UnorderedElementsAreArray(all));
    EXPECT_THAT(NamesIn(folder.File("home")), ElementsAre("Ada", "jpilot.install"));
}

TEST_F(InstallTurns, LoseNoFileOfPalmSyncsQueue)
{
    QueueBoth("palm-sync");

    for (const std::vector<std::string>& files : { first, second })
        for (const std::string& file : files) {
            const std::string name = fs::path(file).filename().string();
            EXPECT_EQ(ReadBytes(folder.File("home/Ada/install/" + name)), PalmDatabase(file));
        }
    EXPECT_EQ(NamesIn(folder.File("home/Ada/install")).size(), first.size() + second.size());
}

TEST_F(InstallTurns, OfOneNameGiveOneOfThemWhole)
{
    second = first; // both queue the same files

    QueueBoth("palm-sync");

    for (const std::string& file : first) {
        const std::string name = fs::path(file).filename().string();
        EXPECT_EQ(ReadBytes(folder.File("home/Ada/install/" + name)), PalmDatabase(file));
    }
    EXPECT_EQ(NamesIn(folder.File("home/Ada/install")).size(), first.size());
}

} // namespace
} // namespace vypx::test
