#pragma once

#include "ImportFixture.h"
#include "companion/Reduction.h"
#include "support/Pixels.h"

#include <algorithm>

namespace vypx::test {

/// Each slot of the sample's icons: as a line begins, its working file and its size.
struct SlotCase {
    const char* head;
    const char* file;
    int width, height;
};
inline constexpr SlotCase LargeHigh{ "Acorn Notes (Large Icon)\thigh\t", "tAIB3500-d144.bmp", 64,
    44 };
inline constexpr SlotCase LargeLow{ "Acorn Notes (Large Icon)\tlow\t", "tAIB3500.bmp", 32, 22 };
inline constexpr SlotCase SmallHigh{ "Fern (Small Icon)\thigh\t", "tAIB3507-d144.bmp", 30, 22 };
inline constexpr SlotCase SmallLow{ "Fern (Small Icon)\tlow\t", "tAIB3507.bmp", 15, 11 };

/// For lists with regions, and for --stretch.
class ImportCrop : public ImportFixture {
protected:
    /// What netpbm makes of a file: "pamcut ... FILE | ...".
    Picture Witness(const std::string& pipe)
    {
        return PictureFrom("cd '" + folder.File("pictures") + "' && " + pipe);
    }
    /// What a slot holds after a list of that line alone.
    Picture Stored(
        const SlotCase& slot, const std::string& rest, const std::vector<std::string>& options = {})
    {
        const ToolRun run = Run(slot.head + rest, options);
        EXPECT_EQ(run.errors, "") << slot.head << rest;
        EXPECT_EQ(run.exitCode, 0);
        Dumped("out.prc");
        return Shown(slot.file);
    }
    static void ExpectSize(const Picture& picture, const SlotCase& slot)
    {
        EXPECT_EQ(picture.Width(), slot.width) << slot.head;
        EXPECT_EQ(picture.Height(), slot.height) << slot.head;
    }
};

/// Whether a stored component is that of the witness, within one of 255 levels before both are
/// brought to 5-6-5: two ways to add up the same area average.
inline bool IsWithinALevel(int Rgb::*component, Rgb stored, Rgb witness)
{
    for (int level = -1; level <= 1; ++level) {
        Rgb near = witness;
        near.*component = std::clamp(near.*component + level, 0, 255);
        if (Reduced(near, 16).*component == stored.*component)
            return true;
    }
    return false;
}

inline void ExpectAverage(const Picture& stored, const Picture& witness)
{
    ASSERT_EQ(stored.Width(), witness.Width());
    ASSERT_EQ(stored.Height(), witness.Height());
    int wrong = 0;
    for (int y = 0; y < stored.Height(); ++y)
        for (int x = 0; x < stored.Width(); ++x)
            for (const auto component : { &Rgb::red, &Rgb::green, &Rgb::blue })
                wrong += IsWithinALevel(component, stored.At(x, y), witness.At(x, y)) ? 0 : 1;
    EXPECT_EQ(wrong, 0);
}

inline std::string ScaleTo(const SlotCase& slot)
{
    return "pamscale -linear -xsize=" + std::to_string(slot.width)
        + " -ysize=" + std::to_string(slot.height);
}

} // namespace vypx::test
