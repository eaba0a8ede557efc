#include "companion/PalmDatabase.h"

#include "companion/BmpFile.h"
#include "support/LoadFixture.h"
#include "support/Netpbm.h"

#include <gmock/gmock.h>
#include <set>
#include <tuple>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// Templates, beside the working files that their rows name.
class Templates : public LoadFixture {
protected:
    Templates()
    {
        WriteText(WorkPath("tver1000.bin"), std::string("3.20\0", 5));
        WriteBytes(WorkPath("iTbl1000.bin"), IndexRecord("appl", "ALPH", 3500, 3501));
    }

    std::optional<CompileFailure> Export(const std::vector<ResourceRow>& rows, int depth = 16,
        bool packed = false, const std::vector<TransparencyRow>& transparency = {})
    {
        return ExpTemplate(rows, transparency, Palette8, Palette4, depth, packed, Path(), "My Set",
            WorkFolder() + "/");
    }
    std::string Path() const { return folder.File("t.vpt"); }
    Bytes File() const { return ReadBytes(Path()); }
    Bytes WithoutDates() const
    {
        Bytes file = File();
        std::fill(file.begin() + 36, file.begin() + 44, std::uint8_t{ 0 });
        return file;
    }
    /// A noisy picture, which no run of other bytes looks like, and its transparent colour.
    static TransparencyRow Paint(const std::string& name, int width, int height)
    {
        vypx::Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, { 51 * (x % 5), 51 * (y % 5), 51 * ((x + y) % 4) });
        WriteBytes(WorkPath(name), EncodeBmp24(picture));
        return { name, "1", "51", "0", "102" };
    }
    /// The bytes of the resource with that number.
    Bytes Data(std::size_t number) const
    {
        const Bytes file = File();
        const ByteView view(file);
        const std::size_t count = view.U16(76);
        const auto at = [&](std::size_t i) {
            return static_cast<std::ptrdiff_t>(i < count ? view.U32(78 + 10 * i + 6) : file.size());
        };
        return { file.begin() + at(number), file.begin() + at(number + 1) };
    }

    const ResourceRow version{ "tver1000", "tver1000", "tver1000" };
    const ResourceRow index{ "iTbl1000", "iTbl1000", "iTbl1000" };
};

TEST_F(Templates, AreResourceDatabasesOfTheTypeAndCreatorOfIconsets)
{
    ASSERT_FALSE(
        Export({ { "NEW", "NEW", "tAIB3500" }, { "NEW", "NEW", "Tbmp7" }, version, index }));

    const Bytes file = File();
    const ByteView view(file);
    EXPECT_EQ(view.Text(0, 7), std::string("My Set\0", 7));
    EXPECT_EQ(view.U16(32) & 1, 1) << "resources, no records";
    EXPECT_EQ(view.Text(60, 8), "ICONVNTR");
    ASSERT_EQ(view.U16(76), 4);
    std::vector<std::string> keys;
    for (std::size_t entry = 78; entry < 78 + 4 * 10; entry += 10)
        keys.push_back(std::string(view.Text(entry, 4)) + std::to_string(view.U16(entry + 4)));
    EXPECT_THAT(keys, ElementsAre("tAIB3500", "Tbmp7", "tver1000", "iTbl1000"));
    const Bytes told = Data(2);
    EXPECT_EQ(std::string(told.begin(), told.begin() + 5), std::string("3.20\0", 5));
    EXPECT_EQ(Data(3), IndexRecord("appl", "ALPH", 3500, 3501));
}

TEST_F(Templates, EverySlotHoldsTheSamePictureThatTheDecoderReads)
{
    Paint("tAIB3501.bmp", 32, 22);
    Paint("tAIB3502-d144.bmp", 64, 44);
    ASSERT_FALSE(Export({ { "NEW", "NEW", "tAIB3500" }, { "tAIB3501.bmp", "NEW", "tAIB3501" },
        { "NEW", "tAIB3502-d144.bmp", "Tbmp3502" }, version, index }));
    EXPECT_EQ(Data(0), Data(1));
    EXPECT_EQ(Data(0), Data(2));

    std::filesystem::remove(WorkPath("tAIB3501.bmp"));
    ASSERT_EQ(Open(File()), LoadResult::Opened);

    EXPECT_THAT(listener.messages, ElementsAre());
    std::set<Bytes> low, high;
    ASSERT_EQ(IconTable.size(), 3u);
    for (const IconRow& row : IconTable) {
        ASSERT_TRUE(ImageFileValid(row.LowResFile) && ImageFileValid(row.HighResFile));
        low.insert(ReadBytes(WorkPath(row.LowResFile)));
        high.insert(ReadBytes(WorkPath(row.HighResFile)));
    }
    EXPECT_EQ(low.size(), 1u);
    EXPECT_EQ(high, low);
    const auto picture = DecodeBmp(*low.begin());
    ASSERT_TRUE(picture);
    EXPECT_EQ(std::tuple(picture->Width(), picture->Height()), std::tuple(1, 1));
    EXPECT_EQ(picture->At(0, 0), (Rgb{ 255, 255, 255 }));
    for (const BitmapEntry& bitmap : BitmapTable)
        EXPECT_NE(bitmap.hasTransparent, 1) << bitmap.file;
}

TEST_F(Templates, ASlotThatARowDoesNotNameStaysOut)
{
    ASSERT_FALSE(Export({ { "NEW", "", "tAIB3500" }, { "", "NEW", "tAIB3501" }, version, index }));

    ASSERT_EQ(Open(File()), LoadResult::Opened);

    ASSERT_EQ(IconTable.size(), 2u);
    EXPECT_EQ(IconTable[0].HighResFile, "NEW");
    EXPECT_NE(IconTable[0].LowResFile, "NEW");
    EXPECT_EQ(IconTable[1].LowResFile, "NEW");
    EXPECT_NE(IconTable[1].HighResFile, "NEW");
}

/// Nothing of the pictures or of their colours makes a difference, whatever the depth.
TEST_F(Templates, AreTheSameWithPicturesAndWithout)
{
    ASSERT_FALSE(
        Export({ { "NEW", "NEW", "tAIB3500" }, { "NEW", "NEW", "tAIB3501" }, version, index }));
    const Bytes empty = WithoutDates();
    const std::vector<TransparencyRow> colours{ Paint("tAIB3500.bmp", 32, 22),
        Paint("tAIB3500-d144.bmp", 64, 44), Paint("tAIB3501-d144.bmp", 30, 22) };
    const std::vector<ResourceRow> filled{ { "tAIB3500.bmp", "tAIB3500-d144.bmp", "tAIB3500" },
        { "NEW", "tAIB3501-d144.bmp", "tAIB3501" }, version, index };

    for (const int depth : { 4, 8, 16 })
        for (const bool packed : { false, true }) {
            ASSERT_FALSE(Export(filled, depth, packed, colours));
            EXPECT_EQ(WithoutDates(), empty) << depth << packed;
        }
}

TEST_F(Templates, NeedNoPictureToBeReadable)
{
    WriteText(WorkPath("tAIB3500.bmp"), "no picture");

    EXPECT_FALSE(Export({ { "tAIB3500.bmp", "gone-d144.bmp", "tAIB3500" }, version }));

    EXPECT_EQ(Open(File()), LoadResult::Opened);
    EXPECT_EQ(IconTable.size(), 1u);
}

TEST_F(Templates, ReplaceWhatStandsThereWholeOrNotAtAll)
{
    WriteText(Path(), "old");
    std::filesystem::remove(WorkPath("iTbl1000.bin"));

    const auto failure = Export({ { "NEW", "NEW", "tAIB3500" }, version, index });

    ASSERT_TRUE(failure) << "a resource that is asked for is missing";
    EXPECT_FALSE(failure->file.empty());
    EXPECT_EQ(ReadText(Path()), "old");
    EXPECT_EQ(PassingFiles(folder.Path()), 0u);

    EXPECT_FALSE(Export({ { "NEW", "NEW", "tAIB3500" }, version }));
    EXPECT_EQ(ByteView(File()).Text(60, 8), "ICONVNTR");
    EXPECT_EQ(PassingFiles(folder.Path()), 0u);
}

TEST_F(Templates, AFolderThatIsMissingIsAFailure)
{
    const auto failure =
        ExpTemplate(std::vector<ResourceRow>{ { "NEW", "NEW", "tAIB3500" }, version }, {}, Palette8,
            Palette4, 16, false, folder.File("no/such/t.vpt"), "My Set", WorkFolder() + "/");

    EXPECT_TRUE(failure);
    EXPECT_FALSE(std::filesystem::exists(folder.File("no")));
}

TEST_F(Templates, NetpbmReadsBothDensities)
{
    SKIP_WITHOUT_NETPBM();
    Paint("tAIB3501.bmp", 32, 22);
    ASSERT_FALSE(Export({ { "NEW", "NEW", "tAIB3500" }, { "tAIB3501.bmp", "NEW", "Tbmp3501" },
        { "", "NEW", "tAIB3502" }, { "NEW", "", "tAIB3503" }, version, index }));
    vypx::Picture white(1, 1);
    white.Set(0, 0, { 255, 255, 255 });

    for (std::size_t i = 0; i < 4; ++i) {
        const Bytes family = Data(i);
        std::size_t records = 0;
        for (std::size_t at = 0, next = 0; at + 16 <= family.size(); at += next) {
            const ByteView record = ByteView(family).Part(at, family.size() - at);
            const bool isMark = record.U8(8) == 0xFF;
            const bool isHigh = record.U8(9) == 3;
            if (!isMark) {
                ++records;
                WriteBytes(folder.File("record"),
                    { family.begin() + static_cast<std::ptrdiff_t>(at), family.end() });
                EXPECT_EQ(PictureFrom("palmtopnm -quiet '" + folder.File("record") + "'"), white)
                    << i << " at " << at;
            }
            next = isMark ? 16 : isHigh ? record.U32(20) : record.U16(10) * 4u;
            if (next == 0)
                break;
        }
        EXPECT_EQ(records, i < 2 ? 2u : 1u) << i;
    }
}

} // namespace
} // namespace vypx::test
