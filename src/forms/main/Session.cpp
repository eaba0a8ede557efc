#include "forms/main/Session.h"

#include "catalogs/ShippedCatalogs.h"
#include "document/AppFolders.h"
#include "document/Document.h"
#include "document/SettingsFile.h"
#include "document/WorkingFolder.h"
#include "forms/common/Look.h"
#include "settings/Settings.h"

#include <QApplication>
#include <algorithm>

namespace vypx {

namespace {

/// A frame below this, as a settings file can ask for, could not be found on the screen.
constexpr int LeastSide = 200;

} // namespace

Session::Session(const View& view, BusyGuard& busy, SavedSettings& settings,
    SettingsWindows& windows, Documents& documents, CatalogReading& catalogs, AppSearch& search)
    : m_view(view)
    , m_busy(busy)
    , m_settings(settings)
    , m_windows(windows)
    , m_documents(documents)
    , m_catalogs(catalogs)
    , m_search(search)
{
    view.commands.Connect(Command::Exit, &view.form, [this] { Exit(); });
}

void Session::StartUp(const QString& programFolder, const QString& userFolder)
{
    ProgramFolder = programFolder.toStdString();
    const AppFolders folders = ResolveAppFolders(ProgramFolder, userFolder.toStdString());
    AppFolder = folders.work;
    TakeShippedFiles(folders, ShippedCatalogRules);
    RememberPreviewColor = false;
    TransparentUse = true;
    m_settings.Load();
    const bool isFirst = !HasWindowPlaces();
    TakeWorkingFolder();
    ChoosePreviewColour();
    m_windows.ShowDepth();
    PaintColours();
    m_view.commands.Enable(When::Document, false);
    IconTable.assign(1, {});
    BitmapTable.assign(1, {});
    m_catalogs.ReadAll();
    ShowInFrame();
    m_view.sides.ShowByOption();
    if (isFirst)
        m_view.order.ArrangeWindows();
    m_view.views.ShowByOption();
}

void Session::TakeWorkingFolder()
{
    const bool isCounted = m_copies.Enter(AppFolder);
    InstanceNumber = m_copies.Number();
    TempSuffix = BelowFolder(m_copies.FolderName());
    if (!isCounted)
        m_settings.TellNotRead();
    MakeFolder(WorkFolder());
}

void Session::PaintColours()
{
    PaintChrome(m_view.form);
    m_view.working.setAutoFillBackground(true);
    for (ImagePanel* panel : m_view.panels)
        panel->PaintBackground(QColor(R, G, B));
}

void Session::ShowInFrame()
{
    m_view.frame.resize(std::max(PixelsFromTwips(MainWinWidth), LeastSide),
        std::max(PixelsFromTwips(MainWinHeight), LeastSide));
    m_view.frame.show();
    QWidget& child = *m_view.form.parentWidget();
    child.resize(child.sizeHint().width(), child.height()); // the frame sees to the height
    child.show();
}

void Session::Exit()
{
    m_isLeaving = true;
    m_search.WhenIdle([this] { m_busy.WhenIdle([this] { End(); }); });
}

/// On purpose: there is no question about unsaved changes.
void Session::End()
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_documents.CloseWindows(); // what they take back or take over is to be saved
    // On purpose: the first copy never changes the count, and one that is not the last to leave
    // may hand its number to a later one.
    if (InstanceNumber >= 1)
        m_settings.SaveRunCount(InstanceNumber - 1);
    m_settings.Save();
    SettingsSaved = true;
    DeleteWorkingFiles({ ".bak", ".bmp", ".bin" });
    m_copies.Leave();
    if (m_atEnd)
        m_atEnd();
    for (QWidget* window : QApplication::topLevelWidgets())
        window->close();
}

} // namespace vypx
