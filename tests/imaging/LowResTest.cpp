#include "imaging/LowRes.h"

#include "companion/Reduction.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

constexpr Rgb A{ 200, 100, 0 }, B{ 100, 50, 200 }, Clear{ 10, 200, 30 };

/// The halved picture that an import takes.
class LowRes : public Pictures {
protected:
    /// Gives the large icon that high-res picture and halves it.
    bool Halve(const Picture& picture, std::optional<Rgb> transparent = std::nullopt)
    {
        Fill(SlotLG, Large, picture, transparent);
        Select(Large);
        return CreateLowRes(ColorDepth::Bits16);
    }
    static Picture Scratch() { return Stored("temp.bmp"); }
    static Picture FromRows(const std::vector<std::vector<Rgb>>& rows)
    {
        Picture picture(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x)
                picture.Set(x, y, rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
        return picture;
    }
};

TEST_F(LowRes, HasHalfTheSizeRoundedDown)
{
    for (const auto& [full, half] : { std::pair(PixelSize{ 64, 44 }, PixelSize{ 32, 22 }),
             { { 30, 22 }, { 15, 11 } }, { { 63, 43 }, { 31, 21 } }, { { 31, 21 }, { 15, 10 } },
             { { 2, 2 }, { 1, 1 } }, { { 3, 5 }, { 1, 2 } }, { { 100, 80 }, { 50, 40 } } }) {
        EXPECT_TRUE(Halve(Many(full.width, full.height)));
        EXPECT_EQ((PixelSize{ Scratch().Width(), Scratch().Height() }), half);
        EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), half);
    }
}

TEST_F(LowRes, AveragesFourPixelsToOne)
{
    Picture full(64, 44), half(32, 22);
    for (int y = 0; y < 44; ++y)
        for (int x = 0; x < 64; ++x) {
            const int around = x % 2 == y % 2 ? 4 : -4;
            full.Set(x, y, { x / 2 * 7 + 8 + around, y / 2 * 11 + 8 - around, 90 });
            half.Set(x / 2, y / 2, { x / 2 * 7 + 8, y / 2 * 11 + 8, 90 });
        }

    Halve(full);

    EXPECT_EQ(Scratch(), half);
}

TEST_F(LowRes, ChangesNothingOfTheDocument)
{
    Fill(SlotLG, Large, Many(64, 44), Rgb{ 12, 34, 56 });
    Select(Large);
    IconsetChanged = false;
    const auto before = State();

    CreateLowRes(ColorDepth::Bits16);

    EXPECT_TRUE(State() == before);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_EQ(WorkFiles().size(), 2u) << "the picture and the scratch one";
}

TEST_F(LowRes, ReplacesTheScratchPicture)
{
    WriteText(WorkPath("temp.bmp"), "of an import before");

    Halve(Many(8, 8));

    EXPECT_EQ(Scratch().Width(), 4);
}

TEST_F(LowRes, OnePixelWideOrHighHasNoHalf)
{
    for (const PixelSize full : { PixelSize{ 1, 40 }, PixelSize{ 64, 1 }, PixelSize{ 1, 1 } }) {
        WriteText(WorkPath("temp.bmp"), "of an import before");
        EXPECT_FALSE(Halve(Many(full.width, full.height)));
        EXPECT_FALSE(NamedFileExists(WorkPath("temp.bmp")));
        EXPECT_EQ(TargetWidth, full.width / 2);
        EXPECT_EQ(TargetHeight, full.height / 2);
    }
}

TEST_F(LowRes, OfAPictureThatIsGoneIsAFault)
{
    Fill(SlotLG, Large, Many(8, 8));
    Select(Large);
    std::filesystem::remove(HighResPath);
    const auto before = State();

    EXPECT_THROW(CreateLowRes(ColorDepth::Bits16), PictureFault);

    EXPECT_TRUE(State() == before);
}

TEST_F(LowRes, ThatCanNotBeWrittenIsAFault)
{
    MakeFolder(WorkPath("temp.bmp"));
    WriteText(WorkPath("temp.bmp") + "/holds", "it");

    EXPECT_THROW(Halve(Many(8, 8)), PictureFault);
}

TEST_F(LowRes, MixesAllPixelsOfAPictureWithoutATransparentColour)
{
    Halve(FromRows({ { Clear, Clear }, { Clear, { 50, 40, 70 } } }));

    EXPECT_EQ(Scratch().At(0, 0), (Rgb{ 20, 160, 40 }));
}

TEST_F(LowRes, DoesNotTakeTheColourOfAPictureThatDeclaresNone)
{
    Fill(SlotLG, Large, FromRows({ { Clear, Clear }, { Clear, { 50, 40, 70 } } }), Clear);
    BitmapTable[0].hasTransparent = 0;
    Select(Large);

    CreateLowRes(ColorDepth::Bits16);

    EXPECT_EQ(Scratch().At(0, 0), (Rgb{ 20, 160, 40 }));
}

TEST_F(LowRes, NeverMixesTransparentPixelsWithOthers)
{
    Halve(FromRows({
              { A, A, Clear, Clear, Clear, B, A, B },
              { A, A, Clear, B, A, Clear, Clear, B },
          }),
        Clear);

    EXPECT_EQ(Scratch().At(0, 0), A);
    EXPECT_EQ(Scratch().At(1, 0), Clear) << "three of four";
    EXPECT_EQ(Scratch().At(2, 0), (Rgb{ 150, 75, 100 })) << "half: the average of A and B";
    EXPECT_NEAR(Scratch().At(3, 0).red, 133, 1) << "a quarter: of A, B and B";
    EXPECT_NEAR(Scratch().At(3, 0).blue, 133, 1);
}

TEST_F(LowRes, AClearCornerStaysClear)
{
    Halve(FromRows({ { Clear, A, Clear, A }, { A, A, A, A } }), Clear);

    EXPECT_EQ(Scratch().At(0, 0), Clear) << "though a quarter of it is clear";
    EXPECT_NE(Scratch().At(1, 0), Clear) << "that is for the corner only";
}

TEST_F(LowRes, AnAverageNeverBecomesTheTransparentColour)
{
    const Rgb darker{ 0, 200, 30 }, lighter{ 20, 200, 30 }; // their average is Clear
    for (const ColorDepth depth : { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 }) {
        Fill(SlotLG, Large,
            FromRows({ { A, A, darker, lighter, Clear, Clear },
                { A, A, darker, lighter, Clear, Clear } }),
            Clear);
        Select(Large);

        CreateLowRes(depth);

        EXPECT_NE(Scratch().At(1, 0), Clear);
        EXPECT_EQ(Scratch().At(2, 0), Clear);
        EXPECT_NE(Reduced(Scratch().At(1, 0), BitsOf(depth)), Reduced(Clear, BitsOf(depth)));
        BitmapTable.assign(1, {});
        BitmapRow = 0;
    }
}

TEST_F(LowRes, KeepsTheTransparentColourInTheDocument)
{
    for (const ColorDepth depth : { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 }) {
        DefaultColorDepth = depth;
        const Rgb clear = Reduced(Clear, BitsOf(depth));
        Fill(SlotLG, Large, FromRows({ { clear, clear, A, A }, { clear, A, A, A } }), clear);
        Select(Large);

        EXPECT_EQ(ImportLowRes(host), ImportResult::Stored);

        EXPECT_EQ(SlotSM.Mask(), clear);
        EXPECT_EQ(Stored("tAIB3500.bmp").At(0, 0), clear);
        EXPECT_EQ(Stored("tAIB3500.bmp").At(1, 0),
            depth == ColorDepth::Bits16 ? A : Reduced(A, BitsOf(depth)));
        BitmapTable.assign(1, {});
        BitmapRow = 0;
        Row(Large).LowResFile = "NEW";
    }
}

} // namespace
} // namespace vypx::test
