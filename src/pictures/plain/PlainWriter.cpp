// The room where there is no Qt: no PNG is written.

#include "pictures/PictureWriter.h"

namespace vypx {

PngFile PngOf(const OpacityPicture&)
{
    return { {}, "this build of the program can't write PNG pictures" };
}

} // namespace vypx
