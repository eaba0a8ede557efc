#include "forms/Form1.h"

#include "catalogs/CatalogFiles.h"
#include "document/AppFolders.h"
#include "document/Document.h"
#include "document/RunCount.h"
#include "document/WorkingFolder.h"
#include "forms/Commands.h"
#include "forms/Look.h"
#include "forms/Text.h"
#include "settings/Settings.h"
#include "ui_Form1.h"

#include <QAction>
#include <algorithm>

namespace vypx {

namespace {

/// A frame below this, as a settings file can ask for, could not be found on the screen.
constexpr int LeastSide = 200;

} // namespace

void Form1::StartUp(const QString& programFolder, const QString& userFolder)
{
    FindFolders(programFolder, userFolder);
    TurnOnDrops();
    RememberPreviewColor = false;
    TransparentUse = true;
    MakeFolder(AppFolder + BelowFolder("temp"));
    LoadSettings();
    TakeWorkingFolder();
    ChooseColours();
    m_ui->lblTargetCD->setText(Shown(DefaultColorDepth));
    PaintColours();
    Enable({ "mnuCloseIconset", "mnuSave", "mnuSaveandInstall", "mnuSaveAs", "mnuExportTemplate",
               "mnuRemoveLR", "mnuRemoveHR" },
        false);
    IconTable.assign(1, {});
    BitmapTable.assign(1, {});
    ReadCatalogs([this](std::string_view text) { Message(text); });
    ShowInFrame();
    CheckResolutionEntry();
    ShowPanelsByOption();
    m_ui->TreeView1->viewport()->update();
    Enable({ "mnuPasteLG", "mnuPasteSM" }, false);
    DisableWhatIsNotBuilt(m_frame);
}

void Form1::FindFolders(const QString& programFolder, const QString& userFolder)
{
    AppFolder = ResolveAppFolder(programFolder.toStdString(), userFolder.toStdString());
}

void Form1::TurnOnDrops()
{
    setAcceptDrops(true);
    for (QWidget* target : std::initializer_list<QWidget*>{ m_ui->picLGfrm, m_ui->picLG,
             m_ui->picSMfrm, m_ui->picSM, m_ui->frameLG, m_ui->frameSM, m_ui->frameKey,
             m_ui->TreeView1, m_ui->TreeView1->viewport() })
        target->setAcceptDrops(true);
}

/// The first copy works in "temp"; a further one in "temp" and its number, which is one above the
/// count that the settings file holds.
void Form1::TakeWorkingFolder()
{
    m_copies.Enter(AppFolder);
    InstanceNumber = m_copies.AnotherRan() ? ReadRunCount() + 1 : 0;
    SetTempSuffix(InstanceNumber);
    SaveRunCount(InstanceNumber);
    MakeFolder(WorkFolder());
}

void Form1::ChooseColours()
{
    R = RememberPreviewColor ? Rsave : 0;
    G = RememberPreviewColor ? Gsave : 0;
    B = RememberPreviewColor ? Bsave : 255;
}

void Form1::PaintColours()
{
    PaintChrome(*this);
    m_ui->lblWorking->setAutoFillBackground(true);
    for (Panel* panel : Panels()) {
        panel->box->SetBackColour(QColor(R, G, B));
        panel->picture->SetBackColour(QColor(R, G, B));
        panel->swatch->SetBackColour(ScreenColour(ChromeColour));
        ReserveColourWidth(*panel);
    }
}

void Form1::ShowInFrame()
{
    m_frame.resize(std::max(PixelsFromTwips(MainWinWidth), LeastSide),
        std::max(PixelsFromTwips(MainWinHeight), LeastSide));
    m_frame.show();
    QWidget* const child = parentWidget();
    child->show();
    // As high as the frame allows; to the right there is room for the side windows.
    const int below = child->parentWidget()->height();
    child->setGeometry(
        0, 0, child->sizeHint().width(), std::max(child->sizeHint().height(), below));
    m_ui->TreeView1->setFocus();
}

void Form1::CheckResolutionEntry()
{
    CheckOnly(HighResOnly ? "mnuHideLowRes" : LowResOnly ? "mnuHideHighRes" : "mnuShowBoth");
}

} // namespace vypx
