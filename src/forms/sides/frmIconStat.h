#pragma once

#include "forms/common/SideForm.h"

#include <memory>

namespace Ui {
class frmIconStat;
}

namespace vypx {

/// The side window with the counts of the document.
class frmIconStat : public SideForm {
    Q_OBJECT

public:
    frmIconStat();
    ~frmIconStat() override;

    /// Shows what the last recount found.
    void ShowCounters();

private:
    std::unique_ptr<Ui::frmIconStat> m_ui;
};

} // namespace vypx
