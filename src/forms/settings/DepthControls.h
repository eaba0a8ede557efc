#pragma once

#include "settings/Settings.h"

#include <QRadioButton>
#include <QWidget>

/// Choices of the colour depth and the resolution, which two windows offer by controls of the same
/// names. `Ui` is a window's generated class.
namespace vypx {

template <typename Ui>
void CheckDepth(Ui& ui)
{
    (DefaultColorDepth == ColorDepth::Bits4          ? ui.opt4Bit
            : DefaultColorDepth == ColorDepth::Bits8 ? ui.opt8Bit
                                                     : ui.opt16Bit)
        ->setChecked(true);
}

template <typename Ui>
void CheckResolution(Ui& ui)
{
    (HighResOnly         ? ui.optHighResOnly
            : LowResOnly ? ui.optLowResOnly
                         : ui.optBothRes)
        ->setChecked(true);
}

/// The four lines about what lower depths do to icons.
template <typename Ui>
void ShowDepthWarning(Ui& ui, bool shown)
{
    for (QWidget* line : { ui.lblCDwarn1, ui.lblCDwarn2, ui.lblCDwarn3, ui.lblCDwarn4 })
        line->setVisible(shown);
}

} // namespace vypx
