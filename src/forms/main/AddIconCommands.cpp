#include "forms/main/AddIconCommands.h"

#include "document/Document.h"
#include "forms/catalogs/frmAddIcon.h"
#include "forms/common/Text.h"
#include "forms/imaging/PictureFile.h"
#include "forms/main/SettingsWindows.h"

namespace vypx {

AddIconCommands::AddIconCommands(const View& view, Ask& ask, BusyGuard& busy, IconCommands& icons)
    : m_view(view)
    , m_ask(ask)
    , m_busy(busy)
    , m_icons(icons)
{
    view.commands.Connect(Command::AddIcon, this, &AddIconCommands::cmdAddIcon_Click);
    view.commands.Connect(Command::AssignApp, this, &AddIconCommands::cmdAssignApp_Click);
    connect(&icons, &IconCommands::Counted, this, &AddIconCommands::ShowAvailable);
    connect(&icons, &IconCommands::Selected, this, &AddIconCommands::ShowAvailable);
}

/// On purpose: the document counts as changed from now on, whatever comes of the window.
void AddIconCommands::MarkChanged()
{
    IconsetChanged = true;
    m_icons.UpdateIconStats();
}

void AddIconCommands::cmdAddIcon_Click()
{
    AddIconAssignMode = false;
    OpenWindow();
    MarkChanged();
}

void AddIconCommands::cmdAssignApp_Click()
{
    AddIconAssignMode = true;
    AddIconChangeMode = m_view.commands.Button(Command::AssignApp)->text() != AssignOrphanCaption;
    OpenWindow();
    m_window->setWindowTitle(
        AddIconChangeMode ? "Assign App to Icon" : "Assign App to Orphaned Icon");
    AddIconChangeMode = false;
    MarkChanged();
}

void AddIconCommands::OpenWindow()
{
    if (!IsOpen()) {
        m_window = new frmAddIcon(m_view.form);
        connect(m_window, &frmAddIcon::AddAsked, this, &AddIconCommands::Add);
        connect(m_window, &frmAddIcon::ShareAsked, this, &AddIconCommands::Share);
        connect(m_window, &frmAddIcon::AssignAsked, this, &AddIconCommands::Assign);
    }
    m_window->Load();
    m_window->ShowAvailable(HighResOnShow());
    m_window->setWindowState(
        m_window->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized));
    BringUp(*m_window);
}

bool AddIconCommands::IsOpen() const { return m_window && !m_window->isHidden(); }

void AddIconCommands::ShowAvailable()
{
    if (IsOpen())
        m_window->ShowAvailable(HighResOnShow());
}

void AddIconCommands::CatalogsChanged()
{
    if (IsOpen() && !AddIconAssignMode)
        m_window->ForgetUnlisted();
    ShowAvailable();
}

void AddIconCommands::DocumentChanged()
{
    if (!IsOpen())
        return;
    if (AddIconAssignMode)
        m_window->reject();
    else
        m_window->ForgetAdded();
}

/// By the file, since the panel shows a picture that an undo brought back, or that a load was about
/// to take away, only after the next click.
PixelSize AddIconCommands::HighResOnShow() const
{
    const QSize size = PictureSize(HighResPath);
    return { size.width(), size.height() };
}

/// Empty: none is, or the root.
std::string AddIconCommands::SelectedIcon() const
{
    const QTreeWidgetItem* const node = m_view.tree.selectedItems().value(0);
    return node && node != m_view.tree.Root() ? ToLatin1(node->text(0)) : std::string();
}

void AddIconCommands::Add(const std::vector<std::string>& labels)
{
    // A copy: the window's list changes as soon as the icons are counted.
    Run([labels] { return ApplyAddIcons(labels); },
        [this](const RowsOutcome&) {
            for (ImagePanel* panel : m_view.panels) {
                panel->ClearImage();
                m_view.commands.Enable(panel->Shows().ofImport, true);
            }
            DisableStored();
        });
}

void AddIconCommands::Share(AssignRequest request)
{
    request.selected = SelectedIcon();
    Run([&] { return ApplyShareIcon(request); }, [this](const RowsOutcome&) { DisableStored(); });
}

void AddIconCommands::Assign(AssignRequest request)
{
    request.selected = SelectedIcon();
    Run([&] { return ApplyAssignIcon(request); },
        [this](const RowsOutcome& outcome) {
            if (outcome.isDone)
                m_view.commands.Enable(Command::AssignApp, false);
        });
}

/// `finish` sets what goes beyond a click on the node. The tree shows what was done before a
/// message stops everything.
void AddIconCommands::Run(const Work& work, const Finish& finish)
{
    if (m_busy.IsBusy())
        return;
    m_icons.FinishName();
    m_view.notes.Tell(Notes::Kind::Rows, {});
    m_busy.Run([&] {
        const RowsOutcome outcome = work();
        if (!outcome.node.empty()) {
            if (ShowNode(outcome.node))
                finish(outcome);
        } else if (const QTreeWidgetItem* node = m_view.tree.selectedItems().value(0);
                   node && outcome.isDone) {
            m_icons.NodeClick(*node); // its paths were cleared
        }
        m_icons.UpdateIconStats();
        m_view.notes.Tell(Notes::Kind::Rows, QString::fromStdString(outcome.note));
        if (!outcome.message.empty())
            m_ask.Show(m_window, { .text = FromLatin1(outcome.message) });
        if (outcome.isDone && m_window)
            m_window->accept();
    });
}

/// Does all that a click on the node does. False: a tree without a root shows none.
bool AddIconCommands::ShowNode(const std::string& node)
{
    m_view.tree.FillBelowRoot(Tree);
    QTreeWidgetItem* const item = m_view.tree.NodeOf(FromLatin1(node));
    if (!item)
        return false;
    // Before the click takes the focus from a button that it disables, whose next key would use
    // another command.
    m_view.tree.setFocus();
    m_view.tree.setCurrentItem(item);
    m_view.tree.scrollToItem(item);
    return true;
}

void AddIconCommands::DisableStored()
{
    for (const ImagePanel* panel : m_view.panels) {
        m_view.commands.Enable(panel->Shows().ofStored, false);
        m_view.commands.Enable(panel->Shows().ofUndo, false);
    }
}

} // namespace vypx
