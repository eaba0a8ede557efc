#pragma once

#include "companion/Picture.h"

#include <QByteArray>
#include <QString>

/// Pictures on the desktop's clipboard. What another program has there is asked of that program:
/// one that is slow or hangs holds these calls up for some 5 seconds each, and then gives nothing.
namespace vypx {

/// The format in which the clipboard's picture is best taken; empty when it has none. The other
/// program is asked once.
QString PictureFormatOnClipboard();

/// The picture's file in that format; empty when it does not come.
QByteArray PictureFileOnClipboard(const QString& format);

/// Offers exactly these pixels in the formats that programs take.
void PutOnClipboard(const vypx::Picture& picture);

} // namespace vypx
