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

} // namespace
} // namespace vypx::test
