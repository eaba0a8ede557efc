#include "companion/BmpFile.h"
#include "platform/Platform.h"
#include "reader/PictureSink.h"
#include "support/LoadFixture.h"

#include <filesystem>
#include <map>

namespace vypx::test {

namespace {

/// Keeps the pictures of a load by the names that their working files would have.
class KeptPictures : public PictureSink {
public:
    bool GoOn() override { return pictures.size() < most; }
    bool Wants(const PictureHeader& header) override { return header.depth >= leastDepth; }
    void Take(const PictureHeader& header, Picture picture) override
    {
        headers[header.file] = header;
        pictures[header.file] = std::move(picture);
    }

    std::size_t most = SIZE_MAX; ///< resources are read until there are so many
    int leastDepth = 0;          ///< of wanted pictures
    std::map<std::string, Picture> pictures;
    std::map<std::string, PictureHeader> headers;
};

class PicturesInMemory : public LoadFixture {
protected:
    std::size_t WorkingFiles() const
    {
        std::size_t files = 0;
        for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
            ++files;
        return files;
    }
    LoadResult LoadInto(KeptPictures& kept, const std::string& path)
    {
        return vypx::LoadFile({ .path = path, .pictures = &kept }, listener).result;
    }
};

TEST_F(PicturesInMemory, AreThoseOfTheWorkingFilesAndNoneIsMade)
{
    DefaultColorDepth = ColorDepth::Bits16;
    std::size_t compared = 0;
    for (const auto& entry : std::filesystem::directory_iterator(TestData("iconsets"))) {
        if (entry.path().extension() != ".prc")
            continue;
        ASSERT_EQ(Load(platform::Utf8Path(entry.path())), LoadResult::Opened);
        std::map<std::string, Picture> expected;
        for (const auto& file : std::filesystem::directory_iterator(WorkFolder()))
            expected[platform::Utf8Path(file.path().filename())] =
                DecodeBmp(ReadBytes(platform::Utf8Path(file.path()))).value_or(Picture());
        const std::vector<IconRow> rows = IconTable;
        const std::vector<BitmapEntry> bitmaps = BitmapTable;

        KeptPictures kept;
        ASSERT_EQ(LoadInto(kept, platform::Utf8Path(entry.path())), LoadResult::Opened);

        EXPECT_EQ(kept.pictures, expected) << entry.path();
        EXPECT_EQ(IconTable, rows) << "rows name them as if there were files";
        EXPECT_EQ(BitmapTable, bitmaps);
        EXPECT_EQ(WorkingFiles(), 0u);
        compared += expected.size();
    }
    EXPECT_GT(compared, 40u);
}

TEST_F(PicturesInMemory, TheHeaderIsTheRecords)
{
    Bytes record = LowRecord(4);
    record[6] = 0x20;
    record[12] = 2; // the third of sixteen greys
    KeptPictures kept;

    ASSERT_EQ(LoadInto(kept, Written(Iconset{ .resources = { { "tAIB", 3500, record } } }.File())),
        LoadResult::Opened);

    ASSERT_EQ(kept.headers.size(), 1u);
    const PictureHeader& header = kept.headers.begin()->second;
    EXPECT_EQ(header.resourceKey, "tAIB3500");
    EXPECT_FALSE(header.highDensity);
    EXPECT_EQ(header.width, 1);
    EXPECT_EQ(header.height, 1);
    EXPECT_EQ(header.rowBytes, 2);
    EXPECT_EQ(header.depth, 4);
    EXPECT_EQ(header.transparent, (Rgb{ 221, 221, 221 }));
}

TEST_F(PicturesInMemory, WhatIsNotWantedIsNotDecoded)
{
    Bytes huge = LowRecord(4);
    PutU16(huge, 0, 65535);
    PutU16(huge, 2, 65535);
    PutU16(huge, 4, 65535);
    KeptPictures kept;
    kept.leastDepth = 8;

    EXPECT_EQ(LoadInto(kept,
                  Written(Iconset{
                      .resources = { { "tAIB", 3500, huge }, { "tAIB", 3501, LowRecord(8) } } }
                              .File())),
        LoadResult::Opened)
        << "its pixels are not there, which would end the load";

    ASSERT_EQ(kept.pictures.size(), 1u);
    EXPECT_EQ(kept.pictures.begin()->first, "tAIB3501.bmp");
}

TEST_F(PicturesInMemory, TheReadingEndsWhenThereAreEnough)
{
    KeptPictures kept;
    kept.most = 1;
    Bytes broken = LowRecord(7);

    EXPECT_EQ(LoadInto(kept,
                  Written(Iconset{
                      .resources = { { "tAIB", 3500, LowRecord(8) }, { "tAIB", 3501, broken } } }
                              .File())),
        LoadResult::Opened);
    EXPECT_EQ(kept.pictures.size(), 1u);
}

TEST_F(PicturesInMemory, ARowThatIsTooShortGivesANullPicture)
{
    Bytes record = LowRecord(8);
    PutU16(record, 0, 9);
    KeptPictures kept;

    LoadInto(kept, Written(Iconset{ .resources = { { "tAIB", 3500, record } } }.File()));

    ASSERT_EQ(kept.pictures.size(), 1u);
    EXPECT_TRUE(kept.pictures.begin()->second.IsNull());
}

TEST_F(PicturesInMemory, AFileAboveTheCallersLimitIsNotRead)
{
    const Bytes file = Iconset{ .resources = { { "tAIB", 3500, LowRecord(8) } } }.File();
    const std::string path = Written(file);
    const auto resultAt = [&](std::uintmax_t largest) {
        return vypx::LoadFile({ .path = path, .largest = largest }, listener).result;
    };

    EXPECT_EQ(resultAt(file.size()), LoadResult::Opened);
    EXPECT_EQ(resultAt(file.size() - 1), LoadResult::Failed);
}

} // namespace
} // namespace vypx::test
