#pragma once

#include "forms/common/Ask.h"
#include "forms/common/DisabledWindow.h"
#include "forms/imaging/Panels.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace Ui {
class frmDropIconTarget;
}

namespace vypx {

/// "Image File Dropped": asks into which slot of the selected icon a dropped picture is to go. The
/// window that it belongs to is disabled from its beginning until it closes, whatever way; the
/// dropped file is forgotten then.
class frmDropIconTarget : public QDialog {
    Q_OBJECT

public:
    using Import = std::function<void(const vypx::Slot& slot)>;

    /// Only a slot whose panel is in sight can be chosen.
    frmDropIconTarget(const Panels& panels, Ask& ask, Import import, QWidget& form);
    ~frmDropIconTarget() override;

    void done(int result) override;

private:
    void cmdApplytoHighRes_Click();
    void cmdApplytoLowRes_Click();
    void Apply(const vypx::Slot& slot, std::string_view whyNot);

    std::unique_ptr<Ui::frmDropIconTarget> m_ui;
    Ask& m_ask;
    Import m_import;
    std::unique_ptr<DisabledWindow> m_disabled;
};

} // namespace vypx
