#include "forms/main/HelpCommands.h"

#include "document/Document.h"
#include "document/HelpContext.h"
#include "forms/help/frmHelp.h"

#include <QApplication>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>

namespace vypx {

namespace {

bool IsBox(const QWidget& window)
{
    return qobject_cast<const QMessageBox*>(&window) || qobject_cast<const QFileDialog*>(&window);
}

/// The help could not be used under a menu that is open.
void CloseMenus()
{
    while (QWidget* const menu = QApplication::activePopupWidget())
        if (!menu->close())
            return;
}

} // namespace

HelpCommands::HelpCommands(QWidget& form, Commands& commands)
    : m_form(form)
{
    commands.Connect(Command::Manual, this, &HelpCommands::mnuManual_Click);
    qApp->installEventFilter(this);
}

HelpCommands::~HelpCommands() = default;

void HelpCommands::mnuManual_Click()
{
    HelpContext = FileLoaded ? HelpOfIconset : HelpWithoutIconset;
    ShowContext(HelpContext);
}

bool HelpCommands::IsMainForm(const QWidget& widget) const
{
    return &widget == &m_form || &widget == m_form.window();
}

/// The nearest one around the focus that the help tells about.
void HelpCommands::ShowFor(const QWidget* focus)
{
    if (focus && IsBox(*focus->window()))
        focus = nullptr;
    for (const QWidget* widget = focus; widget && !IsMainForm(*widget);
         widget = widget->parentWidget())
        if (const QString page = HelpTopics::OfProgram().OfWindow(widget->objectName());
            !page.isEmpty()) {
            ShowPage(page);
            return;
        }
    ShowContext(HelpContext);
}

void HelpCommands::ShowContext(int context)
{
    ShowPage(HelpTopics::OfProgram().OfContext(context));
}

void HelpCommands::ShowPage(const QString& page)
{
    CloseMenus();
    if (!m_help) {
        m_help = std::make_unique<frmHelp>(HelpTopics::OfProgram());
        m_help->setWindowIcon(m_form.window()->windowIcon());
    }
    m_help->Open(page);
    m_help->BringUp(QApplication::activeModalWidget());
}

bool HelpCommands::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const focus = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::KeyPress || !focus)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    if (press.key() != Qt::Key_F1 || press.modifiers() != Qt::NoModifier)
        return false;
    if (focus->window()->objectName() == "frmSplash")
        return false; // it ends before it asks for the help
    if (!m_held.IsRepeat(press))
        ShowFor(focus);
    return true;
}

} // namespace vypx
