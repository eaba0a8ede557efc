#include "install/QueueFile.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// A file of letters that another program changes while a letter is added to it.
class EditedQueue : public ::testing::Test {
protected:
    /// Adds "!"; `meanwhile` is what another program does before the file is replaced, told how
    /// often it was called before.
    bool Add(const std::function<void(int)>& meanwhile)
    {
        return EditQueue(File(), [&](const Bytes& before) {
            meanwhile(m_edits++);
            Bytes after = before;
            after.push_back('!');
            return std::optional(after);
        });
    }
    std::string File() const { return folder.File("queue"); }

    TempFolder folder;
    int m_edits = 0;
};

TEST_F(EditedQueue, TakesInWhatAnotherProgramHasChangedMeanwhile)
{
    WriteText(File(), "one");

    EXPECT_TRUE(Add([&](int edit) {
        if (edit == 0)
            WriteText(File(), "two"); // of the same size, at perhaps the same time
    }));

    EXPECT_EQ(ReadText(File()), "two!");
    EXPECT_EQ(PassingFiles(folder.Path()), 0u);
}

TEST_F(EditedQueue, TakesInThatAnotherProgramHasMadeOrDeletedIt)
{
    EXPECT_TRUE(Add([&](int edit) {
        if (edit == 0)
            WriteText(File(), "made");
        if (edit == 1)
            fs::remove(File());
    }));

    EXPECT_EQ(ReadText(File()), "!");
}

TEST_F(EditedQueue, GivesUpOnAFileThatNeverRests)
{
    WriteText(File(), "");

    EXPECT_FALSE(Add([&](int edit) { WriteText(File(), std::to_string(edit)); }));

    EXPECT_EQ(ReadText(File()), std::to_string(m_edits - 1)) << "the other program's last";
    EXPECT_GT(m_edits, 1);
    EXPECT_EQ(PassingFiles(folder.Path()), 0u);
}

TEST_F(EditedQueue, StaysWhenItBecomesUnreadableMeanwhile)
{
    EXPECT_FALSE(Add([&](int) { fs::create_directory(File()); }));

    EXPECT_TRUE(fs::is_directory(File()));
}

} // namespace
} // namespace vypx::test
