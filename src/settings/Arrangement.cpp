#include "settings/Arrangement.h"

namespace vypx {

namespace {

using Width = std::optional<int> SideWidths::*;

struct Row {
    bool preview, stats, shares; ///< on view
    Width width;
};

/// On purpose: the window that counts is not the widest one, nor always the topmost.
constexpr Row Rows[] = {
    { true, true, true, &SideWidths::stats },
    { false, true, true, &SideWidths::stats },
    { true, true, false, &SideWidths::preview },
    { true, false, true, &SideWidths::preview },
    { true, false, false, &SideWidths::preview },
    { false, true, false, &SideWidths::stats },
    { false, false, true, &SideWidths::shares },
};

} // namespace

int ColumnWidth(const SideWidths& sides)
{
    for (const Row& row : Rows)
        if (row.preview == sides.preview.has_value() && row.stats == sides.stats.has_value()
            && row.shares == sides.shares.has_value())
            return *(sides.*row.width);
    return 0;
}

ArrangedFrame ArrangeFrame(int formWidth, int formHeight, const SideWidths& sides)
{
    constexpr int Beside = 300, Above = 1000; // borders; title and menus
    return { formWidth + ColumnWidth(sides) + Beside, formHeight + Above };
}

} // namespace vypx
