#pragma once

#include "companion/Picture.h"

#include <optional>
#include <string>

namespace vypx {

/// A picture as its record's header has it, before it is decoded.
struct PictureHeader {
    std::string resourceKey; ///< such as `tAIB1005`
    std::string file;        ///< bare name that its working file would have
    bool highDensity = false;
    int width = 0, height = 0; ///< pixels, as claimed
    int rowBytes = 0;          ///< bytes in a row, as claimed
    int depth = 0;             ///< bits of a pixel, any byte value
    std::optional<Rgb> transparent{};
};

/// Takes the pictures of a load in memory, at the depth that they have in the file. The rows of
/// IconTable name them by `file` as if there were working files.
class PictureSink {
public:
    virtual ~PictureSink() = default;

    /// Asked before each resource; a false ends the reading.
    virtual bool GoOn() = 0;
    /// Whether the picture is to be decoded; what its header claims can be much.
    virtual bool Wants(const PictureHeader& header) = 0;
    /// A picture that is wanted. Null: the record gives none, as a row is too short for its pixels.
    virtual void Take(const PictureHeader& header, Picture picture) = 0;
};

} // namespace vypx
