#pragma once

#include "forms/greeting/FrontForm.h"

#include <functional>
#include <string>
#include <vector>

namespace Ui {
class frmTip;
}

namespace vypx {

/// "Tip of the Day". It shows one of the tips in TIPOFDAY.TXT, or how to make that file.
class frmTip : public FrontForm {
    Q_OBJECT

public:
    /// Gives numbers in [0, 1).
    using Random = std::function<double()>;

    /// `folder` holds the file.
    frmTip(const std::string& folder, Random random, QWidget& form);
    ~frmTip() override;

    void done(int result) override;

    /// Takes the tips of a file and picks one; false when there is no such file.
    bool LoadTips(const std::string& sFile);
    /// Shows the picked tip, if there are tips.
    void DisplayCurrentTip();

signals:
    /// The user's setting has a new value.
    void ShowTipsChosen();

private:
    void PickAnother();
    void cmdNextTip_Click();
    void chkLoadTipsAtStartup_Click(bool on);

    std::unique_ptr<Ui::frmTip> m_ui;
    Random m_random;
    std::vector<std::string> m_tips;
    std::size_t m_current = 0; // number of the tip on show, from 1; 0: none
};

/// The user asked for a tip, so one is shown whatever the setting is.
inline bool TipOnDemand = false;

/// Numbers for the picking that differ from run to run.
frmTip::Random SeededRandom();

} // namespace vypx
