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
    explicit FirstIcons(std::size_t most)
        : m_most(most)
    {
    }

    bool GoOn() override;
    bool Wants(const PictureHeader& header) override;
    void Take(const PictureHeader& header, Picture picture) override;

    /// In their order; at most so many as were asked for.
    std::vector<MaskedPicture> Pictures() const;

private:
    void RankResources();
    bool HasAll() const;

    std::size_t m_most;
    bool m_isRanked = false;
    std::size_t m_firstSpare = 0;                         ///< ranks from here on are second choice
    std::unordered_map<std::string, std::size_t> m_ranks; ///< of resources
    std::map<std::size_t, MaskedPicture> m_kept;          ///< by rank
};

} // namespace vypx
