#include "forms/main/AppSearch.h"

#include "catalogs/AddPrcFiles.h"
#include "forms/catalogs/CatalogBoxes.h"
#include "forms/common/Editors.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Text.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace vypx {

namespace {

/// What would replace the document, or end it.
constexpr std::initializer_list<Command> HeldCommands{ Command::New, Command::Open,
    Command::LoadTemplate, Command::CloseIconset };

} // namespace

AppSearch::AppSearch(QWidget& form, Commands& commands, Ask& ask)
    : m_form(form)
    , m_commands(commands)
    , m_ask(ask)
{
}

void AppSearch::Run(QWidget* boxParent, const std::function<void()>& finish)
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_isStopped = false;
    m_boxParent = boxParent;
    m_commands.Hold(HeldCommands, true);
    qApp->installEventFilter(this);
    emit Began();
    Search();
    finish();
    qApp->removeEventFilter(this);
    m_commands.Hold(HeldCommands, false);
    m_isRunning = false;
    emit Ended();
    if (const auto act = std::exchange(m_whenIdle, {}))
        act();
}

void AppSearch::Search()
{
    m_path.clear();
    RunEvents(); // or a search without a step would show nothing
    try {
        SearchAndAdd(*this);
    } catch (const std::exception&) { // nothing but what was added before is lost
        Show({ .text = "Error searching for Palm Apps." });
    }
    m_path.clear();
    emit Progressed({});
}

void AppSearch::WhenIdle(std::function<void()> act)
{
    if (!m_isRunning) {
        act();
        return;
    }
    m_whenIdle = std::move(act);
    Stop();
}

void AppSearch::Show(const CatalogBox& box)
{
    ShowCatalogBox(m_ask, m_boxParent ? m_boxParent.data() : &m_form, box);
}

/// On purpose: with the user's input. What must not happen amid a search is disabled.
void AppSearch::RunEvents()
{
    emit Progressed(PathText(m_path));
    QCoreApplication::processEvents();
}

bool AppSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    const auto* const control = qobject_cast<const QWidget*>(watched);
    const bool isOfForm = control && control->window() == m_form.window() && !IsEditor(*control);
    if (press.key() != Qt::Key_Escape || !isOfForm || HeldKeys::OfProgram().IsHeldEnd(press))
        return false;
    Stop();
    return true;
}

} // namespace vypx
