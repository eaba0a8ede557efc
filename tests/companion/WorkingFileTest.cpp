#include "companion/WorkingFile.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(NewWorkingFile, IsWrittenInPieces)
{
    const TempFolder folder;
    NewWorkingFile file(folder.File("a.bmp"));

    EXPECT_TRUE(file.Write(Hex("01 02")));
    EXPECT_TRUE(file.Write(Hex("03")));
    EXPECT_FALSE(file.Close());

    EXPECT_EQ(ReadBytes(folder.File("a.bmp")), Hex("01 02 03"));
}

TEST(NewWorkingFile, DoesNotAppearUnlessItIsClosed)
{
    const TempFolder folder;
    {
        NewWorkingFile file(folder.File("a.bmp"));
        file.Write(Hex("01 02"));
    }

    EXPECT_FALSE(std::filesystem::exists(folder.File("a.bmp")));
}

TEST(NewWorkingFile, ThatCannotBeMadeSaysWhy)
{
    const TempFolder folder;
    NewWorkingFile file(folder.File("missing/a.bmp"));

    EXPECT_FALSE(file.Write(Hex("01")));
    EXPECT_EQ(file.Close(), std::errc::no_such_file_or_directory);
}

#ifdef __linux__
TEST(NewWorkingFile, AFullDiskIsToldAtTheWrite)
{
    if (!std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full";
    const TempFolder folder;
    const std::string path = folder.File("full.bmp");
    std::filesystem::create_symlink("/dev/full", path);
    NewWorkingFile file(path);

    EXPECT_FALSE(file.Write(Hex("01 02")));
    EXPECT_FALSE(file.Write(Hex("03")));
    EXPECT_EQ(file.Close(), std::errc::no_space_on_device);
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(path)));
}
#endif

} // namespace
} // namespace vypx::test
