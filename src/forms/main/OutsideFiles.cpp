#include "forms/main/OutsideFiles.h"

#include "document/Document.h"
#include "forms/common/Text.h"
#include "forms/main/SettingsWindows.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <utility>

namespace vypx {

namespace {

constexpr int LookAgainAfter = 300; // milliseconds
constexpr qsizetype MostTexts = 20; // that are kept for the next box
constexpr qsizetype MostLines = 40; // in one box
constexpr const char* TokenVariable = "XDG_ACTIVATION_TOKEN";

} // namespace

OutsideFiles::OutsideFiles(QWidget& frame, QWidget& form, Ask& ask, BusyGuard& busy,
    AppSearch& search, Documents& documents, Session& session)
    : m_frame(frame)
    , m_form(form)
    , m_ask(ask)
    , m_busy(busy)
    , m_search(search)
    , m_documents(documents)
    , m_session(session)
{
    m_look.setInterval(LookAgainAfter);
    connect(&m_look, &QTimer::timeout, this, &OutsideFiles::GoOn);
    // Queued: what ended goes on itself first, as a splash with the search and the tip.
    connect(&busy, &BusyGuard::Ended, this, &OutsideFiles::GoOn, Qt::QueuedConnection);
    connect(&search, &AppSearch::Ended, this, &OutsideFiles::GoOn, Qt::QueuedConnection);
    form.installEventFilter(this);
    frame.installEventFilter(this);
    connect(&documents, &Documents::NamedPutAside, this,
        [this](const std::string& path) { GiveBack({ .path = PathText(path) }); });
    session.AtEnd([this] { GiveBack(); });
}

void OutsideFiles::Begin()
{
    m_hasBegun = true;
    if (const auto activation = std::exchange(m_comesUp, {}))
        ComeUp(*activation);
    LookAgain();
}

bool OutsideFiles::IsFree() const
{
    return !FileLoaded && !m_waiting && !m_isServing && !m_documents.AwaitsNamed()
        && !m_session.IsLeaving();
}

bool OutsideFiles::Take(const OutsideFile& file)
{
    if (!IsFree())
        return false;
    m_waiting = file;
    if (m_hasBegun && IsKeptByWindow())
        ComeUp(file.activation); // so that the user sees what it waits for
    LookAgain();
    return true;
}

void OutsideFiles::Tell(const QString& text)
{
    if (m_session.HasEnded()) {
        m_ask.Show(nullptr, { .text = text });
        return;
    }
    const bool isKept = m_texts.contains(text);
    if (!isKept && m_texts.size() < MostTexts)
        m_texts << text;
    else if (!isKept)
        ++m_moreTexts;
    LookAgain();
}

void OutsideFiles::ComeUp(const Activation& activation)
{
    if (m_session.HasEnded())
        return;
    if (!m_hasBegun) { // the frame is not finished
        m_comesUp = activation;
        return;
    }
    if (!activation.token.isEmpty())
        qputenv(TokenVariable, activation.token.toUtf8()); // where Qt looks for it, once
    BringUp(m_frame);
    if (QWidget* const modal = QApplication::activeModalWidget()) {
        modal->raise();
        modal->activateWindow();
    }
    qunsetenv(TokenVariable); // Qt on X11 does not look
}

/// A window or menu that the user has to end first.
bool OutsideFiles::IsKeptByWindow() const
{
    return !m_form.isEnabled() || QApplication::activeModalWidget()
        || QApplication::activePopupWidget();
}

bool OutsideFiles::IsKeptWaiting() const
{
    return !m_hasBegun || m_isServing || m_busy.IsBusy() || m_search.IsRunning()
        || m_session.IsLeaving() || IsKeptByWindow();
}

/// Never at once: whoever brought the file is told first that it was taken.
void OutsideFiles::LookAgain()
{
    m_look.start();
    QMetaObject::invokeMethod(this, &OutsideFiles::GoOn, Qt::QueuedConnection);
}

void OutsideFiles::GoOn()
{
    if (!m_waiting && m_texts.isEmpty())
        m_look.stop();
    else if (m_waiting && FileLoaded && !m_busy.IsBusy())
        GiveBack();
    else if (!IsKeptWaiting())
        Serve();
}

void OutsideFiles::Serve()
{
    if (!m_texts.isEmpty()) {
        ComeUp({});
        ShowTexts(&m_form);
        return; // anything may have happened under the box
    }
    const QScopedValueRollback<bool> serving(m_isServing, true);
    const OutsideFile file = *std::exchange(m_waiting, {});
    ComeUp(file.activation);
    m_documents.OpenNamed(file.path.toStdString());
}

void OutsideFiles::GiveBack()
{
    if (m_session.HasEnded())
        ShowTexts(nullptr);
    if (const auto file = std::exchange(m_waiting, {}))
        GiveBack(*file);
}

void OutsideFiles::GiveBack(const OutsideFile& file)
{
    const QScopedValueRollback<bool> serving(m_isServing, true); // it must not come here at once
    emit GivenBack(file);
}

/// One box for all that has come together; the first text in any case.
void OutsideFiles::ShowTexts(QWidget* parent)
{
    const QStringList texts = std::exchange(m_texts, {});
    if (texts.isEmpty())
        return;
    QStringList shown;
    qsizetype lines = 0;
    for (const QString& text : texts) {
        lines += text.count('\n') + 2;
        if (lines > MostLines && !shown.isEmpty())
            break;
        shown << text;
    }
    if (const auto more = std::exchange(m_moreTexts, 0) + texts.size() - shown.size(); more > 0)
        shown << tr("and %1 more").arg(more);
    m_ask.Show(parent, { .text = shown.join("\n\n") });
}

bool OutsideFiles::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::EnabledChange || type == QEvent::WindowUnblocked)
        QMetaObject::invokeMethod(this, &OutsideFiles::GoOn, Qt::QueuedConnection);
    return false;
}

} // namespace vypx
