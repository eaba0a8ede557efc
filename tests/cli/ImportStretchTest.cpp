#include "ImportCropFixture.h"
#include "imaging/CropRectangle.h"

namespace vypx::test {

namespace {

class ImportStretch : public ImportCrop { };

Picture Part(const Picture& picture, const PixelRegion& region)
{
    Picture part(region.width, region.height);
    for (int y = 0; y < region.height; ++y)
        for (int x = 0; x < region.width; ++x)
            part.Set(x, y, picture.At(region.left + x, region.top + y));
    return part;
}

TEST_F(ImportStretch, TakesWhatIsLargerThanTheSlot)
{
    SKIP_WITHOUT_NETPBM();
    WritePpm(folder.File("pictures/photo.ppm"), Noise(300, 230));
    for (const SlotCase& slot : { LargeHigh, LargeLow, SmallHigh, SmallLow }) {
        SCOPED_TRACE(slot.head);
        ExpectAverage(
            Stored(slot, "photo.ppm", { "--stretch" }), Witness(ScaleTo(slot) + " photo.ppm"));
    }
    std::filesystem::remove(folder.File("out.prc"));

    EXPECT_EQ(Run(std::string(SmallLow.head) + "photo.ppm").errors,
        "pixelworks-cli: line 1: The picture has 300 x 230 pixels; this slot takes 15 x 11 at "
        "most.\n")
        << "without it";
    EXPECT_FALSE(WroteOut());
}

/// The short side grows, which netpbm does in another way; but its outermost rows and columns are
/// those of the picture.
TEST_F(ImportStretch, BringsBothSidesToTheSlotIfOneIsLonger)
{
    SKIP_WITHOUT_NETPBM();
    WritePpm(folder.File("pictures/wide.ppm"), Noise(60, 3));
    WritePpm(folder.File("pictures/tall.ppm"), Noise(4, 44));

    const Picture wide = Stored(SmallHigh, "wide.ppm", { "--stretch" });
    ExpectSize(wide, SmallHigh);
    for (const auto& [stored, source] : { std::pair(0, "0"), { 21, "2" } })
        ExpectAverage(Part(wide, { 0, stored, 30, 1 }),
            Witness(std::string("pamcut -height=1 -top=") + source
                + " wide.ppm | pamscale -linear -xsize=30 -ysize=1"));
    const Picture tall = Stored(SmallHigh, "tall.ppm", { "--stretch" });
    ExpectSize(tall, SmallHigh);
    for (const auto& [stored, source] : { std::pair(0, "0"), { 29, "3" } })
        ExpectAverage(Part(tall, { stored, 0, 1, 22 }),
            Witness(std::string("pamcut -width=1 -left=") + source
                + " tall.ppm | pamscale -linear -xsize=1 -ysize=22"));
}

TEST_F(ImportStretch, LeavesWhatFitsAsItIs)
{
    SKIP_WITHOUT_NETPBM();
    const Picture small = Make("small.ppm", 12, 9), full = Make("full.ppm", 30, 22, 3);

    EXPECT_EQ(Stored(SmallHigh, "small.ppm", { "--stretch" }), small);
    EXPECT_EQ(Stored(SmallHigh, "full.ppm", { "--stretch" }), full);
}

TEST_F(ImportStretch, ARegionCountsWithStretchAsWell)
{
    SKIP_WITHOUT_NETPBM();
    Make("sheet.ppm", 200, 101);

    EXPECT_EQ(Stored(SmallHigh, "sheet.ppm\t41,30,30,22", { "--stretch" }),
        Witness("pamcut -left=41 -top=30 -width=30 -height=22 sheet.ppm"));
}

} // namespace
} // namespace vypx::test
