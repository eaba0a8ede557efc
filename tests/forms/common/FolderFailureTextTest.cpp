#include "forms/common/FolderFailureText.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(FolderFailureText, NamesTheFolderInTheUsersLettersAndTheReason)
{
    const std::filesystem::filesystem_error error("internal words",
        platform::NativePath("/home/J\xC3\xBCrgen/data"),
        std::make_error_code(std::errc::permission_denied));

    EXPECT_EQ(FolderFailureText(error),
        QString::fromUtf8(
            "VY Pixelworks can't start: its folder \"/home/J\xC3\xBCrgen/data\" can't "
            "be made or used.\n\nPermission denied."));
}

TEST(FolderFailureText, OfNoFolderAtAllNamesNone)
{
    const std::filesystem::filesystem_error error("internal words", std::filesystem::path(),
        std::make_error_code(std::errc::no_such_file_or_directory));

    EXPECT_EQ(FolderFailureText(error),
        QString("VY Pixelworks can't start: there is no folder for your files."));
}

} // namespace
} // namespace vypx::test
