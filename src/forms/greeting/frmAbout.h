#pragma once

#include "forms/common/Ask.h"
#include "forms/greeting/FrontForm.h"

#include <functional>
#include <optional>
#include <string>

namespace Ui {
class frmAbout;
}

namespace vypx {

/// "About VY Pixelworks".
class frmAbout : public FrontForm {
    Q_OBJECT

public:
    /// What the button for system information uses.
    struct System {
        /// The platform's own program for that; empty: it has none.
        std::function<std::optional<std::string>()> tool;
        /// Starts it; false when that fails.
        std::function<bool(const QString& program)> run;
        /// What is told in a window of our own on platforms that have no such program at all.
        std::function<QString()> information;
    };
    /// Of the platform that the program runs on.
    static System SystemOfPlatform();

    frmAbout(System system, Ask& ask, QWidget& form);
    ~frmAbout() override;

    /// Tells about the system, or that nothing can be told.
    void StartSysInfo();

private:
    void ShowInformation(const QString& text);

    std::unique_ptr<Ui::frmAbout> m_ui;
    System m_system;
    Ask& m_ask;
};

} // namespace vypx
