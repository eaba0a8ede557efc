#include "companion/ReplaceWorkingFile.h"

#include "companion/BmpFile.h"
#include "companion/PixelLibrary.h"
#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

namespace vypx::test {

namespace {

class ReplaceWorkingFileTest : public testing::Test {
protected:
    /// The names in the folder, in order, one after another.
    std::string Names() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            names.insert(entry.path().filename().string());
        std::string all;
        for (const std::string& name : names)
            all += name + ' ';
        return all;
    }
    std::error_code Replace(const Bytes& bytes) const
    {
        return ReplaceWorkingFile(
            path, [&](const std::string& newPath) { return WriteWorkingFile(newPath, bytes); });
    }

    const TempFolder folder;
    const std::string path = folder.File("icon.bmp");
};

TEST_F(ReplaceWorkingFileTest, MakesAFileAndReplacesIt)
{
    EXPECT_FALSE(Replace(Hex("01 02")));
    EXPECT_EQ(ReadBytes(path), Hex("01 02"));

    EXPECT_FALSE(Replace(Hex("03")));
    EXPECT_EQ(ReadBytes(path), Hex("03"));
    EXPECT_EQ(Names(), "icon.bmp ");
}

TEST_F(ReplaceWorkingFileTest, TheOldFileStandsUntilTheNewOneIsWhole)
{
    WriteBytes(path, Hex("01"));
    const Picture picture(2, 1);

    ReplaceWorkingFile(path, [&](const std::string& newPath) {
        const std::error_code error = WriteBmp24(picture, 2, 1, newPath);
        EXPECT_EQ(ReadBytes(path), Hex("01"));
        EXPECT_EQ(Names(), "icon.bmp icon.bmp.new.bmp ") << "both end as clean-up looks for";
        return error;
    });

    EXPECT_EQ(DecodeBmp(ReadBytes(path)), picture);
}

TEST_F(ReplaceWorkingFileTest, AFailureLeavesTheOldFileAlone)
{
    WriteBytes(path, Hex("01"));
    const auto failAfterWriting = [](const std::string& newPath) {
        WriteBytes(newPath, Hex("02 03"));
        return std::make_error_code(std::errc::no_space_on_device);
    };
    const auto throwAfterWriting = [](const std::string& newPath) -> std::error_code {
        WriteBytes(newPath, Hex("02 03"));
        throw std::runtime_error("no memory");
    };

    EXPECT_EQ(ReplaceWorkingFile(path, failAfterWriting), std::errc::no_space_on_device);
    EXPECT_THROW(ReplaceWorkingFile(path, throwAfterWriting), std::runtime_error);

    EXPECT_EQ(ReadBytes(path), Hex("01"));
    EXPECT_EQ(Names(), "icon.bmp ");
}

TEST_F(ReplaceWorkingFileTest, APictureThatIsNoneIsToldAndLeavesTheOldFileAlone)
{
    WriteBytes(path, Hex("01"));

    EXPECT_EQ(ReplaceWorkingFile(path,
                  [](const std::string& newPath) {
                      return WriteBmp4(Picture(2, 1), Palette4, 3, 1, newPath);
                  }),
        NoPicture());

    EXPECT_EQ(ReadBytes(path), Hex("01"));
    EXPECT_EQ(Names(), "icon.bmp ");
}

TEST_F(ReplaceWorkingFileTest, AFolderInItsPlaceIsNotReplaced)
{
    std::filesystem::create_directory(path);

    EXPECT_TRUE(Replace(Hex("01")));

    EXPECT_TRUE(std::filesystem::is_directory(path));
    EXPECT_EQ(Names(), "icon.bmp ");
}

TEST_F(ReplaceWorkingFileTest, WhatAKilledOneLeftIsWrittenOver)
{
    WriteBytes(path + ".new.bmp", Bytes(100, 9));

    EXPECT_FALSE(Replace(Hex("01")));

    EXPECT_EQ(ReadBytes(path), Hex("01"));
    EXPECT_EQ(Names(), "icon.bmp ");
}

#ifndef _WIN32
TEST_F(ReplaceWorkingFileTest, AFolderThatCannotBeWrittenIsTold)
{
    WriteBytes(path, Hex("01"));
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
    {
        const CommonUser user;
        EXPECT_EQ(Replace(Hex("02")), std::errc::permission_denied);
    }
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0755));

    EXPECT_EQ(ReadBytes(path), Hex("01"));
    EXPECT_EQ(Names(), "icon.bmp ");
}
#endif

} // namespace
} // namespace vypx::test
