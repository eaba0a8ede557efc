#pragma once

#include <QMdiSubWindow>
#include <memory>

namespace Ui {
class frmPreviewOpt;
}

namespace vypx {

/// The side window for the background on which both panels show their icons, and for whether they
/// honour the transparent colour. Works directly on R, G, B and TransparentUse. Lives in the
/// frame's area, above the main form; goes when it is closed.
class frmPreviewOpt : public QMdiSubWindow {
    Q_OBJECT

public:
    frmPreviewOpt();
    ~frmPreviewOpt() override;

signals:
    /// R, G or B has a new value.
    void ColourChosen();
    /// TransparentUse has a new value.
    void TransparencyChosen();
    void Closed();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    std::unique_ptr<Ui::frmPreviewOpt> m_ui;
};

} // namespace vypx
