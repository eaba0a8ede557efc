#pragma once

#include "forms/imaging/Panels.h"
#include "forms/main/Commands.h"

namespace vypx {

/// The standard keys for pictures. They act on the panel that has the focus, else on the only one
/// in view, else on the high-res one; Delete on the panel that has the focus alone. Each does what
/// a click on the panel's button does, if that is enabled. Texts that are being edited keep their
/// keys.
class PanelKeys {
public:
    PanelKeys(QWidget& form, const Panels& panels, Commands& commands);

private:
    void Press(const std::array<Command, 2>& ofPanels, bool needsFocus) const;
    int PanelWithFocus() const;
    int PanelInView() const;

    Panels m_panels;
    Commands& m_commands;
};

} // namespace vypx
