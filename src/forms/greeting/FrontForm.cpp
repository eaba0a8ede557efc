#include "forms/greeting/FrontForm.h"

#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

namespace vypx {

namespace {

bool IsHeldPress(const QKeyEvent& press)
{
    const HeldKeys& keys = HeldKeys::OfProgram();
    return keys.IsHeldEnd(press) || (press.key() == Qt::Key_Space && keys.IsRepeat(press));
}

} // namespace

FrontForm::FrontForm(QWidget& form)
    : QDialog(&form)
    , m_disabled(std::make_unique<DisabledWindow>(*form.window()))
{
    HeldKeys::OfProgram(); // from now on, so that it knows what is held
    setEnabled(true);      // though what it belongs to is not
    setAttribute(Qt::WA_DeleteOnClose);
    form.window()->installEventFilter(this);
}

void FrontForm::TakeControls()
{
    PaintChrome(*this);
    for (QAbstractButton* button : findChildren<QAbstractButton*>())
        button->installEventFilter(this);
}

/// Every way out: what it belongs to is enabled before this one goes, so that it gets the focus.
void FrontForm::done(int result)
{
    m_disabled.reset();
    QDialog::done(result);
}

/// Over what it belongs to, or amid the screen as long as nobody knows where that will stand.
void FrontForm::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    const QWindow* const behind = parentWidget()->window()->windowHandle();
    if (event->spontaneous() || (behind && behind->isExposed()))
        return;
    move(screen()->availableGeometry().center() - rect().center());
}

void FrontForm::keyPressEvent(QKeyEvent* event)
{
    if (!IsHeldPress(*event))
        QDialog::keyPressEvent(event);
}

/// A button would be pressed by itself. The keys are this window's, though a click made the one
/// behind it active.
bool FrontForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget()->window()) {
        if (event->type() == QEvent::WindowActivate && isVisible())
            activateWindow();
        return false;
    }
    if (event->type() == QEvent::KeyPress && IsHeldPress(static_cast<QKeyEvent&>(*event)))
        return true;
    return QDialog::eventFilter(watched, event);
}

} // namespace vypx
