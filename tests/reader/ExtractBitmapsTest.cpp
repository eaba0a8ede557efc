#include "reader/ExtractBitmaps.h"

#include "reader/Progress.h"
#include "reader/ResourceList.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

class ExtractBitmaps : public LoadFixture {
protected:
    void Keep(const Bytes& file)
    {
        FileCashe.assign(1, 0);
        FileCashe.insert(FileCashe.end(), file.begin(), file.end());
        FileCashe.push_back(0);
        IconFileSize = static_cast<std::int32_t>(file.size() + 1);
    }

    WalkState walk;
};

TEST_F(ExtractBitmaps, TheLastResourceIsAByteLongerThanTheRestOfTheFile)
{
    Keep(Iconset{ .resources = { Icon(3500) } }.File());

    vypx::ExtractBitmaps(walk, listener);

    Bytes expected{ 0 };
    const Bytes record = LowRecord(8);
    expected.insert(expected.end(), record.begin(), record.end());
    expected.push_back(0);
    EXPECT_EQ(walk.ResourceBytes, expected);
}

TEST_F(ExtractBitmaps, AResourceReachesToTheNextOnesData)
{
    Keep(Iconset{ .resources = { Icon(3500), { "tver", 1000, { '1', 0 } } } }.File());

    vypx::ExtractBitmaps(walk, listener);

    EXPECT_EQ(walk.ResourceBytes.size(), LowRecord(8).size() + 1);
}

TEST_F(ExtractBitmaps, ASizeOutOfRangeIsToldAndTheResourceBehindItEndsThePass)
{
    Bytes file = Iconset{ .resources = { Icon(3500), Icon(3501), Icon(3502) } }.File();
    PutU32(file, 78 + 6, 0x00FFFFFF);

    Keep(file);
    vypx::ExtractBitmaps(walk, listener);

    EXPECT_THAT(listener.messages,
        ElementsAre("Error reading file.", "Error Number 0. Problem reading file."));
    EXPECT_EQ(listener.steps.back(), "idle");
}

TEST_F(ExtractBitmaps, ASizeAboveTenMillionIsOutOfRange)
{
    Keep(Bytes(200, 0));
    walk.ResourceSize = MaxResourceSize + 1;

    BitmapDecoder decoder(walk, listener);
    LoadBitmapResource(walk, decoder, listener);

    EXPECT_THAT(listener.messages, ElementsAre("Error reading file."));
}

TEST_F(ExtractBitmaps, ALastResourceOfNegativeSizeIsTold)
{
    Bytes file = Iconset{ .resources = { Icon(3500) } }.File();
    PutU32(file, 78 + 6, 0x00FFFFFF);
    Keep(file);

    vypx::ExtractBitmaps(walk, listener);

    EXPECT_THAT(listener.messages, ElementsAre("Error reading file."));
}

TEST_F(ExtractBitmaps, OnPurposeTheHighestByteOfAnOffsetCountsAMebibyte)
{
    Bytes file = Iconset{ .resources = { Icon(3500) } }.File();
    PutU32(file, 78 + 6, 0x02000003);
    Keep(file);

    EXPECT_EQ(ReadDataOffset(FirstEntryIndex), 2 * 0x100000 + 3);
}

TEST_F(ExtractBitmaps, ProgressStopsAtWhatWasCounted)
{
    walk.BitmapCount = 2;

    ProgBar(walk, listener);
    ProgBar(walk, listener);
    ProgBar(walk, listener);

    EXPECT_THAT(listener.steps, ElementsAre("progress:1", "progress:2"));
}

} // namespace
} // namespace vypx::test
