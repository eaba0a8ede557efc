// A database of any bytes through walk and decoder, its pictures into memory. Each has the size
// that its header claims; what is not wanted is not decoded.

#include "Database.h"
#include "reader/PictureSink.h"
#include "settings/Settings.h"

using namespace vypx;

namespace {

class CheckedPictures : public PictureSink {
public:
    bool GoOn() override { return true; }
    bool Wants(const PictureHeader& header) override
    {
        m_wanted = header.width * std::int64_t{ header.height } <= MostPixels
            && header.rowBytes * std::int64_t{ header.height } <= MostPixels;
        return m_wanted;
    }
    void Take(const PictureHeader& header, Picture picture) override
    {
        fuzz::Require(m_wanted);
        fuzz::Require(picture.IsNull()
            || (picture.Width() == header.width && picture.Height() == header.height));
    }

private:
    static constexpr std::int64_t MostPixels = 1 << 20;
    bool m_wanted = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 70 || size > 1u << 16)
        return 0;
    DefaultColorDepth = ColorDepth::Bits16;
    CheckedPictures pictures;
    WalkState walk{ .pictures = &pictures };
    if (!fuzz::WalkDatabase(data, size, walk))
        return 0;
    fuzz::DecodePictures(walk);
    return 0;
}
