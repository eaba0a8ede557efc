#include "forms/catalogs/CatalogBoxes.h"

#include "forms/common/Text.h"

namespace vypx {

namespace {

QMessageBox::Icon IconOf(CatalogBox::Icon icon)
{
    switch (icon) {
    case CatalogBox::Icon::Information:
        return QMessageBox::Information;
    case CatalogBox::Icon::Exclamation:
        return QMessageBox::Warning;
    case CatalogBox::Icon::Stop:
        return QMessageBox::Critical;
    case CatalogBox::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

bool ShowCatalogBox(Ask& ask, QWidget* parent, const CatalogBox& box)
{
    Box shown{ .text = FromLatin1(box.text), .icon = IconOf(box.icon) };
    if (!box.title.empty())
        shown.title = FromLatin1(box.title);
    if (box.asks)
        shown.buttons = QMessageBox::Ok | QMessageBox::Cancel;
    return ask.Show(parent, shown) == QMessageBox::Ok;
}

} // namespace vypx
