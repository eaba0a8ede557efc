#pragma once

#include "forms/common/SideForm.h"

#include <memory>

namespace Ui {
class frmPreviewOpt;
}

namespace vypx {

/// The side window for the background on which both panels show their icons, and for whether they
/// honour the transparent colour. Works directly on R, G, B and TransparentUse.
class frmPreviewOpt : public SideForm {
    Q_OBJECT

public:
    frmPreviewOpt();
    ~frmPreviewOpt() override;

signals:
    /// R, G or B has a new value.
    void ColourChosen();
    /// TransparentUse has a new value.
    void TransparencyChosen();

private:
    std::unique_ptr<Ui::frmPreviewOpt> m_ui;
};

} // namespace vypx
