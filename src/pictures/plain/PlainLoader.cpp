// The room where there is no Qt: it reads the BMP files that the program itself writes, so that all
// that knows the room can be built.

#include "companion/BmpFile.h"
#include "pictures/PictureLoader.h"
#include "platform/Platform.h"

#include <new>

namespace vypx {

namespace {

constexpr std::uintmax_t MostFileBytes = 400'000'000;

std::optional<Picture> Load(const std::string& path)
{
    const auto file = platform::ReadWholeFile(path, MostFileBytes);
    return file ? DecodeBmp(*file) : std::nullopt;
}

} // namespace

LoadedPicture LoadPicture(const std::string& path)
{
    try {
        if (std::optional<Picture> picture = Load(path))
            return { { std::move(*picture), std::nullopt }, {} };
        return { {}, "it is no picture that can be read here" };
    } catch (const std::bad_alloc&) {
        return { {}, "there is not enough memory" };
    }
}

std::int64_t PixelsClaimed(const std::string& path)
{
    const LoadedPicture loaded = LoadPicture(path);
    return std::int64_t{ loaded.picture.pixels.Width() } * loaded.picture.pixels.Height();
}

std::vector<std::string> PictureEndings() { return { "bmp" }; }

} // namespace vypx
