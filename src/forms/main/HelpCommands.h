#pragma once

#include "forms/common/HeldKeys.h"
#include "forms/main/Commands.h"

#include <QObject>
#include <memory>

class QKeyEvent;

namespace vypx {

class frmHelp;

/// The help commands and the key F1, which opens the page about the window that has the focus: the
/// main form's by its help context. In a box or a file dialog it opens the main form's, and the box
/// stays.
class HelpCommands : public QObject {
public:
    HelpCommands(QWidget& form, Commands& commands);
    ~HelpCommands() override;

    /// Opens the page about the window that `focus` stands in; null: about the main form.
    void ShowFor(const QWidget* focus);
    /// Opens the page of a context: 1030, 1040, 1080.
    void ShowContext(int context);

private:
    void mnuManual_Click();
    bool IsMainForm(const QWidget& widget) const;
    void ShowPage(const QString& page);
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWidget& m_form;
    HeldKeys& m_held = HeldKeys::OfProgram();
    std::unique_ptr<frmHelp> m_help; // made when it is shown first
};

} // namespace vypx
