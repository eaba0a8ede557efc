#include "forms/main/PanelKeys.h"

#include "forms/common/Editors.h"
#include "forms/common/HeldKeys.h"

#include <QApplication>
#include <QShortcut>

namespace vypx {

namespace {

struct PanelKey {
    QKeySequence keys;
    std::array<Command, 2> commands; // of the high-res and the low-res panel
    bool needsFocus;                 // the panel must have it
};

constexpr int None = -1;

std::array<PanelKey, 6> Keys()
{
    using enum Command;
    return { {
        { Qt::Key_Delete, { DeleteLG, DeleteSM }, true },
        { QKeySequence::Copy, { CopyLG, CopySM }, false },
        { QKeySequence::Paste, { PasteLG, PasteSM }, false },
        { QKeySequence::Undo, { UndoLG, UndoSM }, false },
        { Qt::CTRL | Qt::Key_I, { ImportLG, ImportSM }, false },
        { Qt::CTRL | Qt::Key_E, { ExportLG, ExportSM }, false },
    } };
}

} // namespace

PanelKeys::PanelKeys(QWidget& form, const Panels& panels, Commands& commands)
    : m_panels(panels)
    , m_commands(commands)
{
    for (const PanelKey& key : Keys()) {
        auto* const shortcut = new QShortcut(key.keys, &form);
        shortcut->setAutoRepeat(false);
        QObject::connect(shortcut, &QShortcut::activated, &form,
            [this, key] { Press(key.commands, key.needsFocus); });
    }
}

void PanelKeys::Press(const std::array<Command, 2>& ofPanels, bool needsFocus) const
{
    const QWidget* const focus = QApplication::focusWidget();
    if ((focus && IsEditor(*focus)) || HeldKeys::OfProgram().IsLastPressRepeat())
        return;
    int panel = PanelWithFocus();
    if (panel == None && !needsFocus)
        panel = PanelInView();
    if (panel == None)
        return;
    QAbstractButton& button = *m_commands.Button(ofPanels[static_cast<std::size_t>(panel)]);
    if (button.isEnabled())
        button.click();
}

int PanelKeys::PanelWithFocus() const
{
    const QWidget* const focus = QApplication::focusWidget();
    for (int i = 0; focus && i < 2; ++i) {
        const ImagePanel* const panel = m_panels[static_cast<std::size_t>(i)];
        if (panel == focus || panel->isAncestorOf(focus))
            return i;
    }
    return None;
}

/// The high-res one where both are.
int PanelKeys::PanelInView() const
{
    for (int i = 0; i < 2; ++i)
        if (m_panels[static_cast<std::size_t>(i)]->isVisible())
            return i;
    return None;
}

} // namespace vypx
