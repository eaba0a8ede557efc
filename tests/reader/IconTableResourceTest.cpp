#include "reader/IconTableResource.h"

#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class IconTableResource : public LoadFixture { };

TEST_F(IconTableResource, ReadsItsRecordsBehindAnEmptyRow)
{
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 3501),
                                     IndexRecord("panl", "A  B", 65535, 0) }),
                      Icon(3500) } }
             .File());

    ASSERT_EQ(Itbl.size(), 3u);
    EXPECT_EQ(Itbl[0], ItblRow());
    EXPECT_EQ(Itbl[1], (ItblRow{ "appl", "ALPH", 3500, 3501 }));
    EXPECT_EQ(Itbl[2], (ItblRow{ "panl", "A  B", 65535, 0 }));
}

TEST_F(IconTableResource, KeepsEveryByteOfItsTexts)
{
    const std::string type("\0\x01\xFF ", 4);

    Open(Iconset{ .resources = { Index({ IndexRecord(type, " \t\xE9\x7F", 1, 2) }) } }.File());

    ASSERT_EQ(Itbl.size(), 2u);
    EXPECT_EQ(Itbl[1].type, type);
    EXPECT_EQ(Itbl[1].creator, " \t\xE9\x7F");
}

TEST_F(IconTableResource, ReservedBytesMayHoldAnything)
{
    Bytes record = IndexRecord("appl", "ALPH", 3500, 3501);
    for (std::size_t i = 12; i < 16; ++i)
        record[i] = 0xEE;

    Open(Iconset{ .resources = { Index({ record }) } }.File());

    ASSERT_EQ(Itbl.size(), 2u);
    EXPECT_EQ(Itbl[1], (ItblRow{ "appl", "ALPH", 3500, 3501 }));
}

TEST_F(IconTableResource, AsTheLastResourceItTakesTheRestOfTheFile)
{
    Open(Iconset{ .resources = { Icon(3500), Index({ IndexRecord("appl", "ALPH", 3500, 0) }) } }
             .File());

    EXPECT_EQ(Itbl.size(), 2u);
    EXPECT_THAT(listener.messages, IsEmpty());
}

TEST_F(IconTableResource, AsTheLastResourceATrailingByteBreaksIt)
{
    Bytes file = Iconset{
        .resources = { Icon(3500), Index({ IndexRecord("appl", "ALPH", 3500, 0) }) }
    }.File();
    file.push_back(0);

    Open(file);

    EXPECT_THAT(listener.messages, ElementsAre("Error reading iTbl"));
}

TEST_F(IconTableResource, WithoutRecordsItMakesEveryBitmapAnOrphan)
{
    VYTable = { {}, { "Launcher (Large Icon)", "2000", "" } };

    Open(Iconset{ .resources = { Index({}), Icon(2000), Icon(3500) } }.File());

    EXPECT_EQ(Itbl.size(), 1u);
    EXPECT_THAT(Labels(), ElementsAre("Launcher (Large Icon)", "tAIB3500 (Orphan) "));
}

TEST_F(IconTableResource, ThatCannotBeReadLeavesTheOneBefore)
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" } };
    Open(Iconset{ .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }) } }.File());

    Open(Iconset{ .resources = { { "iTbl", 1000, Bytes(17, 0) }, Icon(3500) } }.File());

    EXPECT_THAT(listener.messages, ElementsAre("Error reading iTbl"));
    EXPECT_THAT(Labels(), ElementsAre("Alpha (Large Icon)"));
}

TEST_F(IconTableResource, ThatCannotBeReadWithNoneBeforeEndsTheWalkAtTheFirstOtherIcon)
{
    VYTable = { {}, { "One", "2000", "" }, { "Two", "2001", "" } };

    EXPECT_EQ(Open(Iconset{ .resources = { { "iTbl", 1000, Bytes(17, 0) }, Icon(2000), Icon(3500),
                                Icon(2001) } }
                       .File()),
        LoadResult::Opened);

    EXPECT_THAT(listener.messages, ElementsAre("Error reading iTbl"));
    EXPECT_THAT(Labels(), ElementsAre("One"));
}

TEST_F(IconTableResource, WhoseNextOffsetLiesBehindItsOwnRunsToTheEndOfTheFile)
{
    Bytes file = Iconset{
        .resources = { Index({ IndexRecord("appl", "ALPH", 1, 2) }),
            { "tver", 1000, Bytes(16, 'x') } }
    }.File();
    PutU32(file, 78 + 10 + 6, 80); // the second entry's data before the first one's

    Open(file);

    ASSERT_EQ(Itbl.size(), 3u);
    EXPECT_EQ(Itbl[2].type, "xxxx");
}

TEST_F(IconTableResource, WhoseOwnOffsetLiesOutsideOfTheFileEndsTheWalkSilently)
{
    Bytes file = Iconset{ .resources = { Index({}), Icon(3500) } }.File();
    PutU32(file, 78 + 6, static_cast<unsigned>(file.size()) + 160);

    Open(file);

    EXPECT_THAT(NodeKeys(), IsEmpty());
}

} // namespace
} // namespace vypx::test
