#pragma once

#include "companion/Rgb.h"

#include <QColor>

class QWidget;

namespace vypx {

/// Back colour of every window of this program.
inline constexpr Rgb ChromeColour{ 224, 223, 227 };

inline QColor ScreenColour(Rgb colour) { return QColor(colour.red, colour.green, colour.blue); }

/// Gives a window and what is in it the chrome colour and texts that can be read on it, whatever
/// the desktop's own colours are: on a dark desktop everything in the window would be white on
/// light otherwise. Group boxes get a plain frame, since a style's own tints the colour.
void PaintChrome(QWidget& window);

} // namespace vypx
