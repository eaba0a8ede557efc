#pragma once

#include "cli/ReadIconset.h"
#include "companion/Picture.h"

#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

namespace vypx {

/// Keeps the pictures of an iconset's first icons, one for each. The order: large icons, then those
/// of no known size, small ones, orphans; in each as in IconTable. An application's small icon
/// counts only where no other icon has a picture.
class FirstIcons : public PictureSink {
public:
    /// At most so many icons, for a sheet whose sides are `side` pixels: larger ones are shrunk to
    /// it as they come.
    FirstIcons(std::size_t most, int side)
        : m_most(most)
        , m_side(side)
    {
    }

    bool GoOn() override;
    bool Wants(const PictureHeader& header) override;
    void Take(const PictureHeader& header, Picture picture) override;

    /// In their order; at most so many as were asked for. Nothing is left here.
    std::vector<MaskedPicture> TakePictures();

private:
    struct Kept {
        MaskedPicture picture;
        bool highDensity = false;
    };

    void RankResources();
    bool HasAll() const;

    std::size_t m_most;
    int m_side;
    bool m_isRanked = false;
    std::size_t m_firstSpare = 0;                         ///< ranks from here on are second choice
    std::unordered_map<std::string, std::size_t> m_ranks; ///< of resources
    std::map<std::size_t, Kept> m_kept;                   ///< by rank
};

} // namespace vypx
