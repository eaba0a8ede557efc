#pragma once

#include "companion/Picture.h"

#include <vector>

/// What scaling with and without a mask have in common.
namespace vypx {

/// What one target position takes of the source along an axis: source positions from `first` on,
/// the first and the last with weights of their own, those between with `middle`.
template <typename Weight>
struct Share {
    int first = 0, last = 0;
    Weight firstWeight{ 1 }, middle{ 1 }, lastWeight{ 0 };
};

/// Calls `add(row, weight)` for all that a target position takes.
template <typename Rows, typename Weight, typename Add>
void AddShare(Rows& rows, const Share<Weight>& share, const Add& add)
{
    add(rows.At(share.first), share.firstWeight);
    for (int row = share.first + 1; row < share.last; ++row)
        add(rows.At(row), share.middle);
    if (share.last > share.first)
        add(rows.At(share.last), share.lastWeight);
}

/// Source rows scaled to the target's width by `scale(y, row)`, the last two kept: rows that grow
/// need each twice.
template <typename Value, typename Scale>
class ScaledRows {
public:
    ScaledRows(std::size_t values, Scale scale)
        : m_scale(std::move(scale))
    {
        for (Kept& kept : m_kept)
            kept.row.resize(values);
    }

    const std::vector<Value>& At(int y)
    {
        Kept& kept = m_kept[y % 2];
        if (kept.y != y) {
            m_scale(y, kept.row);
            kept.y = y;
        }
        return kept.row;
    }

private:
    struct Kept {
        int y = -1;
        std::vector<Value> row;
    };

    Scale m_scale;
    Kept m_kept[2];
};

template <typename Value, typename Scale>
ScaledRows<Value, Scale> MakeScaledRows(std::size_t values, Scale scale)
{
    return ScaledRows<Value, Scale>(values, std::move(scale));
}

inline bool HasPart(const Picture& picture, int width, int height)
{
    return width >= 1 && height >= 1 && width <= picture.Width() && height <= picture.Height();
}

} // namespace vypx
