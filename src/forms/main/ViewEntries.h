#pragma once

#include "forms/imaging/Panels.h"
#include "forms/main/Commands.h"

namespace vypx {

/// Which panels are in sight, and the three entries of the View menu that say so.
class ViewEntries {
public:
    ViewEntries(const Panels& panels, Commands& commands);

    /// Panels and marks by HighResOnly and LowResOnly.
    void ShowByOption();
    /// All pictures of a slot were removed.
    void ShowAfterRemoval(const Slot& removed);
    /// The panels alone.
    void ShowPanelsByOption();

private:
    void ShowPanels(bool highRes, bool lowRes);
    void CheckOnly(Command entry);

    Panels m_panels;
    Commands& m_commands;
};

} // namespace vypx
