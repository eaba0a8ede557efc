#include "forms/main/Loading.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "settings/Settings.h"

namespace vypx {

Loading::Loading(
    const View& view, Ask& ask, BusyGuard& busy, LoadWatcher& watcher, IconCommands& icons)
    : m_view(view)
    , m_ask(ask)
    , m_busy(busy)
    , m_watcher(watcher)
    , m_icons(icons)
{
    connect(&watcher, &LoadWatcher::DocumentOpened, this, &Loading::Opened);
    connect(&watcher, &LoadWatcher::Cleared, &icons, &IconCommands::ShowTree);
    connect(&watcher, &LoadWatcher::Counted, &icons, &IconCommands::ShowCount);
}

void Loading::LoadFile()
{
    if (m_busy.IsBusy())
        return;
    ChooseAndLoad();
    TemplateMode = false;
}

void Loading::ChooseAndLoad()
{
    for (ImagePanel* panel : m_view.panels)
        panel->ClearPicture();
    m_icons.DisableSlotCommands();
    LoadRequest request = RequestFromFlags();
    if (request.MustBeChosen()) {
        request.path = ChooseIconset().toStdString();
        if (request.path.empty()) {
            LeaveCancelledLoad();
            return;
        }
    }
    m_busy.Run([&] { EndLoad(request, Load(request)); });
}

/// Empty when the dialog was cancelled.
QString Loading::ChooseIconset()
{
    OpenQuestion question{
        .title = TemplateMode ? tr("Load Template") : tr("Open Iconset"),
        .folder = {},
        .filters = { TemplateMode ? "VYPX Template File (*.vpt)" : "Vantry Iconset (*.prc *.pdb)" },
    };
    if (UseLastDirs && DirExists(LastDirIconsetLoad))
        question.folder = PathText(LastDirIconsetLoad);
    return m_ask.OpenFile(&m_view.form, question);
}

void Loading::LeaveCancelledLoad()
{
    LeaveFailedLoad();
    m_watcher.End();
    m_view.status.ShowTitle();
    emit NotOpened();
}

/// What goes wrong beyond what a bad file can do ends the load as well.
LoadReport Loading::Load(const LoadRequest& request)
{
    m_watcher.Begin();
    try {
        return vypx::LoadFile(request, m_watcher);
    } catch (const std::exception&) {
        LeaveFailedLoad();
        return { .result = LoadResult::Failed };
    }
}

void Loading::EndLoad(const LoadRequest& request, const LoadReport& report)
{
    QStringList notes;
    if (report.result == LoadResult::Failed) { // without words
        emit NothingLeft();
        m_view.status.Clear();
        notes << tr("%1 could not be read.").arg(PathText(LastComponent(request.path)));
    } else {
        notes << QString::fromStdString(NoteOf(report));
    }
    if (report.result == LoadResult::Recovered) {
        m_icons.ShowTree();
        m_view.notes.DocumentEnded();
        m_view.commands.Enable({ Command::AddIcon, Command::ClearDeleted }, false);
        m_icons.OfferNothing();
    }
    if (report.result != LoadResult::Opened)
        emit NotOpened();
    m_watcher.End();
    m_view.status.ShowTitle();
    notes << m_watcher.WhatWasNotShown();
    notes.removeAll(QString());
    if (!notes.isEmpty() || !FileLoaded)
        m_view.notes.Tell(Notes::Kind::Load, notes.join('\n'));
    m_view.tree.setFocus(); // which passed to another control while the tree was hidden
}

} // namespace vypx
