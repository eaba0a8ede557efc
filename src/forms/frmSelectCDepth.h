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
    void ShowDepthWarning();
    void TakeResolution();
    void cmdDoneCDepth_Click();

    std::unique_ptr<Ui::frmSelectCDepth> m_ui;
    /// This window's last choice of a value, and what stood before its choices: what the start or
    /// another window chose last.
    template <typename Value>
    struct Choice {
        Value before, chosen;
    };
    template <typename Value>
    static void Note(std::optional<Choice<Value>>& choice, const Value& now, const Value& chosen);
    using Resolution = std::pair<bool, bool>; // HighResOnly, LowResOnly
    std::optional<Choice<std::string>> m_depth;
    std::optional<Choice<Resolution>> m_resolution;
};

/// What follows the window: a new iconset, or one that is opened.
inline bool PendingNew = false, PendingOpen = false;

} // namespace vypx
