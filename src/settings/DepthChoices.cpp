#include "settings/DepthChoices.h"

#include "settings/Settings.h"

#include <tuple>

namespace vypx {

void DepthChoices::ChooseDepth(ColorDepth depth)
{
    if (!m_depthBefore)
        m_depthBefore = DefaultColorDepth;
    DefaultColorDepth = depth;
}

void DepthChoices::ChooseResolution(bool highResOnly, bool lowResOnly)
{
    if (!m_resolutionBefore)
        m_resolutionBefore = { HighResOnly, LowResOnly };
    HighResOnly = highResOnly;
    LowResOnly = lowResOnly;
}

void DepthChoices::Keep()
{
    ForgetDepth();
    ForgetResolution();
}

DepthChoices::TakenBack DepthChoices::TakeBack()
{
    const TakenBack taken{ m_depthBefore.has_value(), m_resolutionBefore.has_value() };
    if (m_depthBefore)
        DefaultColorDepth = *m_depthBefore;
    if (m_resolutionBefore)
        std::tie(HighResOnly, LowResOnly) = *m_resolutionBefore;
    Keep();
    return taken;
}

} // namespace vypx
