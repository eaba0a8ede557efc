#pragma once

#include <optional>

namespace vypx {

/// Widths in twips of the side windows that are on view; empty: that one is not.
struct SideWidths {
    std::optional<int> preview, stats, shares;
};

/// Of the column beside the main form: the width of one of its windows; 0 without any.
int ColumnWidth(const SideWidths& sides);

/// Size in twips of the frame around the main form, whose width and height are given, and a column
/// of side windows.
struct ArrangedFrame {
    int width, height;
};
ArrangedFrame ArrangeFrame(int formWidth, int formHeight, const SideWidths& sides);

} // namespace vypx
