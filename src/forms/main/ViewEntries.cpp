#include "forms/main/ViewEntries.h"

#include "settings/Settings.h"

namespace vypx {

namespace {

/// An entry, and the panels that it leaves in sight.
struct ViewRow {
    Command entry;
    bool highRes, lowRes;
};

constexpr ViewRow Views[] = {
    { Command::ShowBoth, true, true },
    { Command::HideLowRes, true, false },
    { Command::HideHighRes, false, true },
};

} // namespace

/// The entries change what is in sight, not the options HighResOnly and LowResOnly.
ViewEntries::ViewEntries(const Panels& panels, Commands& commands)
    : m_panels(panels)
    , m_commands(commands)
{
    for (const ViewRow& row : Views)
        commands.Connect(row.entry, panels[0], [this, row] {
            ShowPanels(row.highRes, row.lowRes);
            CheckOnly(row.entry);
        });
}

void ViewEntries::ShowByOption()
{
    ShowPanelsByOption();
    CheckOnly(HighResOnly ? Command::HideLowRes
            : LowResOnly  ? Command::HideHighRes
                          : Command::ShowBoth);
}

/// Only the panel that still has pictures is in sight. On purpose: the mark is the one that says
/// "high res" either way, and the options stay.
void ViewEntries::ShowAfterRemoval(const Slot& removed)
{
    CheckOnly(Command::HideLowRes);
    for (ImagePanel* panel : m_panels)
        panel->setVisible(&panel->Shows() != &removed);
}

void ViewEntries::ShowPanelsByOption() { ShowPanels(!LowResOnly, !HighResOnly); }

void ViewEntries::ShowPanels(bool highRes, bool lowRes)
{
    m_panels[0]->setVisible(highRes);
    m_panels[1]->setVisible(lowRes);
}

void ViewEntries::CheckOnly(Command entry)
{
    for (const ViewRow& row : Views)
        m_commands.Entry(row.entry)->setChecked(row.entry == entry);
}

} // namespace vypx
