#pragma once

class QObject;

namespace vypx {

/// Whether it is a control in which a text is edited, which then keeps its keys.
bool IsEditor(const QObject& object);

} // namespace vypx
