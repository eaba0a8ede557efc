#include "document/WorkingFolder.h"

#include "support/LoadFixture.h"

namespace vypx::test {

namespace {

class WorkingFolder : public LoadFixture { };

TEST_F(WorkingFolder, FindsFilesByWildcardWithoutRegardToCase)
{
    WriteText(WorkPath("Temp.BMP"), "");

    EXPECT_TRUE(FileExists(WorkPath("*.bmp")));
    EXPECT_TRUE(FileExists(WorkPath("te?p.*")));
    EXPECT_FALSE(FileExists(WorkPath("*.bak")));
    EXPECT_FALSE(FileExists(WorkPath("t?p.bmp")));
}

TEST_F(WorkingFolder, AFolderIsNoFile)
{
    MakeFolder(WorkPath("sub.bmp"));

    EXPECT_FALSE(FileExists(WorkPath("sub.bmp")));
    EXPECT_FALSE(FileExists(WorkPath("*.bmp")));
    EXPECT_TRUE(DirExists(WorkPath("sub.bmp")));
    EXPECT_FALSE(DirExists(""));
}

TEST_F(WorkingFolder, DeletesByEndingInAnyCase)
{
    for (const char* name : { "a.bmp", "B.BMP", "c.bmp.bak", "d.bin", "keep.txt" })
        WriteText(WorkPath(name), "x");

    EXPECT_TRUE(DeleteWorkingFiles({ ".bmp", ".bin" }));

    EXPECT_FALSE(FileExists(WorkPath("*.bmp")));
    EXPECT_FALSE(FileExists(WorkPath("d.bin")));
    EXPECT_TRUE(FileExists(WorkPath("c.bmp.bak")));
    EXPECT_TRUE(FileExists(WorkPath("keep.txt")));
}

TEST_F(WorkingFolder, DeletingInAMissingFolderDoesNothing)
{
    SetTempSuffix(77);

    DeleteWorkingFiles({ ".bmp" });

    EXPECT_FALSE(DirExists(WorkFolder()));
}

TEST_F(WorkingFolder, TakesPathsApart)
{
    EXPECT_EQ(LastComponent("/a/b.prc"), "b.prc");
    EXPECT_EQ(FolderOf("/a/b.prc"), "/a");
    EXPECT_EQ(LastComponent("b.prc"), "b.prc");
    EXPECT_EQ(FolderOf("b.prc"), "");
    EXPECT_EQ(FolderOf("/b.prc"), "/");
}

TEST_F(WorkingFolder, AFolderInTheWayOfOneToMakeFails)
{
    WriteText(folder.File("file"), "");

    EXPECT_THROW(MakeFolder(folder.File("file") + "/below"), std::filesystem::filesystem_error);
}

TEST_F(WorkingFolder, AFileIsNoFolder)
{
    WriteText(WorkPath("file"), "");

    EXPECT_FALSE(DirExists(WorkPath("file")));
    EXPECT_FALSE(DirExists(WorkPath("gone")));
    EXPECT_TRUE(DirExists(WorkFolder()));
}

TEST_F(WorkingFolder, AFileInTheRootLiesInTheRoot)
{
    EXPECT_EQ(FolderOf("/file.prc"), "/");
    EXPECT_EQ(FolderOf("/a/file.prc"), "/a");
    EXPECT_EQ(FolderOf("file.prc"), "");
    EXPECT_EQ(LastComponent("/file.prc"), "file.prc");
    EXPECT_EQ(LastComponent("/a/"), "");
}

TEST_F(WorkingFolder, AWildcardMayStandForNothingAndTryAgain)
{
    WriteText(WorkPath("aabab.bmp"), "");

    EXPECT_TRUE(FileExists(WorkPath("a*ab.b*mp*")));
    EXPECT_TRUE(FileExists(WorkPath("AABAB.*")));
    EXPECT_FALSE(FileExists(WorkPath("a*aba.bmp")));
    EXPECT_FALSE(FileExists(WorkPath("?abab.bmp?")));
    EXPECT_FALSE(FileExists(folder.File("gone/*.bmp")));
}

} // namespace
} // namespace vypx::test
