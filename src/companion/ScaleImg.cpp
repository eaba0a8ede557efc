#include "companion/ScaleImg.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vypx {

namespace {

/// What one target position takes of the source along an axis: source positions from `first` on,
/// the first and the last with weights of their own, those between with `middle`. All weights add
/// up to 1.
struct Share {
    int first = 0, last = 0;
    float firstWeight = 1, middle = 1, lastWeight = 0;
};

std::vector<Share> SharesOf(int source, int target)
{
    std::vector<Share> shares(static_cast<std::size_t>(target));
    for (int i = 0; i < target; ++i) {
        Share& share = shares[static_cast<std::size_t>(i)];
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

void ScaleRow(const std::uint8_t* in, const std::vector<Share>& shares, Row& out)
{
    float* to = out.data();
    for (const Share& share : shares) {
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

/// Source rows scaled to the target's width, the last two kept: rows that grow need each twice.
class ScaledRows {
public:
    ScaledRows(const Picture& source, std::vector<Share> shares)
        : m_source(source)
        , m_shares(std::move(shares))
    {
        for (Kept& kept : m_kept)
            kept.row.resize(m_shares.size() * 3);
    }

    const Row& At(int y)
    {
        Kept& kept = m_kept[y % 2];
        if (kept.y != y) {
            ScaleRow(m_source.Row(y), m_shares, kept.row);
            kept.y = y;
        }
        return kept.row;
    }

private:
    struct Kept {
        int y = -1;
        Row row;
    };

    const Picture& m_source;
    std::vector<Share> m_shares;
    Kept m_kept[2];
};

} // namespace

void ScaleImg(const Picture& source, Picture& target, int sourceWidth, int sourceHeight,
    int targetWidth, int targetHeight)
{
    if (sourceWidth < 1 || sourceHeight < 1 || targetWidth < 1 || targetHeight < 1
        || sourceWidth > source.Width() || sourceHeight > source.Height()
        || targetWidth > target.Width() || targetHeight > target.Height())
        return;
    ScaledRows rows(source, SharesOf(sourceWidth, targetWidth));
    const std::vector<Share> shares = SharesOf(sourceHeight, targetHeight);
    Row sums(static_cast<std::size_t>(targetWidth) * 3);
    for (int y = 0; y < targetHeight; ++y) {
        const Share& share = shares[static_cast<std::size_t>(y)];
        std::fill(sums.begin(), sums.end(), 0.0f);
        AddRow(rows.At(share.first), share.firstWeight, sums);
        for (int row = share.first + 1; row < share.last; ++row)
            AddRow(rows.At(row), share.middle, sums);
        if (share.last > share.first)
            AddRow(rows.At(share.last), share.lastWeight, sums);
        std::uint8_t* const out = target.Row(y);
        for (std::size_t i = 0; i < sums.size(); ++i)
            out[i] = static_cast<std::uint8_t>(std::clamp(sums[i] + 0.5f, 0.0f, 255.0f));
    }
}

} // namespace vypx
