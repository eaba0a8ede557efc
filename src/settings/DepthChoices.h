#pragma once

#include "settings/ColorDepth.h"

#include <optional>
#include <utility>

namespace vypx {

/// What the user chose for a document that is to be opened or made: colour depth and resolutions.
/// Choices take effect at once, and are taken back when no document comes of them, so that an open
/// one keeps its own. What was chosen elsewhere meanwhile stands.
class DepthChoices {
public:
    /// Sets DefaultColorDepth.
    void ChooseDepth(ColorDepth depth);
    /// Sets HighResOnly and LowResOnly.
    void ChooseResolution(bool highResOnly, bool lowResOnly);

    /// The depth of the document that is open, whatever was chosen for the next one.
    ColorDepth DepthOfDocument() const { return m_depthBefore.value_or(DefaultColorDepth); }

    /// Another window chose.
    void ForgetDepth() { m_depthBefore.reset(); }
    void ForgetResolution() { m_resolutionBefore.reset(); }

    /// A document began with them.
    void Keep();
    /// No document came of them: the variables are as they were before the first choice.
    struct TakenBack {
        bool depth = false, resolution = false;
    };
    TakenBack TakeBack();

private:
    std::optional<ColorDepth> m_depthBefore;
    std::optional<std::pair<bool, bool>> m_resolutionBefore; // HighResOnly, LowResOnly
};

} // namespace vypx
