#include "companion/FreeColour.h"

#include <algorithm>
#include <limits>

namespace vypx {

namespace {

/// Red, green and blue as one number, red highest.
constexpr std::uint32_t NumberOf(Rgb colour)
{
    return static_cast<std::uint32_t>(colour.red << 16 | colour.green << 8 | colour.blue);
}

constexpr Rgb ColourOf(std::uint32_t number)
{
    return { static_cast<int>(number >> 16), static_cast<int>(number >> 8 & 0xFF),
        static_cast<int>(number & 0xFF) };
}

constexpr std::uint32_t Colours = 1u << 24;
constexpr std::uint32_t Preferred = NumberOf({ 255, 0, 255 });

constexpr std::uint32_t NextInOrder(std::uint32_t number)
{
    return (number + Colours - 1) % Colours;
}

/// Calls `use(x, y)` for every pixel that is transparent, or for every one that is not.
template <typename Use>
void ForPixels(const Picture& picture, const std::vector<bool>& isTransparent, bool transparent,
    const Use& use)
{
    std::size_t pixel = 0;
    for (int y = 0; y < picture.Height(); ++y)
        for (int x = 0; x < picture.Width(); ++x)
            if (isTransparent[pixel++] == transparent)
                use(x, y);
}

/// The first colour that no opaque pixel has. Empty: they have them all.
std::optional<Rgb> FirstFree(const Picture& picture, const std::vector<bool>& isTransparent)
{
    std::vector<bool> isTaken(Colours);
    ForPixels(picture, isTransparent, false,
        [&](int x, int y) { isTaken[NumberOf(picture.At(x, y))] = true; });
    std::uint32_t number = Preferred;
    do {
        if (!isTaken[number])
            return ColourOf(number);
        number = NextInOrder(number);
    } while (number != Preferred);
    return std::nullopt;
}

Rgb RarestColour(const Picture& picture, const std::vector<bool>& isTransparent)
{
    std::vector<std::uint32_t> uses(Colours);
    ForPixels(
        picture, isTransparent, false, [&](int x, int y) { ++uses[NumberOf(picture.At(x, y))]; });
    if (!isTransparent[0])
        uses[NumberOf(picture.At(0, 0))] = std::numeric_limits<std::uint32_t>::max();
    std::uint32_t rarest = Preferred;
    for (auto number = NextInOrder(Preferred); number != Preferred; number = NextInOrder(number))
        if (uses[number] < uses[rarest])
            rarest = number;
    return ColourOf(rarest);
}

/// Frees a colour that opaque pixels have.
void MoveToNeighbour(Picture& picture, const std::vector<bool>& isTransparent, Rgb colour)
{
    Rgb neighbour = colour;
    neighbour.blue += colour.blue > 0 ? -1 : 1;
    ForPixels(picture, isTransparent, false, [&](int x, int y) {
        if (picture.At(x, y) == colour)
            picture.Set(x, y, neighbour);
    });
}

} // namespace

MaskedPicture WithFreeColour(Picture picture, const std::vector<bool>& isTransparent)
{
    const auto contains = [&](bool value) {
        return std::find(isTransparent.begin(), isTransparent.end(), value) != isTransparent.end();
    };
    if (!contains(true) || !contains(false))
        return { std::move(picture), std::nullopt };

    std::optional<Rgb> free = FirstFree(picture, isTransparent);
    if (!free) {
        free = RarestColour(picture, isTransparent);
        MoveToNeighbour(picture, isTransparent, *free);
    }
    ForPixels(picture, isTransparent, true, [&](int x, int y) { picture.Set(x, y, *free); });
    return { std::move(picture), free };
}

} // namespace vypx
