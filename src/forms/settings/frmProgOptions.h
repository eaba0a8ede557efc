#pragma once

#include "forms/common/Ask.h"

#include <QDialog>
#include <array>
#include <memory>
#include <string>

class QLineEdit;
class QPushButton;

namespace Ui {
class frmProgOptions;
}

namespace vypx {

/// The window of the program's options. Every change takes effect at once, on the variables of
/// settings/Settings.h, the texts when it is closed, in whatever way: there is no cancel. It does
/// not block the main form and goes when it is closed. A folder that the settings can't keep keeps
/// it open.
class frmProgOptions : public QDialog {
    Q_OBJECT

public:
    frmProgOptions(Ask& ask, QWidget* parent);
    ~frmProgOptions() override;

    /// An iconset was opened or closed: the colour depth can only be changed without one.
    void ShowDepthLock();
    /// Whether tips are shown at a start was chosen elsewhere.
    void ShowTipsOption();
    /// The depth or the resolution was chosen elsewhere.
    void ShowChoices();

    void reject() override;
    /// Closes it even with a folder that can't be kept: then the one before stays.
    void CloseAnyway();

signals:
    /// The user chose here: DefaultColorDepth, or HighResOnly and LowResOnly, have new values.
    void DepthChosen();
    void ResolutionChosen();
    /// The settings are to be saved.
    void Done();

protected:
    bool event(QEvent* event) override;

private:
    /// One of the folders that the settings keep.
    struct Folder {
        QLineEdit& edit;
        QPushButton& browse;
        std::string& setting;
        const char* name; ///< whose folder it is
    };
    std::array<Folder, 2> Folders() const;

    void ShowSettings();
    void ShowInstallWay();
    void ConnectBoxes();
    void ConnectDepths();
    void ConnectResolutions();
    void ShowWarning();
    void ConnectFolders();
    void Browse(const Folder& folder);
    bool FoldersFit();
    void TakeFolders();
    void TakeTexts();
    void cmdDoneOptions_Click();

    std::unique_ptr<Ui::frmProgOptions> m_ui;
    Ask& m_ask;
    bool m_closesAnyway = false;
};

} // namespace vypx
