#pragma once

#include "settings/Settings.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmSelectCDepth;
}

namespace vypx {

/// Asks for the colour depth and the resolutions of a document that is to be opened or made. It
/// does not block the main form; every choice takes effect at once. Closing it by its frame or by
/// Escape gives the command up and the choices with it: the document that is open keeps its depth.
class frmSelectCDepth : public QDialog {
    Q_OBJECT

public:
    explicit frmSelectCDepth(QWidget* parent);
    ~frmSelectCDepth() override;

    void reject() override;

signals:
    /// HighResOnly and LowResOnly have new values.
    void ResolutionChosen();
    /// On to the document. The window is hidden.
    void Done();

private:
    void ConnectDepths();
    void ConnectResolutions();
    void ShowDepthWarning();
    void TakeResolution();
    void cmdDoneCDepth_Click();

    std::unique_ptr<Ui::frmSelectCDepth> m_ui;
    const std::string m_depthBefore = DefaultColorDepth;
    const bool m_highResOnlyBefore = HighResOnly, m_lowResOnlyBefore = LowResOnly;
};

/// What follows the window: a new iconset, or one that is opened.
inline bool PendingNew = false, PendingOpen = false;

} // namespace vypx
