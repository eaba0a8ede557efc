#include "forms/main/Form1.h"

#include "document/HelpContext.h"
#include "document/Slot.h"
#include "forms/common/Text.h"
#include "forms/main/AddIconCommands.h"
#include "forms/main/AppListCommands.h"
#include "forms/main/ClipboardCommands.h"
#include "forms/main/Documents.h"
#include "forms/main/Drops.h"
#include "forms/main/ExportCommands.h"
#include "forms/main/FormKeys.h"
#include "forms/main/Greeting.h"
#include "forms/main/HelpCommands.h"
#include "forms/main/Installing.h"
#include "forms/main/Menus.h"
#include "forms/main/OutsideFiles.h"
#include "forms/main/PanelKeys.h"
#include "forms/main/PictureCommands.h"
#include "forms/main/Saving.h"
#include "forms/main/Session.h"
#include "forms/main/TemplateExporting.h"
#include "forms/main/TransparencyCommands.h"
#include "forms/main/WindowOrder.h"
#include "ui_Form1.h"

#include <QCloseEvent>

/// The pictures lie in a library, where nothing else would pull them in.
static void InitArt() { Q_INIT_RESOURCE(art); }

namespace vypx {

namespace {

/// A panel with all that belongs to it.
ImagePanel* MakePanel(const vypx::Slot& slot, PictureBox& imageBuffer, QWidget& form)
{
    auto* const panel = new ImagePanel(slot, imageBuffer, &form);
    panel->TakeMenu(*MakePopUp(FromLatin1(slot.letters), *panel));
    return panel;
}

} // namespace

/// What does the work, in the order in which it is made: each knows those before it.
struct Form1::Parts {
    Panels panels;
    Commands commands;
    Notes notes;
    CatalogReading catalogs;
    StatusTexts status;
    ViewEntries views;
    SideContents contents;
    SideWindows sides;
    WindowOrder order;
    SavedSettings settings;
    BusyGuard busy;
    AppSearch search;
    SettingsWindows windows;
    IconCommands icons;
    LoadWatcher watcher;
    Loading loading;
    Documents documents;
    AddIconCommands addIcons;
    AppListCommands appList;
    Saving saving;
    Installing installing;
    TemplateExporting templates;
    PictureCommands pictures;
    TransparencyCommands transparency;
    ExportCommands exports;
    Drops drops;
    ClipboardCommands clipboard;
    Session session;
    OutsideFiles outside;
    HelpCommands help;
    Greeting greeting;
    FormKeys keys;
    PanelKeys panelKeys;

    Parts(QWidget& frame, Form1& form, Ui::Form1& ui, Ask& ask)
        : panels{ MakePanel(SlotLG, *ui.ImageBUF, form), MakePanel(SlotSM, *ui.ImageBUF, form) }
        , commands(frame, form)
        , notes(*ui.lblNotSaved, *ui.lblNote)
        , catalogs(form, ask, notes)
        , status(*ui.StatusBar1, frame)
        , views(panels, commands)
        , contents(*ui.TreeView1, panels)
        , sides(form, commands, contents)
        , order(frame, form, commands, sides)
        , settings(frame, sides, ask)
        , search(form, commands, ask)
        , windows(form, commands, views, *ui.lblTargetCD, ask)
        , icons({ *ui.TreeView1, panels, commands, status, notes, *ui.lblSearchingApp }, ask)
        , watcher({ form, *ui.TreeView1, panels, status, *ui.lblWorking, *ui.ProgressBar1 }, ask)
        , loading(
              { form, *ui.TreeView1, panels, commands, status, notes }, ask, busy, watcher, icons)
        , documents({ form, panels, commands, status, notes }, ask, loading, icons, windows)
        , addIcons({ form, *ui.TreeView1, panels, commands, notes }, ask, busy, icons)
        , appList({ form, commands, notes, *ui.lblWorking, *ui.lblSearchingApp }, ask, search,
              catalogs, icons, loading, documents)
        , saving({ form, commands, status, notes }, ask, icons, settings, windows)
        , installing({ form, commands, status, notes }, ask, saving)
        , templates({ form, commands, notes }, ask, icons, windows)
        , pictures({ form, *ui.TreeView1, panels, commands, status, notes, *ui.lblWorking }, ask,
              busy, icons, settings, windows, views)
        , transparency({ form, panels, commands, status }, windows)
        , exports({ form, commands, notes }, ask, settings)
        , drops({ frame, form, panels, commands, notes }, ask, busy,
              { .load = [this] { loading.LoadFile(); },
                  .import = [this](const vypx::Slot& slot) { pictures.Import(slot); },
                  .paste = [this] { pictures.Paste(SlotLG); },
                  .isSearching = [this] { return search.IsRunning(); } })
        , clipboard({ form, panels, commands }, ask, pictures, icons)
        , session({ frame, form, panels, commands, views, *ui.lblWorking, sides, order }, busy,
              settings, windows, documents, catalogs, search)
        , outside(frame, form, ask, busy, search, documents, session)
        , help(form, commands)
        , greeting(form, commands, ask, session, appList)
        , keys(form, *ui.TreeView1, [this] { icons.RemoveSelected(); })
        , panelKeys(form, panels, commands)
    {
    }
};

Form1::Form1(QWidget& frame, Ask& ask)
    : m_ui(std::make_unique<Ui::Form1>())
{
    InitArt();
    m_ui->setupUi(this);
    m_parts = std::make_unique<Parts>(frame, *this, *m_ui, ask);
    Parts& parts = *m_parts;
    for (ImagePanel* panel : parts.panels)
        m_ui->panelRowLayout->addWidget(panel);
    connect(&parts.icons, &IconCommands::Counted, &parts.windows, &SettingsWindows::ShowDepthLock);
    connect(&parts.icons, &IconCommands::Counted, &parts.contents, &SideContents::ShowCount);
    connect(&parts.icons, &IconCommands::Selected, &parts.contents, &SideContents::ListShares);
    connect(
        &parts.contents, &SideContents::WantsCount, &parts.icons, &IconCommands::UpdateIconStats);
    connect(
        &parts.watcher, &LoadWatcher::Began, this, [&parts] { parts.views.ShowPanelsByOption(); });
    connect(&parts.watcher, &LoadWatcher::Began, &parts.transparency, &TransparencyCommands::Close);
    connect(&parts.watcher, &LoadWatcher::Began, &parts.appList, &AppListCommands::CloseWindows);
    connect(
        &parts.catalogs, &CatalogReading::Read, &parts.addIcons, &AddIconCommands::CatalogsChanged);
    connect(&parts.saving, &Saving::FileNamed, &parts.appList, &AppListCommands::DocumentChanged);
    connect(
        &parts.watcher, &LoadWatcher::Cleared, &parts.addIcons, &AddIconCommands::DocumentChanged);
    connect(
        &parts.documents, &Documents::Replaced, &parts.addIcons, &AddIconCommands::DocumentChanged);
    connect(&parts.watcher, &LoadWatcher::FolderChosen, this, [&parts] { parts.settings.Save(); });
    connect(&parts.appList, &AppListCommands::HelpAsked, this,
        [&parts] { parts.help.ShowContext(HelpOfAppList); });
    connect(&parts.greeting, &Greeting::HelpAsked, this, [&parts] { parts.help.ShowFor(nullptr); });
    connect(&parts.greeting, &Greeting::ShowTipsChosen, &parts.windows,
        &SettingsWindows::ShowTipsOption);
    connect(&parts.windows, &SettingsWindows::OptionsDone, this, [&parts] {
        if (!parts.session.HasEnded()) // an exit saves them itself
            parts.settings.Save();
    });
    ShowKeyImages();
}

Form1::~Form1() = default;

void Form1::ShowKeyImages()
{
    for (const int image : { ImageVY, ImagePalm, ImageApp, ImageUnknown, ImageDelete })
        findChild<QLabel*>(QString("imgKey%1").arg(image))
            ->setPixmap(m_ui->TreeView1->Image(image).pixmap(16, 16));
}

void Form1::StartUp(const QString& programFolder, const QString& userFolder)
{
    m_parts->session.StartUp(programFolder, userFolder);
    m_ui->TreeView1->setFocus();
    m_parts->greeting.Start();
    m_parts->outside.Begin();
}

void Form1::ExitProgram() { m_parts->session.Exit(); }

bool Form1::MayClose()
{
    ExitProgram();
    return m_parts->session.HasEnded();
}

void Form1::closeEvent(QCloseEvent* event) { event->setAccepted(MayClose()); }

void Form1::mnuNew_Click() { m_parts->documents.New(); }
void Form1::mnuOpen_Click() { m_parts->documents.Open(); }
void Form1::mnuCloseIconset_Click() { m_parts->documents.Close(); }
void Form1::mnuExit_Click() { ExitProgram(); }
void Form1::LoadFile() { m_parts->loading.LoadFile(); }
void Form1::SaveIconset() { m_parts->saving.SaveIconset(); }
void Form1::mnuSaveAs_Click() { m_parts->saving.SaveAs(); }

void Form1::TreeView1_NodeClick(const QTreeWidgetItem& node) { m_parts->icons.NodeClick(node); }
void Form1::RemoveSelected() { m_parts->icons.RemoveSelected(); }
void Form1::ClearDeletedIcons() { m_parts->icons.ClearDeletedIcons(); }
void Form1::RebuildTree() { m_parts->icons.RebuildTree(); }
void Form1::UpdateIconStats() { m_parts->icons.UpdateIconStats(); }

void Form1::ImportLG() { m_parts->pictures.Import(SlotLG); }
void Form1::ImportSM() { m_parts->pictures.Import(SlotSM); }

void Form1::DrawLG() { m_parts->panels[0]->Draw(); }
void Form1::DrawSM() { m_parts->panels[1]->Draw(); }

FileTaker& Form1::FilesFromOutside() { return m_parts->outside; }

void Form1::ChkDragFile() { m_parts->drops.ChkDragFile(); }

} // namespace vypx
