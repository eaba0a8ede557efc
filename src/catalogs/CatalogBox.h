#pragma once

#include <functional>
#include <string>

namespace vypx {

/// A message box that a routine of the catalogs wants. Texts are Latin-1.
struct CatalogBox {
    enum class Icon { None, Information, Exclamation, Stop };

    std::string text;
    std::string title = {}; ///< empty: the program's
    Icon icon = Icon::None;
    bool asks = false; ///< with OK and Cancel; else with OK alone

    friend bool operator==(const CatalogBox&, const CatalogBox&) = default;
};

/// Shows a box and says whether OK was pressed.
using ShowBox = std::function<bool(const CatalogBox&)>;

/// What failed writes are told in.
inline CatalogBox NotSavedBox()
{
    return { .text = "Failed to save value.", .icon = CatalogBox::Icon::Information };
}
inline CatalogBox NotDeletedBox()
{
    return { .text = "Delete Section Failed.", .icon = CatalogBox::Icon::Information };
}

} // namespace vypx
