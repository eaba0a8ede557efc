#pragma once

#include "companion/Rgb.h"
#include "settings/Settings.h"

#include <QColor>
#include <QPoint>
#include <initializer_list>

class QObject;
class QValidator;
class QWidget;

namespace vypx {

/// Back colour of every window of this program.
inline constexpr Rgb ChromeColour{ 224, 223, 227 };

inline QColor ScreenColour(Rgb colour) { return QColor(colour.red, colour.green, colour.blue); }

/// Gives the whole program texts that can be read on the chrome colour, whatever the desktop's own
/// colours are: on a dark desktop everything would be white on light otherwise. Once, before the
/// first window.
void UseLightColours();

/// Back colour of the crop window.
inline constexpr Rgb CropColour{ 214, 219, 191 };

/// Gives a window the chrome colour, or another one. Its group boxes get a plain frame, since a
/// style's own tints the colour.
void PaintChrome(QWidget& window, Rgb colour = ChromeColour);

/// Nothing moves when these are hidden and shown.
void KeepRoom(std::initializer_list<QWidget*> controls);

/// Where most dialogs open: 100 twips from the left and the top.
inline QPoint DialogPlace() { return { PixelsFromTwips(100), PixelsFromTwips(100) }; }

/// Keeps what Latin-1 lacks out of an edit whose text goes into a database.
QValidator* Latin1Validator(QObject& owner);

} // namespace vypx
