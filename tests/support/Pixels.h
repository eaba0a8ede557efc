#pragma once

#include "companion/Picture.h"

#include <random>
#include <vector>

/// Pictures for tests, made of single pixels.
namespace vypx::test {

/// `level` from 0 to 255.
inline Rgb GreyOf(int level) { return { level, level, level }; }

/// Row after row; as high as the pixels make it.
inline Picture Of(int width, const std::vector<Rgb>& pixels)
{
    Picture picture(width, static_cast<int>(pixels.size()) / width);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        picture.Set(static_cast<int>(i) % width, static_cast<int>(i) / width, pixels[i]);
    return picture;
}

/// Random components, the same at each run.
inline Picture Noise(int width, int height)
{
    std::mt19937 random(11);
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int i = 0; i < width * 3; ++i)
            picture.Row(y)[i] = static_cast<std::uint8_t>(random());
    return picture;
}

} // namespace vypx::test
