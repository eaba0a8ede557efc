#include "forms/main/TransparencyCommands.h"

#include "document/Document.h"
#include "document/PictureState.h"
#include "forms/imaging/frmChangeTC.h"

namespace vypx {

TransparencyCommands::TransparencyCommands(const View& view, const SettingsWindows& windows)
    : m_view(view)
    , m_windows(windows)
{
    view.commands.Connect(Command::ChangeColourLG, this, [this] { Open(SlotLG); });
    view.commands.Connect(Command::ChangeColourSM, this, [this] { Open(SlotSM); });
}

void TransparencyCommands::Open(const vypx::Slot& slot)
{
    if (m_disabled)
        return;
    EditingLG = &slot == &SlotLG;
    IconsetChanged = true;
    m_view.status.ShowTitle();
    m_view.commands.Enable(slot.ofUndo, false);
    m_disabled.emplace(*m_view.form.window());
    m_window = new frmChangeTC(m_windows.DepthOfDocument(), &m_view.form);
    connect(m_window, &frmChangeTC::ColourChanged, this,
        [this, &slot](const Rgb& colour) { ShowColour(slot, colour); });
    connect(m_window, &frmChangeTC::Done, this, &TransparencyCommands::Ended);
    BringUp(*m_window);
}

/// Nothing while the panel shows another picture by now.
void TransparencyCommands::ShowColour(const vypx::Slot& slot, const Rgb& colour)
{
    if (!m_window->IsOnShow())
        return;
    ImagePanel& panel = PanelOf(m_view.panels, slot);
    if (slot.hasTransparent)
        panel.ShowMask(colour);
    else
        panel.SetMaskColour(colour);
}

void TransparencyCommands::Ended()
{
    for (ImagePanel* panel : m_view.panels)
        panel->Draw();
    m_disabled.reset();
}

void TransparencyCommands::Close()
{
    if (m_window)
        m_window->close();
}

} // namespace vypx
