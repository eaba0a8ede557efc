#pragma once

#include "pictures/PictureLoader.h"
#include "support/Files.h"
#include "support/Netpbm.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>

namespace vypx::test {

/// The largest difference of a component; 256 for pictures of other sizes.
inline int Difference(const Picture& one, const Picture& other)
{
    if (one.Width() != other.Width() || one.Height() != other.Height())
        return 256;
    int largest = 0;
    for (int y = 0; y < one.Height(); ++y)
        for (int i = 0; i < one.Width() * 3; ++i)
            largest = std::max(largest, std::abs(one.Row(y)[i] - other.Row(y)[i]));
    return largest;
}

/// Picture files in a folder, made by the tools of netpbm, ImageMagick and others, which are the
/// witnesses as well. Commands run in that folder.
class WitnessFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_NETPBM();
        ::setenv("MAGICK_THREAD_LIMIT", "1", 1); // its threads wait for each other by spinning
    }

    void Run(const std::string& command) const
    {
        ASSERT_EQ(
            std::system(("cd '" + folder.Path() + "' && { " + command + "; } 2>tools.log").c_str()),
            0)
            << command << "\n"
            << ReadText(folder.File("tools.log"));
    }

    /// What a command prints as PNM, at 8 bits.
    Picture Shown(const std::string& command) const
    {
        return PictureFrom(
            "cd '" + folder.Path() + "' && { " + command + "; } 2>/dev/null | pamdepth -quiet 255");
    }

    LoadedPicture Load(const std::string& name) const { return LoadPicture(folder.File(name)); }

    /// The file is opaque and has the pixels that the command prints.
    void ExpectShows(const std::string& name, const std::string& command, int tolerance = 0) const
    {
        const LoadedPicture loaded = Load(name);
        EXPECT_EQ(loaded.whyNot, "") << name;
        EXPECT_EQ(loaded.picture.transparent, std::nullopt) << name;
        EXPECT_LE(Difference(loaded.picture.pixels, Shown(command)), tolerance) << name;
    }

    const TempFolder folder;
};

} // namespace vypx::test
