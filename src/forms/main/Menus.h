#pragma once

class QMenu;
class QMenuBar;
class QString;
class QWidget;

namespace vypx {

/// Puts the menus of the main form into `bar`, in their order. Every menu and entry has its given
/// object name.
void MakeMenus(QMenuBar& bar);

/// Makes the pop-up of a panel, which stands in no menu bar: `mnuCopyPasteLG` by the slot's letters
/// "LG", a child of `owner`.
QMenu* MakePopUp(const QString& letters, QWidget& owner);

} // namespace vypx
