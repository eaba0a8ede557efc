#pragma once

#include "settings/DepthChoices.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmSelectCDepth;
}

namespace vypx {

/// Asks for the colour depth and the resolutions of a document that is to be opened or made. It
/// does not block the main form; every choice takes effect at once. Closing it by its frame or by
/// Escape gives the command up and takes its choices back: a document that is open keeps its depth.
class frmSelectCDepth : public QDialog {
    Q_OBJECT

public:
    frmSelectCDepth(DepthChoices& choices, QWidget* parent);
    ~frmSelectCDepth() override;

    /// The choices are others now.
    void ShowChoices();

    void reject() override;

signals:
    /// DefaultColorDepth has a new value.
    void DepthChosen();
    /// HighResOnly and LowResOnly have new values.
    void ResolutionChosen();
    /// The command is given up, and with it what was chosen.
    void GivenUp();
    /// On to the document. The window is hidden.
    void Done();

private:
    void ConnectDepths();
    void ConnectResolutions();
    void ShowDepth();
    void TakeResolution();
    void cmdDoneCDepth_Click();

    std::unique_ptr<Ui::frmSelectCDepth> m_ui;
    DepthChoices& m_choices;
};

/// What follows the window: a new iconset, or one that is opened.
inline bool PendingNew = false, PendingOpen = false;

} // namespace vypx
