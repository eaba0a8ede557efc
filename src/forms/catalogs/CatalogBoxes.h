#pragma once

#include "catalogs/CatalogBox.h"
#include "forms/common/Ask.h"

namespace vypx {

/// Shows a box that a routine of the catalogs wants. True: OK was pressed.
bool ShowCatalogBox(Ask& ask, QWidget* parent, const CatalogBox& box);

} // namespace vypx
