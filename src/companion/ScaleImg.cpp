#include "companion/ScaleImg.h"

#include "companion/ScaleAxis.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vypx {

namespace {

/// The weights of a share add up to 1.
std::vector<Share<float>> SharesOf(int source, int target)
{
    std::vector<Share<float>> shares(static_cast<std::size_t>(target));
    for (int i = 0; i < target; ++i) {
        Share<float>& share = shares[static_cast<std::size_t>(i)];
        if (target > source) { // grows: between the centres of two neighbours
            const double centre = (i + 0.5) * source / target - 0.5;
            const double held = std::clamp(centre, 0.0, static_cast<double>(source - 1));
            share.first = static_cast<int>(held);
            share.lastWeight = static_cast<float>(held - share.first);
            share.firstWeight = 1 - share.lastWeight;
            share.last = share.lastWeight > 0 ? share.first + 1 : share.first;
            continue;
        }
        const double scale = static_cast<double>(source) / target;
        const double begin = i * scale, end = (i + 1) * scale;
        share.first = static_cast<int>(begin);
        share.last = std::min(static_cast<int>(std::ceil(end)) - 1, source - 1);
        share.middle = static_cast<float>(1 / scale);
        if (share.first == share.last) {
            share.firstWeight = 1;
            continue;
        }
        share.firstWeight = static_cast<float>((share.first + 1 - begin) / scale);
        share.lastWeight = static_cast<float>((end - share.last) / scale);
    }
    return shares;
}

using Row = std::vector<float>;

void ScaleRow(const std::uint8_t* in, const std::vector<Share<float>>& shares, Row& out)
{
    float* to = out.data();
    for (const Share<float>& share : shares) {
        const std::uint8_t* pixel = in + share.first * 3;
        float sum[3] = { pixel[0] * share.firstWeight, pixel[1] * share.firstWeight,
            pixel[2] * share.firstWeight };
        if (share.last > share.first) {
            std::uint32_t whole[3] = { 0, 0, 0 };
            const std::uint8_t* const end = in + share.last * 3;
            for (pixel += 3; pixel < end; pixel += 3) {
                whole[0] += pixel[0];
                whole[1] += pixel[1];
                whole[2] += pixel[2];
            }
            for (int i = 0; i < 3; ++i)
                sum[i] += static_cast<float>(whole[i]) * share.middle + end[i] * share.lastWeight;
        }
        *to++ = sum[0];
        *to++ = sum[1];
        *to++ = sum[2];
    }
}

void AddRow(const Row& row, float weight, Row& sums)
{
    for (std::size_t i = 0; i < row.size(); ++i)
        sums[i] += row[i] * weight;
}

} // namespace

void ScaleImg(const Picture& source, Picture& target, int sourceWidth, int sourceHeight,
    int targetWidth, int targetHeight)
{
    if (!HasPart(source, sourceWidth, sourceHeight) || !HasPart(target, targetWidth, targetHeight))
        return;
    const std::vector<Share<float>> columns = SharesOf(sourceWidth, targetWidth);
    Row sums(static_cast<std::size_t>(targetWidth) * 3);
    auto rows = MakeScaledRows<float>(
        sums.size(), [&](int y, Row& row) { ScaleRow(source.Row(y), columns, row); });
    const std::vector<Share<float>> shares = SharesOf(sourceHeight, targetHeight);
    for (int y = 0; y < targetHeight; ++y) {
        std::fill(sums.begin(), sums.end(), 0.0f);
        AddShare(rows, shares[static_cast<std::size_t>(y)],
            [&](const Row& row, float weight) { AddRow(row, weight, sums); });
        std::uint8_t* const out = target.Row(y);
        for (std::size_t i = 0; i < sums.size(); ++i)
            out[i] = static_cast<std::uint8_t>(std::clamp(sums[i] + 0.5f, 0.0f, 255.0f));
    }
}

} // namespace vypx
