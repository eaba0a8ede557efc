#pragma once

#include "companion/Rgb.h"

#include <array>
#include <span>

namespace vypx {

/// A colour table, indexed by pixel value.
using Palette = std::span<const Rgb>;

/// The system colour tables of Palm OS.
///
/// Palette8: the cube of six levels (255, 204, 153, 102, 51, 0), green fastest, then blue over its
/// upper three levels, then red; the same once more with blue's lower three levels and without
/// black; ten greys; (192,192,192), (128,0,0), (128,0,128), (0,128,0), (0,128,128); black for the
/// rest. Source: Palm OS Programmer's Companion, "Color Table".
extern const std::array<Rgb, 256> Palette8;
/// Greys from 255 down to 0 in even steps.
extern const std::array<Rgb, 16> Palette4;
extern const std::array<Rgb, 4> Palette2;
extern const std::array<Rgb, 2> Palette1;

} // namespace vypx
