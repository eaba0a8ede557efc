#pragma once

#include <QDialog>
#include <memory>
#include <optional>
#include <string>
#include <utility>

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
    explicit frmSelectCDepth(QWidget* parent);
    ~frmSelectCDepth() override;

    /// Another window chose: this one shows it and takes back no more than it chooses after it.
    void TakeDepthOfOthers();
    void TakeResolutionOfOthers();
    /// A document began with what is chosen, which so stands.
    void KeepChoices();

    void reject() override;

signals:
    /// DefaultColorDepth has a new value.
    void DepthChosen();
    /// HighResOnly and LowResOnly have new values.
    void ResolutionChosen();
    /// What the choices changed stands as it did before them.
    void TakenBack();
    /// On to the document. The window is hidden.
    void Done();

private:
    void ConnectDepths();
    void ConnectResolutions();
    void ShowDepth();
    void TakeResolution();
    void cmdDoneCDepth_Click();

    std::unique_ptr<Ui::frmSelectCDepth> m_ui;
    using Resolution = std::pair<bool, bool>; // HighResOnly, LowResOnly
    /// What stood before this window's choices; empty as long as there are none.
    std::optional<std::string> m_depthBefore;
    std::optional<Resolution> m_resolutionBefore;
};

/// What follows the window: a new iconset, or one that is opened.
inline bool PendingNew = false, PendingOpen = false;

} // namespace vypx
