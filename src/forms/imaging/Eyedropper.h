#pragma once

#include <QCursor>

namespace vypx {

/// The pointer that picks a colour: the pixel at its tip, the lower left corner.
const QCursor& Eyedropper();

} // namespace vypx
