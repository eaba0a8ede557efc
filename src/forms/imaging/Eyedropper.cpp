#include "forms/imaging/Eyedropper.h"

#include <QPixmap>

namespace vypx {

const QCursor& Eyedropper()
{
    constexpr int TipX = 1, TipY = 22; // of 24 x 24 pixels
    static const QCursor cursor(QPixmap(":/art/eyedropper.png"), TipX, TipY);
    return cursor;
}

} // namespace vypx
