#include "imaging/Undo.h"
#include "support/PicturesFixture.h"

#include <random>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

int Squares(Rgb a, Rgb b)
{
    return (a.red - b.red) * (a.red - b.red) + (a.green - b.green) * (a.green - b.green)
        + (a.blue - b.blue) * (a.blue - b.blue);
}

/// `value` of 0 to 255 at the nearest of the levels from 0 to `most`, as 0 to 255 again.
int AtLevels(int value, int most)
{
    int nearest = 0;
    for (int level = 1; level <= most; ++level)
        if (std::abs(value * most - level * 255) < std::abs(value * most - nearest * 255))
            nearest = level;
    return static_cast<int>(nearest * 255.0 / most + 0.5);
}

/// What a depth makes of a colour: the nearest of the palette, the first one on a tie; at 16 bits
/// 5, 6 and 5 bits of the components.
Rgb Reduction(Rgb colour, ColorDepth depth)
{
    if (depth == ColorDepth::Bits16)
        return { AtLevels(colour.red, 31), AtLevels(colour.green, 63), AtLevels(colour.blue, 31) };
    const Palette palette = depth == ColorDepth::Bits8 ? Palette(Palette8) : Palette(Palette4);
    Rgb nearest = palette[0];
    for (const Rgb& entry : palette)
        if (Squares(entry, colour) < Squares(nearest, colour))
            nearest = entry;
    return nearest;
}

/// Pictures of all sizes, made from one number.
class Generated : public Pictures {
protected:
    static constexpr const char* Icons[] = { "Alpha (Large Icon)", "Alpha (Small Icon)",
        "Beta (Large Icon)", "Beta (Small Icon)", "Palm Clock (Large Icon)",
        "Palm Clock (Small Icon)" };

    /// Icons without pictures, each with a resource of its own.
    void Begin(unsigned seed)
    {
        random.seed(seed);
        DefaultColorDepth =
            std::array{ ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 }[random() % 3];
        UsePackbits = random() % 2 == 0;
        Itbl.clear();
        BitmapTable.assign(1, {});
        BitmapRow = 0;
        IconTable.clear();
        Tree.Clear();
        Tree.SetRoot(DatabaseName);
        FileName = folder.File("out.prc");
        ForgetUndo();
        DeleteWorkingFiles({ ".bmp", ".bak" });
        for (int i = 0; i < 6; ++i)
            AddIcon(Icons[i], "tAIB" + std::to_string(3500 + i), i < 4 ? "APP" : "PALM");
    }
    int Upto(int most) { return 1 + static_cast<int>(random() % static_cast<unsigned>(most)); }
    Rgb AnyColour()
    {
        return { static_cast<int>(random() % 256), static_cast<int>(random() % 256),
            static_cast<int>(random() % 256) };
    }

    /// A picture that fits the slot: noise or few colours, with transparent pixels or without.
    MaskedPicture Generate(const Slot& slot, const std::string& label)
    {
        const PixelSize most = slot.LimitOf(*SizeToImport(label));
        Picture pixels(Upto(most.width), Upto(most.height));
        std::vector<Rgb> colours(random() % 2 == 0 ? 5u : 5000u);
        for (Rgb& colour : colours)
            colour = AnyColour();
        std::optional<Rgb> transparent;
        if (random() % 2 == 0) {
            transparent = AnyColour();
            for (Rgb& colour : colours)
                if (colour == *transparent)
                    colour.red ^= 1;
        }
        for (int y = 0; y < pixels.Height(); ++y)
            for (int x = 0; x < pixels.Width(); ++x)
                pixels.Set(x, y,
                    transparent && random() % 3 == 0 ? *transparent
                                                     : colours[random() % colours.size()]);
        return { .pixels = pixels, .transparent = transparent };
    }

    /// Whether `now` is what the depth makes of `source`, its transparent pixels kept apart.
    static void CheckPixels(const MaskedPicture& source, const Picture& now)
    {
        RC_ASSERT(now.Width() == source.pixels.Width() && now.Height() == source.pixels.Height());
        std::set<std::uint32_t> reduced;
        std::optional<Rgb> hole;
        for (int y = 0; y < now.Height(); ++y)
            for (int x = 0; x < now.Width(); ++x) {
                if (source.pixels.At(x, y) != source.transparent)
                    reduced.insert(
                        PackedColour(Reduction(source.pixels.At(x, y), DefaultColorDepth)));
                else if (!hole)
                    hole = now.At(x, y);
                else
                    RC_ASSERT(now.At(x, y) == *hole);
            }
        // Of 16 greys none may be free: then those of one colour have moved to others.
        const bool mayMove = DefaultColorDepth == ColorDepth::Bits4 && reduced.size() == 16;
        for (int y = 0; y < now.Height(); ++y)
            for (int x = 0; x < now.Width(); ++x) {
                const Rgb was = source.pixels.At(x, y);
                if (was == source.transparent)
                    continue;
                RC_ASSERT(now.At(x, y) != hole);
                if (!hole || !mayMove || !(Reduction(was, DefaultColorDepth) == *hole))
                    RC_ASSERT(now.At(x, y) == Reduction(was, DefaultColorDepth));
            }
    }

    std::mt19937 random;
};

RC_GTEST_FIXTURE_PROP(Generated, WhatWasImportedAndSavedOpensWithItsPixelsAndMasks, ())
{
    Begin(*rc::gen::arbitrary<unsigned>());
    std::map<std::string, MaskedPicture> sources;
    for (const char* label : Icons)
        for (const Slot* slot : { &SlotLG, &SlotSM }) {
            sources[NameFor(*slot, label)] = Generate(*slot, label);
            Select(label);
            RC_ASSERT(Import(*slot, sources[NameFor(*slot, label)]) == ImportResult::Stored);
        }
    const std::vector<IconRow> rows = IconTable;

    RC_ASSERT(WhyNot() == "");
    RC_ASSERT(Load(FileName) == LoadResult::Opened);

    RC_ASSERT(IconTable.size() == rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        RC_ASSERT(IconTable[i].IconLabel == rows[i].IconLabel);
        RC_ASSERT(IconTable[i].LowResFile == rows[i].LowResFile);
        RC_ASSERT(IconTable[i].HighResFile == rows[i].HighResFile);
    }
    for (const auto& [name, source] : sources) {
        const Picture now = Stored(name);
        CheckPixels(source, now);
        RC_ASSERT(BitmapOf(name).hasTransparent == 1);
        RC_ASSERT(TransparentColour(BitmapOf(name)) == now.At(0, 0));
    }
}

RC_GTEST_FIXTURE_PROP(Generated, DeleteThenUndoGivesTheBytesBack, ())
{
    Begin(*rc::gen::arbitrary<unsigned>());
    for (const char* label : Icons)
        for (const Slot* slot : { &SlotLG, &SlotSM }) {
            Select(label);
            RC_ASSERT(Import(*slot, Generate(*slot, label)) == ImportResult::Stored);
        }
    const std::vector<IconRow> rows = IconTable;
    const std::vector<BitmapEntry> bitmaps = BitmapTable;
    const std::map<std::string, Bytes> files = WorkFiles();

    for (const char* label : Icons)
        for (const Slot* slot : { &SlotLG, &SlotSM }) {
            Select(label);
            DeleteImage(*slot, host);
            RC_ASSERT(IconTable != rows);
            UndoChange(*slot, host);
            RC_ASSERT(IconTable == rows);
        }

    RC_ASSERT(BitmapTable == bitmaps);
    RC_ASSERT(WorkFiles() == files);
}

RC_GTEST_FIXTURE_PROP(Generated, ImportThenUndoLeavesTheRowsAsBefore, ())
{
    Begin(*rc::gen::arbitrary<unsigned>());
    for (const char* label : Icons)
        for (const Slot* slot : { &SlotLG, &SlotSM })
            if (random() % 2 == 0) {
                Select(label);
                Import(*slot, Generate(*slot, label));
            }
    const std::vector<IconRow> rows = IconTable;
    std::map<std::string, Bytes> files = WorkFiles();

    for (const char* label : Icons)
        for (const Slot* slot : { &SlotLG, &SlotSM }) {
            const bool wasEmpty = Cell(*slot, label) == "NEW";
            if (!wasEmpty && slot == &SlotSM)
                continue; // its undo looks for another file
            Select(label);
            RC_ASSERT(Import(*slot, Generate(*slot, label)) == ImportResult::Stored);
            UndoChange(*slot, host);
            RC_ASSERT(IconTable == rows);
            if (wasEmpty)
                std::filesystem::remove(WorkPath(NameFor(*slot, label)));
        }

    RC_ASSERT(WorkFiles() == files);
}

} // namespace
} // namespace vypx::test
