#include "support/LoadFixture.h"

namespace vypx::test {

namespace {

class WithoutPictures : public LoadFixture { };

TEST_F(WithoutPictures, ALoadSoAskedBringsRowsAndNoPictures)
{
    WriteBytes(
        folder.File("set.prc"), Iconset{ .resources = { { "tAIB", 3500, LowRecord(8) } } }.File());
    LoadRequest request = RequestFromFlags(folder.File("set.prc"));
    EXPECT_FALSE(request.withoutPictures) << "nothing sets the flag";
    DuplicateResource = true;
    request = RequestFromFlags(folder.File("set.prc"));

    EXPECT_EQ(LoadFile(request, listener).result, LoadResult::Opened);

    ASSERT_EQ(IconTable.size(), 1u);
    EXPECT_EQ(IconTable[0].LowResFile, "NEW");
    EXPECT_FALSE(FileExists(WorkPath("tAIB3500.bmp")));
}

} // namespace
} // namespace vypx::test
