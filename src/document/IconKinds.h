#pragma once

#include "document/IconTree.h"

#include <span>
#include <string_view>

namespace vypx {

/// The catalogs that name icons.
enum class Catalog {
    Apps,     ///< AppTable
    Palm,     ///< PalmTable
    Launcher, ///< VYTable
    None,     ///< what no catalog names
};

/// How a new icon of a kind gets its resource ID.
enum class IdRule {
    NextFree, ///< ResourceIds
    OfEntry,  ///< the catalog entry's own
    AsRead,   ///< there are no new ones
};

/// A kind of icon. The one place for what goes with a kind.
struct IconKindRow {
    std::string_view word; ///< in IconKind cells
    int image;             ///< of TreeImage; 0: none of its own
    Catalog catalog;
    IdRule ids;
};

std::span<const IconKindRow> IconKinds();

/// The kind whose icons that catalog names; not to be asked with None.
const IconKindRow& KindOf(Catalog catalog);

/// The picture of a kept row by its IconKind word; 0 for a word that has none ("DELETE" included).
int ImageOfKind(std::string_view iconKind);

} // namespace vypx
