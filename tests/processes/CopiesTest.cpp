#include "Child.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <random>

namespace vypx::test {

namespace {

/// Copies of the program as processes of their own, over one program folder.
class Copies : public ::testing::Test {
protected:
    struct Copy {
        std::unique_ptr<Child> process;
        std::string folder; ///< name of its working folder, once it has told it
    };

    std::size_t Start()
    {
        m_copies.push_back({ std::make_unique<Child>(
                                 std::vector<std::string>{ VYPX_HELPER, "copy", program.Path() }),
            {} });
        return m_copies.size() - 1;
    }
    /// Waits until the copy is at work; no other one may work in its folder.
    std::string Started(std::size_t copy)
    {
        const std::string name = m_copies[copy].process->ReadLine();
        EXPECT_FALSE(name.empty());
        for (const Copy& other : m_copies)
            EXPECT_NE(other.folder, name) << "two live copies in one folder";
        return m_copies[copy].folder = name;
    }
    void Leave(std::size_t copy)
    {
        m_copies[copy].process->Say("leave");
        EXPECT_EQ(m_copies[copy].process->Wait(), 0) << "3: another one worked in its folder";
        m_copies.erase(m_copies.begin() + static_cast<std::ptrdiff_t>(copy));
    }
    void Kill(std::size_t copy)
    {
        m_copies[copy].process->Kill();
        EXPECT_EQ(m_copies[copy].process->Wait(), -1);
        m_copies.erase(m_copies.begin() + static_cast<std::ptrdiff_t>(copy));
    }

    /// Starts up to three copies at once, or ends one in either way, as often as that.
    void RunAtRandom(int rounds)
    {
        constexpr std::size_t Most = 7;
        std::mt19937 random(13);
        const auto any = [&](std::size_t count) { return random() % count; };
        for (int round = 0; round < rounds && !HasFailure(); ++round) {
            const std::size_t running = m_copies.size(), choice = any(6);
            if (running == 0 || (choice < 3 && running < Most)) {
                const std::size_t atOnce = 1 + any(3);
                for (std::size_t i = 0; i < atOnce; ++i)
                    Start();
                for (std::size_t i = running; i < m_copies.size(); ++i)
                    Started(i);
            } else if (choice < 5) {
                Leave(any(running));
            } else {
                Kill(any(running));
            }
        }
    }

    TempFolder program;
    std::vector<Copy> m_copies;
};

TEST_F(Copies, ThatStartLeaveAndDieAtRandomNeverShareAFolder)
{
    RunAtRandom(300 / VYPX_ROUNDS_DIVISOR);
}

TEST_F(Copies, NeverShareAFolderWithoutTheGateEither)
{
    std::filesystem::create_directory(program.File("copies.lock")); // no file, so none can lock it

    RunAtRandom(150 / VYPX_ROUNDS_DIVISOR);
}

TEST_F(Copies, AFolderIsFreeAgainAfterACrash)
{
    EXPECT_EQ(Started(Start()), "temp");
    EXPECT_EQ(Started(Start()), "temp1");
    Kill(1);
    EXPECT_EQ(Started(Start()), "temp2") << "the count stays above 0 after a crash";
    Kill(0);
    Kill(0);

    EXPECT_EQ(Started(Start()), "temp");
    EXPECT_EQ(Started(Start()), "temp1") << "the first copy has reset it";
}

TEST_F(Copies, OneThatLeavesHandsItsNumberOnAndTheNextOnePassesOverTheThird)
{
    EXPECT_EQ(Started(Start()), "temp");
    EXPECT_EQ(Started(Start()), "temp1");
    EXPECT_EQ(Started(Start()), "temp2");
    Leave(1);

    EXPECT_EQ(Started(Start()), "temp1");
    EXPECT_EQ(Started(Start()), "temp3");
}

} // namespace
} // namespace vypx::test
