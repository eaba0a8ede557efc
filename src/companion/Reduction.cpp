#include "companion/Reduction.h"

#include "companion/NearestColour.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <optional>
#include <vector>

namespace vypx {

namespace {

/// The colours of a working depth by number: index of the palette, or 5-6-5 value.
class DepthColours {
public:
    explicit DepthColours(int depth)
        : m_nearest(depth == 4 ? &NearestIn(Palette4)
                : depth == 8   ? &NearestIn(Palette8)
                               : nullptr)
    {
    }

    std::size_t Count() const { return m_nearest ? m_nearest->Colours().size() : 65536; }
    Rgb At(std::size_t number) const
    {
        return m_nearest ? m_nearest->Colours()[number] : From565(static_cast<int>(number));
    }
    /// What a colour is reduced to. Of a palette's equal entries it is always the first.
    std::size_t NumberOf(Rgb colour) const
    {
        return m_nearest
            ? static_cast<std::size_t>(m_nearest->IndexOf(colour.red, colour.green, colour.blue))
            : To565(colour);
    }
    /// Those that nothing is reduced to repeat an entry before them.
    bool IsRepeated(std::size_t number) const { return NumberOf(At(number)) != number; }

    bool KeepsOpaquePixels() const { return m_nearest == nullptr; }

private:
    NearestColour* m_nearest;
};

const DepthColours& ColoursOf(int depth)
{
    static const DepthColours four(4), eight(8), sixteen(16);
    return depth == 4 ? four : depth == 8 ? eight : sixteen;
}

int SquaredDistance(Rgb a, Rgb b)
{
    const int red = a.red - b.red, green = a.green - b.green, blue = a.blue - b.blue;
    return red * red + green * green + blue * blue;
}

/// The nearest of the numbers that were offered, of several as near the first.
class Contest {
public:
    explicit Contest(Rgb colour)
        : m_colour(colour)
    {
    }

    void Offer(std::size_t number, Rgb colour)
    {
        const int distance = SquaredDistance(colour, m_colour);
        if (distance >= m_least)
            return;
        m_least = distance;
        m_winner = number;
    }
    bool HasWinner() const { return m_least != INT_MAX; }
    std::size_t Winner() const { return m_winner; }

private:
    Rgb m_colour;
    int m_least = INT_MAX;
    std::size_t m_winner = 0;
};

/// The nearest of the 5-6-5 colours but for the one that `colour` is narrowed to. It is at most a
/// step away along each component: a step more leads farther away. Several steps at once can be as
/// near as one, where a component lies in the middle of two levels.
Rgb NearestNeighbour565(Rgb colour)
{
    const int value = To565(colour);
    const int red = value >> 11, green = value >> 5 & 63, blue = value & 31;
    Contest contest(colour);
    for (int r = std::max(red - 1, 0); r <= std::min(red + 1, 31); ++r)
        for (int g = std::max(green - 1, 0); g <= std::min(green + 1, 63); ++g)
            for (int b = std::max(blue - 1, 0); b <= std::min(blue + 1, 31); ++b) {
                const int other = r << 11 | g << 5 | b;
                if (other != value)
                    contest.Offer(static_cast<std::size_t>(other), From565(other));
            }
    return From565(static_cast<int>(contest.Winner()));
}

/// How many opaque pixels are reduced to each colour, and whether there are others.
struct Uses {
    std::vector<std::size_t> counts;
    bool hasTransparent = false;
};

Uses CountUses(const Picture& pixels, Rgb transparent, const DepthColours& colours)
{
    Uses uses{ .counts = std::vector<std::size_t>(colours.Count()) };
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) {
            const Rgb colour = pixels.At(x, y);
            if (colour == transparent)
                uses.hasTransparent = true;
            else
                ++uses.counts[colours.NumberOf(colour)];
        }
    return uses;
}

std::optional<std::size_t> FreeNumber(const Uses& uses, const DepthColours& colours)
{
    Contest contest({ 255, 0, 255 });
    for (std::size_t number = 0; number < uses.counts.size(); ++number)
        if (uses.counts[number] == 0 && !colours.IsRepeated(number))
            contest.Offer(number, colours.At(number));
    return contest.HasWinner() ? std::optional(contest.Winner()) : std::nullopt;
}

/// Of the colours that are in use.
std::size_t RarestNumber(const Uses& uses, std::optional<std::size_t> exempt)
{
    std::size_t rarest = 0, least = SIZE_MAX;
    for (std::size_t number = 0; number < uses.counts.size(); ++number)
        if (uses.counts[number] != 0 && uses.counts[number] < least && number != exempt) {
            least = uses.counts[number];
            rarest = number;
        }
    return rarest;
}

} // namespace

Rgb Reduced(Rgb colour, int depth)
{
    const DepthColours& colours = ColoursOf(depth);
    return colours.At(colours.NumberOf(colour));
}

Rgb NearestOther(Rgb colour, Rgb other, int depth)
{
    const Rgb own = Reduced(colour, depth), taken = Reduced(other, depth);
    if (own != taken)
        return own;
    if (depth == 16)
        return NearestNeighbour565(colour);
    const DepthColours& colours = ColoursOf(depth);
    Contest contest(colour);
    for (std::size_t number = 0; number < colours.Count(); ++number)
        if (colours.At(number) != taken)
            contest.Offer(number, colours.At(number));
    return colours.At(contest.Winner());
}

Picture ReadyToStore(const MaskedPicture& picture, int depth)
{
    if (!picture.transparent)
        return picture.pixels;
    const DepthColours& colours = ColoursOf(depth);
    const Uses uses = CountUses(picture.pixels, *picture.transparent, colours);
    if (!uses.hasTransparent)
        return picture.pixels;

    std::optional<std::size_t> mask = FreeNumber(uses, colours);
    const bool isFreed = !mask;
    if (isFreed) {
        const Rgb topLeft = picture.pixels.At(0, 0);
        mask = RarestNumber(uses,
            topLeft == picture.transparent ? std::nullopt
                                           : std::optional(colours.NumberOf(topLeft)));
    }
    const Rgb maskColour = colours.At(*mask);
    const Rgb movedTo = NearestOther(maskColour, maskColour, depth);

    Picture ready = picture.pixels;
    for (int y = 0; y < ready.Height(); ++y)
        for (int x = 0; x < ready.Width(); ++x) {
            const Rgb colour = ready.At(x, y);
            const std::size_t number = colours.NumberOf(colour);
            if (colour == picture.transparent)
                ready.Set(x, y, maskColour);
            else if (isFreed && number == mask)
                ready.Set(x, y, movedTo);
            else if (!colours.KeepsOpaquePixels())
                ready.Set(x, y, colours.At(number));
        }
    return ready;
}

} // namespace vypx
