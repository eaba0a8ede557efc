// The room where there is no Qt: it reads the BMP files that the program itself writes, so that all
// that knows the room can be built.

#include "companion/BmpFile.h"
#include "pictures/PictureLoader.h"
#include "platform/Platform.h"

#include <new>

namespace vypx {

namespace {

constexpr std::uintmax_t MostFileBytes = 400'000'000;

template <typename Source>
LoadedPicture Load(const Source& source)
{
    try {
        if (std::optional<Picture> picture = source())
            return { { std::move(*picture), std::nullopt }, {} };
        return { {}, "it is no picture that can be read here" };
    } catch (const std::bad_alloc&) {
        return { {}, "there is not enough memory" };
    }
}

std::int64_t PixelsOf(const LoadedPicture& loaded)
{
    return std::int64_t{ loaded.picture.pixels.Width() } * loaded.picture.pixels.Height();
}

} // namespace

LoadedPicture LoadPicture(const std::string& path)
{
    return Load([&]() -> std::optional<Picture> {
        const auto file = platform::ReadWholeFile(path, MostFileBytes);
        return file ? DecodeBmp(*file) : std::nullopt;
    });
}

LoadedPicture LoadPictureBytes(std::span<const std::uint8_t> bytes)
{
    return Load([&] { return DecodeBmp(ByteView(bytes)); });
}

std::int64_t PixelsClaimed(const std::string& path) { return PixelsOf(LoadPicture(path)); }

std::int64_t PixelsClaimed(std::span<const std::uint8_t> bytes)
{
    return PixelsOf(LoadPictureBytes(bytes));
}

std::vector<std::string> PictureEndings() { return { "bmp" }; }

} // namespace vypx
