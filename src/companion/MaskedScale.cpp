#include "companion/Reduction.h"
#include "companion/ScaleAxis.h"
#include "companion/ScaleImg.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace vypx {

namespace {

/// Whole numbers, so that a half is told from more than a half whatever the sizes.
using WholeShare = Share<std::uint32_t>;

/// All weights of an axis: the shares of its positions, and what those of each add up to.
struct Axis {
    std::vector<WholeShare> shares;
    std::uint32_t sum = 0;
};

/// Between the centres of two neighbours. A source pixel is 2 x target units wide.
Axis GrowingAxis(std::int64_t source, std::int64_t target)
{
    const std::int64_t width = 2 * target;
    Axis axis{ .sum = static_cast<std::uint32_t>(width) };
    for (std::int64_t i = 0; i < target; ++i) {
        const std::int64_t centre =
            std::clamp<std::int64_t>((2 * i + 1) * source - target, 0, (source - 1) * width);
        const auto first = static_cast<int>(centre / width);
        const auto ofNext = static_cast<std::uint32_t>(centre % width);
        axis.shares.push_back({ .first = first,
            .last = ofNext > 0 ? first + 1 : first,
            .firstWeight = axis.sum - ofNext,
            .lastWeight = ofNext });
    }
    return axis;
}

/// The area that is covered. A source pixel is `target` units wide, a target pixel `source`.
Axis ShrinkingAxis(std::int64_t source, std::int64_t target)
{
    Axis axis{ .sum = static_cast<std::uint32_t>(source) };
    for (std::int64_t i = 0; i < target; ++i) {
        const std::int64_t begin = i * source, end = begin + source;
        const std::int64_t first = begin / target, last = (end - 1) / target;
        axis.shares.push_back({ .first = static_cast<int>(first),
            .last = static_cast<int>(last),
            .firstWeight = static_cast<std::uint32_t>(std::min((first + 1) * target, end) - begin),
            .middle = static_cast<std::uint32_t>(target),
            .lastWeight = static_cast<std::uint32_t>(end - last * target) });
    }
    return axis;
}

Axis AxisOf(int source, int target)
{
    return target > source ? GrowingAxis(source, target) : ShrinkingAxis(source, target);
}

/// The weight of opaque pixels, and their red, green and blue times their weights. Along one axis
/// that is below 2^25, along both below 2^43.
template <typename Number>
using OpaqueSums = std::array<Number, 4>;
using SumsRow = std::vector<OpaqueSums<std::uint32_t>>;

void Add(const std::uint8_t* pixel, std::uint32_t weight, std::uint32_t transparent,
    OpaqueSums<std::uint32_t>& sums)
{
    const std::uint32_t red = pixel[0], green = pixel[1], blue = pixel[2];
    const std::uint32_t counted = (red | green << 8 | blue << 16) == transparent ? 0 : weight;
    sums[0] += counted;
    sums[1] += red * counted;
    sums[2] += green * counted;
    sums[3] += blue * counted;
}

void ScaleMaskedRow(const std::uint8_t* in, const std::vector<WholeShare>& shares,
    std::uint32_t transparent, SumsRow& out)
{
    auto to = out.begin();
    for (const WholeShare& share : shares) {
        OpaqueSums<std::uint32_t> sums{};
        Add(in + share.first * 3, share.firstWeight, transparent, sums);
        if (share.last > share.first) {
            OpaqueSums<std::uint32_t> between{};
            const std::uint8_t* const end = in + share.last * 3;
            for (const std::uint8_t* pixel = in + share.first * 3 + 3; pixel < end; pixel += 3)
                Add(pixel, 1, transparent, between);
            for (std::size_t i = 0; i < sums.size(); ++i)
                sums[i] += between[i] * share.middle;
            Add(end, share.lastWeight, transparent, sums);
        }
        *to++ = sums;
    }
}

/// What becomes of a target pixel.
class Mixer {
public:
    Mixer(std::uint64_t whole, const ScaleMask& mask)
        : m_whole(whole)
        , m_mask(mask)
        , m_reduced(Reduced(mask.transparent, mask.depth))
    {
    }

    Rgb Mixed(const OpaqueSums<std::uint64_t>& sums) const
    {
        const std::uint64_t opaque = sums[0];
        if (2 * opaque < m_whole)
            return m_mask.transparent;
        const auto average = [&](std::size_t component) {
            return static_cast<int>((2 * sums[component] + opaque) / (2 * opaque));
        };
        const Rgb colour{ average(1), average(2), average(3) };
        return Reduced(colour, m_mask.depth) == m_reduced
            ? NearestOther(colour, m_mask.transparent, m_mask.depth)
            : colour;
    }

private:
    std::uint64_t m_whole;
    ScaleMask m_mask;
    Rgb m_reduced;
};

} // namespace

void ScaleImg(const Picture& source, Picture& target, int sourceWidth, int sourceHeight,
    int targetWidth, int targetHeight, const ScaleMask& mask)
{
    if (!HasPart(source, sourceWidth, sourceHeight) || !HasPart(target, targetWidth, targetHeight))
        return;
    const Axis columns = AxisOf(sourceWidth, targetWidth);
    const Axis lines = AxisOf(sourceHeight, targetHeight);
    const std::uint32_t transparent = PackedColour(mask.transparent);
    auto rows =
        MakeScaledRows<OpaqueSums<std::uint32_t>>(columns.shares.size(), [&](int y, SumsRow& row) {
            ScaleMaskedRow(source.Row(y), columns.shares, transparent, row);
        });
    const Mixer mixer(static_cast<std::uint64_t>(columns.sum) * lines.sum, mask);
    std::vector<OpaqueSums<std::uint64_t>> sums(columns.shares.size());
    for (int y = 0; y < targetHeight; ++y) {
        std::fill(sums.begin(), sums.end(), OpaqueSums<std::uint64_t>{});
        AddShare(rows, lines.shares[static_cast<std::size_t>(y)],
            [&](const SumsRow& row, std::uint32_t weight) {
                for (std::size_t x = 0; x < row.size(); ++x)
                    for (std::size_t i = 0; i < row[x].size(); ++i)
                        sums[x][i] += static_cast<std::uint64_t>(row[x][i]) * weight;
            });
        for (int x = 0; x < targetWidth; ++x)
            target.Set(x, y, mixer.Mixed(sums[static_cast<std::size_t>(x)]));
    }
    if (source.At(0, 0) == mask.transparent)
        target.Set(0, 0, mask.transparent);
}

} // namespace vypx
