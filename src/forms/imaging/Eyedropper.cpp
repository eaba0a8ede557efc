#include "forms/imaging/Eyedropper.h"

#include <QPixmap>

/// As in Form1, for a view that is made without one.
static void InitArt() { Q_INIT_RESOURCE(art); }

namespace vypx {

const QCursor& Eyedropper()
{
    constexpr int TipX = 1, TipY = 22; // of 24 x 24 pixels
    InitArt();
    static const QCursor cursor(QPixmap(":/art/eyedropper.png"), TipX, TipY);
    return cursor;
}

} // namespace vypx
