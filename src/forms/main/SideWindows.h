#pragma once

#include "document/SettingsFile.h"
#include "forms/imaging/Panels.h"
#include "forms/main/Commands.h"

#include <QObject>
#include <optional>

namespace vypx {

class frmPreviewOpt;

/// The small windows beside the main form in the frame's area, and the entries of the View menu
/// that show and hide them.
class SideWindows : public QObject {
public:
    /// `form` stands in a window of the area.
    SideWindows(QWidget& form, const Panels& panels, Commands& commands);

    /// Shows those that the settings say are visible, at their places.
    void ShowByOption();

    /// Where the windows stand, for the settings.
    SideWindow Preview() const;

private:
    void mnuShowPrevOpt_Click();
    void ShowPreview(const QPoint& place);
    void PreviewClosed();
    void PaintPanels();
    void DrawPanels();

    QWidget& m_form;
    Panels m_panels;
    Commands& m_commands;
    frmPreviewOpt* m_preview = nullptr;   // owned by the area; null while it is not loaded
    std::optional<QPoint> m_previewPlace; // where it stood when it was closed, in pixels
};

/// Sets R, G, B: to the saved colour if that is to be remembered, else to blue.
void ChoosePreviewColour();

} // namespace vypx
