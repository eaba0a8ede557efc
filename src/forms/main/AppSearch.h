#pragma once

#include "catalogs/SearchListener.h"
#include "forms/common/Ask.h"
#include "forms/main/Commands.h"

#include <QObject>
#include <QPointer>
#include <functional>

namespace vypx {

/// Runs a search for applications and lets all events run meanwhile, the user's input too. Commands
/// that would replace the document wait for its end; Escape in the main window stops it. There is
/// one at a time.
class AppSearch : public QObject, private SearchListener {
    Q_OBJECT

public:
    AppSearch(QWidget& form, Commands& commands, Ask& ask);

    bool IsRunning() const { return m_isRunning; }

    /// Searches as the fields of the scanner say. `finish` runs while the search still counts as
    /// running. Boxes stand over `boxParent`. Nothing while a search runs.
    void Run(QWidget* boxParent, const std::function<void()>& finish);
    /// The stage that runs ends at its next step. Amid the walk that is the walk: what it has found
    /// is still gone through, and a second stop ends that too. What was new so far is added.
    void Stop() { m_isStopped = true; }
    /// Now, or as soon as the search has ended that runs and is stopped by this.
    void WhenIdle(std::function<void()> act);

signals:
    void Began();
    /// Comes before each turn of events. `path` is the file that was found last; empty: there is
    /// none, or the walk is done.
    void Progressed(const QString& path);
    void Ended();

private:
    void Search();
    void Show(const CatalogBox& box) override;
    void PathFound(std::string_view path) override { m_path = path; }
    void WalkEnded() override { m_path.clear(); }
    void RunEvents() override;
    bool TakeStop() override { return std::exchange(m_isStopped, false); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWidget& m_form;
    Commands& m_commands;
    Ask& m_ask;
    QPointer<QWidget> m_boxParent;
    std::string m_path;
    bool m_isRunning = false, m_isStopped = false;
    std::function<void()> m_whenIdle;
};

} // namespace vypx
