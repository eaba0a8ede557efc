#include "document/IconKinds.h"

#include "companion/IconRow.h"

#include <algorithm>

namespace vypx {

namespace {

constexpr IconKindRow Rows[] = {
    { KindApp, ImageApp, Catalog::Apps, IdRule::NextFree },
    { KindPalm, ImagePalm, Catalog::Palm, IdRule::NextFree },
    { KindVY, ImageVY, Catalog::Launcher, IdRule::OfEntry },
    { KindUnknown, ImageUnknown, Catalog::None, IdRule::AsRead },
    { KindDelete, 0, Catalog::None, IdRule::AsRead },
};

} // namespace

std::span<const IconKindRow> IconKinds() { return Rows; }

const IconKindRow& KindOf(Catalog catalog)
{
    return *std::find_if(std::begin(Rows), std::end(Rows),
        [&](const IconKindRow& row) { return row.catalog == catalog; });
}

int ImageOfKind(std::string_view iconKind)
{
    for (const IconKindRow& row : Rows)
        if (row.word == iconKind)
            return row.image;
    return 0;
}

} // namespace vypx
