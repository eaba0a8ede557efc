#pragma once

#include "companion/Picture.h"
#include "companion/Rgb.h"

/// What the colours of a picture become at a working depth: 4 (Palette4), 8 (Palette8) or 16 bits
/// (5-6-5, widened to 8 bits a component). Depths are one of these three.
namespace vypx {

/// The colour of that depth nearest to `colour`, by the one rule of NearestColour and To565.
Rgb Reduced(Rgb colour, int depth);

/// The colour of that depth nearest to `colour` that `other` is not reduced to: `Reduced(colour)`
/// where that is another one, else the least sum of the squared differences of red, green and blue;
/// on a tie the lower index of the palette or the lower 5-6-5 value.
Rgb NearestOther(Rgb colour, Rgb other, int depth);

/// The picture as WriteBmp4, WriteBmp8 or, at 16 bits, WriteBmp24 is to store it, so that its
/// transparent pixels have a colour that no opaque one has after the reduction. A picture without
/// transparent pixels is unchanged.
///
/// At 4 and 8 bits opaque pixels become their reduced colours, at 16 they stay as they are. The
/// transparent ones get the colour of the depth nearest to 255, 0, 255 that no opaque pixel is
/// reduced to, on a tie that of the lower index or 5-6-5 value. Where all are taken, the rarest
/// one (the same on a tie) is freed: its opaque pixels move to the nearest other colour. That of
/// an opaque top-left pixel is never freed.
Picture ReadyToStore(const MaskedPicture& picture, int depth);

} // namespace vypx
