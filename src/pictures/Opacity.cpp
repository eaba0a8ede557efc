#include "pictures/PictureWriter.h"

namespace vypx {

OpacityPicture WithOpacity(const MaskedPicture& picture)
{
    const Picture& pixels = picture.pixels;
    OpacityPicture made(pixels.Width(), pixels.Height());
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x)
            if (const Rgb colour = pixels.At(x, y); colour != picture.transparent)
                made.Set(x, y, colour);
    return made;
}

} // namespace vypx
