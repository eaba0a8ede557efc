#pragma once

class QMenuBar;
class QWidget;

namespace vypx {

/// Puts the menus of the main form into `bar`, in their order, and makes the hidden pop-ups of the
/// two panels as children of `owner`. Every menu and entry has its given object name.
void MakeMenus(QMenuBar& bar, QWidget& owner);

} // namespace vypx
