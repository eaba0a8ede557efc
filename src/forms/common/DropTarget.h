#pragma once

#include <functional>

class QMimeData;
class QWidget;

namespace vypx {

using TakeFiles = std::function<void(const QMimeData&)>;

/// From now on the widget accepts files that are dragged onto it and hands those that are dropped
/// to `take`, after the program they come from was told that they arrived.
void TakeDrops(QWidget& target, TakeFiles take);

} // namespace vypx
