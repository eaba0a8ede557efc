#include "forms/main/AppListCommands.h"

#include "catalogs/PrcSearch.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/catalogs/frmAddAppManual.h"
#include "forms/catalogs/frmEditAppList.h"
#include "forms/main/SettingsWindows.h"
#include "settings/Settings.h"

#include <utility>

namespace vypx {

AppListCommands::AppListCommands(const View& view, Ask& ask, AppSearch& search,
    CatalogReading& catalogs, IconCommands& icons, Loading& loading, Documents& documents)
    : m_view(view)
    , m_ask(ask)
    , m_search(search)
    , m_catalogs(catalogs)
    , m_icons(icons)
    , m_loading(loading)
    , m_documents(documents)
{
    view.commands.Connect(Command::EditAppList, this, &AppListCommands::cmdEditAppList_Click);
    connect(&icons, &IconCommands::Counted, this, &AppListCommands::DocumentChanged);
    connect(&search, &AppSearch::Began, this, [this] { ShowSearching(true); });
    connect(&search, &AppSearch::Progressed, this, &AppListCommands::ShowProgress);
    connect(&search, &AppSearch::Ended, this, [this] { ShowSearching(false); });
}

bool AppListCommands::IsOpen() const { return m_editor && !m_editor->isHidden(); }

void AppListCommands::cmdEditAppList_Click()
{
    if (IsOpen()) {
        m_editor->CallBack();
        BringUp(*m_editor);
    } else {
        OpenEditor();
    }
    m_icons.UpdateIconStats();
}

void AppListCommands::OpenEditor()
{
    m_editor = new frmEditAppList(m_ask,
        { .readApps = [this] { m_catalogs.ReadApps(m_editor); },
            .readPalm = [this] { m_catalogs.ReadPalm(m_editor); } },
        m_view.form);
    frmEditAppList& editor = *m_editor;
    connect(&editor, &frmEditAppList::AutomaticAsked, this, &AppListCommands::cmdGetAppsAuto_Click);
    connect(&editor, &frmEditAppList::FolderChosen, this, &AppListCommands::SearchIn);
    connect(&editor, &frmEditAppList::StopAsked, this, [this] { m_search.Stop(); });
    connect(&editor, &frmEditAppList::ManualAsked, this, &AppListCommands::cmdManual_Click);
    connect(&editor, &frmEditAppList::ReloadAsked, this, &AppListCommands::cmdApplyAndReload_Click);
    connect(&editor, &frmEditAppList::HelpAsked, this, &AppListCommands::HelpAsked);
    connect(&editor, &QDialog::finished, this, [this] {
        if (m_manual)
            m_manual->close();
    });
    editor.ShowSearching(m_search.IsRunning());
    BringUp(editor);
    editor.ReadList();
}

void AppListCommands::cmdManual_Click()
{
    if (!m_manual || m_manual->isHidden()) {
        m_manual = new frmAddAppManual(m_ask, m_view.form);
        connect(m_manual, &frmAddAppManual::Added, this, &AppListCommands::ReadAppList);
    }
    BringUp(*m_manual);
}

void AppListCommands::CloseWindows()
{
    if (m_manual)
        m_manual->close();
    if (m_editor)
        m_editor->close();
}

void AppListCommands::DocumentChanged()
{
    if (IsOpen())
        m_editor->ShowDocument();
}

void AppListCommands::cmdGetAppsAuto_Click()
{
    StartupSearchRunning = true;
    RunSearch();
}

/// Empty: none was chosen.
void AppListCommands::SearchIn(const QString& folder)
{
    SearchFolder = folder.toStdString();
    if (SearchFolder.empty())
        return;
    AllowFolderSearch();
    RunSearch();
}

void AppListCommands::DoStartup()
{
    if (!StartupSearch || m_search.IsRunning())
        return;
    StartupSearchRunning = true;
    UpdateAppList();
}

void AppListCommands::UpdateAppList()
{
    m_tellsOfUpdate = true;
    RunSearch();
}

void AppListCommands::RunSearch()
{
    m_search.Run(
        IsOpen() ? static_cast<QWidget*>(m_editor) : &m_view.form, [this] { FinishSearch(); });
}

void AppListCommands::FinishSearch()
{
    if (std::exchange(m_tellsOfUpdate, false)) {
        m_view.working.setText("Working....");
        m_view.working.setVisible(false);
    }
    ReadAppList();
    StartupSearchRunning = false;
}

/// The list shows it as well.
void AppListCommands::ReadAppList()
{
    if (IsOpen())
        m_editor->ReadAppList();
    else
        m_catalogs.ReadApps(&m_view.form);
}

void AppListCommands::ShowSearching(bool on)
{
    m_documents.HoldWindows(on);
    if (m_manual)
        m_manual->ShowSearching(on);
    if (IsOpen())
        m_editor->ShowSearching(on);
}

void AppListCommands::ShowProgress(const QString& path)
{
    if (m_tellsOfUpdate) { // other commands use the label too
        m_view.working.setText("Updating application list....");
        m_view.working.setVisible(true);
    }
    const bool isInEditor = IsOpen();
    if (isInEditor)
        m_editor->ShowPath(path);
    const QString noted = isInEditor ? QString() : path;
    m_view.searchNote.Show(noted);
    m_view.searchNote.setVisible(!noted.isEmpty());
}

/// The document's own file once more: icons that were unknown find their names. What a template
/// brought is a template again.
void AppListCommands::cmdApplyAndReload_Click()
{
    m_icons.FinishName();
    m_editor->hide();
    // What is in no file would be lost without a word.
    if (FileLoaded && (m_view.notes.IsDocumentNotSaved() || !NamedFileExists(FileName)))
        IconsetChanged = true;
    if (!m_documents.MayCloseIconset()) {
        BringUp(*m_editor);
        return;
    }
    if (FileLoaded) {
        TemplateMode = LoadedAsTemplate;
        SkipOpenDialog = true;
        m_loading.LoadFile();
    }
    CloseWindows();
}

} // namespace vypx
