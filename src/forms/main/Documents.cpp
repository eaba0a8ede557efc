#include "forms/main/Documents.h"

#include "document/Document.h"
#include "document/HelpContext.h"
#include "document/IconStats.h"
#include "forms/common/DisabledWindow.h"
#include "forms/common/Text.h"
#include "forms/main/frmNewIconset.h"
#include "forms/settings/frmSelectCDepth.h"
#include "settings/Settings.h"

#include <utility>

namespace vypx {

namespace {

bool IsTemplateName(const std::string& path)
{
    return HasTheRightExtension({ .path = path, .asTemplate = true });
}

} // namespace

Documents::Documents(
    const View& view, Ask& ask, Loading& loading, IconCommands& icons, SettingsWindows& settings)
    : m_view(view)
    , m_ask(ask)
    , m_loading(loading)
    , m_icons(icons)
    , m_settings(settings)
{
    view.commands.Connect(Command::New, this, &Documents::New);
    view.commands.Connect(Command::Open, this, &Documents::Open);
    view.commands.Connect(Command::LoadTemplate, this, &Documents::LoadTemplate);
    view.commands.Connect(Command::CloseIconset, this, &Documents::Close);
    connect(&settings, &SettingsWindows::DepthDone, this, &Documents::GoOn);
    connect(&settings, &SettingsWindows::DepthGivenUp, this, [this] {
        TemplateMode = false;
        m_named.clear();
        if (!AsksForName())
            m_settings.TakeBackChoices();
    });
    connect(&loading, &Loading::Opened, this, &Documents::DocumentOpened);
    connect(&loading, &Loading::NotOpened, this, &Documents::GiveUp);
    connect(&loading, &Loading::NothingLeft, this, &Documents::ShowNoDocument);
}

/// The question before a changed document is left. On purpose: Yes never saves.
bool Documents::MayLeave(Leaving command)
{
    const bool hasWhatCounts =
        command == Leaving::ForOpen ? StatHighRes != 0 || StatLowRes != 0 : FileLoaded;
    const bool asks = IconsetChanged && hasWhatCounts;
    auto answer = QMessageBox::No;
    if (asks && command == Leaving::ForNew)
        HelpContext = HelpOfIconset;
    if (asks)
        answer = m_ask.Show(&m_view.form,
            { .text = "The current iconset may have been changed.\n\nSave the current iconset?",
                .title = "Save Changes?",
                .icon = QMessageBox::Information,
                .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel });
    if (command != Leaving::ForNew && answer == QMessageBox::Yes)
        m_ask.Show(&m_view.form, { .text = "Not in this version :-( " });
    if (asks && answer == QMessageBox::No)
        m_changesWhenAsked = IconsetChanged.Times();
    return answer == QMessageBox::No;
}

bool Documents::ChangedSinceAsked() const { return IconsetChanged.Times() != m_changesWhenAsked; }

void Documents::New()
{
    if (!MayLeave(Leaving::ForNew))
        return;
    m_view.commands.Enable(
        { Command::AddIcon, Command::RemoveIcon, Command::AssignApp, Command::ClearDeleted },
        false);
    PendingOpen = TemplateMode = false;
    PendingNew = true;
    PutNamedAside();
    if (PromptColorDepth)
        m_settings.AskForDepth();
    else
        ShowNewIconset();
    for (ImagePanel* panel : m_view.panels)
        panel->ClearPicture();
    m_icons.UpdateIconStats();
}

void Documents::Open()
{
    for (ImagePanel* panel : m_view.panels)
        panel->ClearSizeLimit();
    PutNamedAside();
    OpenFile(Leaving::ForOpen);
}

void Documents::LoadTemplate()
{
    PutNamedAside();
    OpenFile(Leaving::ForTemplate);
}

void Documents::OpenNamed(const std::string& path)
{
    if (path.empty())
        return; // a load without one would ask for it
    m_named = path;
    if (IsTemplateName(path)) {
        OpenFile(Leaving::ForTemplate);
        return;
    }
    // As a dropped one: the window for the depth is for the commands of the menu.
    ForgetDropped();
    Load();
}

void Documents::OpenFile(Leaving command)
{
    HelpContext = HelpOfIconset;
    ForgetDropped();
    m_view.commands.Enable(Command::ChangeDatabaseName, false);
    const bool wasPendingNew = std::exchange(PendingNew, false);
    if (!MayLeave(command)) {
        // The depth window that stands open for another command still leads there.
        PendingNew = wasPendingNew && m_settings.AsksForDepth();
        return;
    }
    PendingOpen = true;
    TemplateMode = command == Leaving::ForTemplate;
    if (PromptColorDepth)
        m_settings.AskForDepth();
    else
        Load();
}

/// The depth is chosen: on to what was asked for.
void Documents::GoOn()
{
    if (PendingNew)
        ShowNewIconset();
    if (!PendingOpen)
        return;
    if (ChangedSinceAsked() && !MayLeave(TemplateMode ? Leaving::ForTemplate : Leaving::ForOpen)) {
        TemplateMode = false;
        PutNamedAside();
        GiveUp();
    } else {
        ForgetDropped();
        Load();
    }
}

void Documents::Load()
{
    const std::string named = std::exchange(m_named, {});
    DroppedFile = !named.empty();
    if (DroppedFile) { // whatever came between it and the depth window
        DroppedFileName = named;
        TemplateMode = IsTemplateName(named);
    }
    m_loading.LoadFile();
    DroppedFile = false;
}

/// A dropped file that waits for an import would take the place of the one that is to be chosen.
void Documents::ForgetDropped()
{
    if (std::exchange(DroppedFile, false))
        m_view.notes.Tell(Notes::Kind::Picture, {});
}

/// True: there was one.
bool Documents::PutNamedAside()
{
    const std::string named = std::exchange(m_named, {});
    if (!named.empty())
        emit NamedPutAside(named);
    return !named.empty();
}

/// No document came of the command: the open one keeps its depth and resolution. As long as one of
/// the two windows stands, what was chosen is still meant for the document that it asks about.
void Documents::GiveUp()
{
    if (m_settings.AsksForDepth() || AsksForName())
        return;
    if (FileLoaded)
        m_settings.TakeBackChoices();
    else
        m_settings.KeepChoices();
}

bool Documents::AsksForName() const { return m_newIconset && m_newIconset->isVisible(); }

void Documents::CloseWindows()
{
    PutNamedAside(); // else its window would seem to be closed by the user
    m_settings.CloseAll();
    if (m_newIconset)
        m_newIconset->close();
}

void Documents::HoldWindows(bool on)
{
    m_settings.HoldDepthWindow(on);
    if (m_newIconset)
        HoldWindow(*m_newIconset, on);
}

void Documents::ShowNewIconset()
{
    if (!m_newIconset) {
        m_newIconset = new frmNewIconset(&m_view.form);
        connect(m_newIconset, &frmNewIconset::Done, this, &Documents::MakeNewIconset);
        connect(m_newIconset, &frmNewIconset::GivenUp, this, &Documents::GiveUp);
    }
    BringUp(*m_newIconset);
}

void Documents::MakeNewIconset(const QString& name)
{
    if (ChangedSinceAsked() && !MayLeave(Leaving::ForNew)) {
        GiveUp();
        return;
    }
    if (!name.isEmpty()) {
        Parent = DatabaseName = ToLatin1(name);
        Tree.Clear();
        Tree.SetRoot(Parent);
        m_icons.ShowTree();
        FileLoaded = true;
        m_view.commands.Enable(When::Document, true);
        m_view.commands.Enable({ Command::PanelLG, Command::PanelSM }, true);
        FileName.clear();
        m_view.status.ShowFileName(FileName);
        m_view.status.ShowDatabaseName(DatabaseName);
        EmptyTables();
        DocumentBegan();
    } else if (!FileLoaded) {
        // What is left of a closed or a half-read file must never be saved over it.
        FileName.clear();
        Tree.Clear();
        m_icons.ShowTree();
        EmptyTables();
        DocumentBegan();
    } else {
        GiveUp(); // the open one stays
    }
    // On purpose: without a name as well.
    FileLoaded = true;
    m_view.commands.Enable({ Command::RemoveLowRes, Command::RemoveHighRes }, true);
    m_icons.UpdateIconStats(); // or a save would judge the new iconset by the icons of the old one
}

bool Documents::MayCloseIconset()
{
    return !IconsetChanged
        || m_ask.Show(&m_view.form,
               { .text = "The current iconset has been modified.\n\n"
                         "Are you sure you want to close it?",
                   .title = "Current Iconset Was Changed!",
                   .icon = QMessageBox::Warning,
                   .buttons = QMessageBox::Ok | QMessageBox::Cancel })
        == QMessageBox::Ok;
}

void Documents::Close()
{
    if (!MayCloseIconset())
        return;
    Tree.Clear();
    EmptyTables();
    Itbl.assign(1, {});
    FileCashe.assign(1, 0);
    FileLoaded = IconsetChanged = false;
    ShowNoDocument();
}

/// The status bar keeps its texts.
void Documents::ShowNoDocument()
{
    m_icons.ShowTree();
    m_view.commands.Enable(When::Document, false);
    m_view.notes.DocumentEnded();
    ShowNoIcons();
    emit Replaced();
    m_icons.UpdateIconStats();
}

void Documents::EmptyTables()
{
    IconTable.assign(1, {});
    BitmapTable.assign(1, {});
    BitmapRow = 0;
    LoadedAsTemplate = false;
    ShareNames.assign(1, {});
    ClearSlots();
    ShowNoIcons();
}

/// No pictures on show, and no commands for icons.
void Documents::ShowNoIcons()
{
    for (ImagePanel* panel : m_view.panels)
        panel->Clear();
    m_icons.OfferNothing();
}

/// One was opened or made: with the depth that was chosen last, wherever.
void Documents::DocumentBegan()
{
    const bool depthWasForNamed = PutNamedAside();
    m_settings.KeepChoices();
    m_settings.ShowDepth();
    m_view.notes.DocumentEnded();
    emit Replaced();
    if (depthWasForNamed)
        m_settings.CloseDepthWindow();
}

void Documents::DocumentOpened()
{
    DocumentBegan();
    // What was to take the place of the document before.
    m_settings.CloseDepthWindow();
    if (m_newIconset)
        m_newIconset->close();
    m_icons.OfferNothing(); // until an icon of it is clicked
    m_view.commands.Enable({ Command::PanelLG, Command::PanelSM }, true);
    m_icons.ShowTree();
    m_view.commands.Enable(When::Document, true);
}

} // namespace vypx
