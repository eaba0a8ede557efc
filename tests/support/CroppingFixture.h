#pragma once

#include "imaging/CropTask.h"

#include "support/PicturesFixture.h"

namespace vypx::test {

/// A picture that is larger than its slot waits for the crop window.
class Cropping : public Pictures {
protected:
    static constexpr Rgb Grey{ 120, 130, 140 }, Pink{ 255, 0, 255 };

    /// The import of that picture into the high-res slot of the large icon.
    CropTask Waiting(const MaskedPicture& picture)
    {
        Select(Large);
        EXPECT_EQ(Import(SlotLG, picture), ImportResult::Cropping);
        return CropTask(SlotLG, ColorDepth::Bits16);
    }
    CropTask Waiting(int width, int height)
    {
        return Waiting({ .pixels = Plain(width, height, Grey) });
    }
    static PixelSize SizeOf(const std::string& name)
    {
        const Picture picture = Stored(name);
        return { picture.Width(), picture.Height() };
    }
    /// Nobody can write over a folder.
    static void Block(const std::string& name)
    {
        std::filesystem::remove(WorkPath(name));
        std::filesystem::create_directory(WorkPath(name));
        WriteBytes(WorkPath(name + "/inside"), Bytes(1));
    }
};

} // namespace vypx::test
