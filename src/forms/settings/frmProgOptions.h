#pragma once

#include <QDialog>
#include <memory>

class QAbstractButton;

namespace Ui {
class frmProgOptions;
}

namespace vypx {

/// The window of the program's options. Every change takes effect at once, on the variables of
/// settings/Settings.h, the two texts when it is closed, in whatever way: there is no cancel. It
/// does not block the main form and goes when it is closed.
class frmProgOptions : public QDialog {
    Q_OBJECT

public:
    explicit frmProgOptions(QWidget* parent);
    ~frmProgOptions() override;

    /// An iconset was opened or closed: the colour depth can only be changed without one.
    void ShowDepthLock();
    /// The depth or the resolution was chosen elsewhere.
    void ShowChoices();

    void reject() override;

signals:
    /// The user chose here: DefaultColorDepth, or HighResOnly and LowResOnly, have new values.
    void DepthChosen();
    void ResolutionChosen();
    /// The settings are to be saved.
    void Done();

private:
    void ShowSettings();
    void ConnectBoxes();
    void ConnectDepths();
    void ConnectResolutions();
    void ShowWarning();
    void TakeTexts();
    void cmdDoneOptions_Click();

    std::unique_ptr<Ui::frmProgOptions> m_ui;
};

} // namespace vypx
