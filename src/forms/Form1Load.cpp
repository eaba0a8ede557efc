#include "reader/LoadFile.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/Ask.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "forms/frmNewIconset.h"
#include "forms/frmProgOptions.h"
#include "forms/frmSelectCDepth.h"
#include "settings/Settings.h"
#include "ui_Form1.h"

#include <QCoreApplication>

namespace vypx {

namespace {

/// Lets the form paint. What a load must keep out is swallowed by the event filter.
void RunPendingEvents() { QCoreApplication::processEvents(); }

} // namespace

void Form1::LoadFile()
{
    if (m_loading)
        return;
    for (Panel* panel : Panels())
        ClearPicture(*panel);
    DisableSlotCommands();
    const std::optional<std::string> path = ChooseIconset();
    if (!path) {
        LeaveFailedLoad();
        EndLoad();
        return;
    }

    m_loading = true;
    m_sincePaint.start();
    const LoadResult result = vypx::LoadFile(*path, *this);
    m_loading = false;
    if (result == LoadResult::Recovered || result == LoadResult::Failed)
        OfferNothing();
    if (result != LoadResult::WrongFileType)
        ShowTree();
    EndLoad();
    m_ui->TreeView1->setFocus(); // which passed to another control while the tree was hidden
    if (m_closeAfterLoad)
        ExitProgram();
}

/// There is no document.
void Form1::OfferNothing()
{
    ForgetNote();
    Enable({ "cmdAddIcon", "cmdAssignApp", "cmdRemoveIcon", "cmdClrDeleted" }, false);
    OfferRemoval(Removal::Remove);
    if (m_options)
        m_options->ShowDepthLock();
}

/// What every exit of a load does: no busy note, the tree in sight.
void Form1::EndLoad()
{
    BusyEnded();
    ProgressHidden();
    m_ui->TreeView1->setVisible(true);
}

void Form1::DisableSlotCommands()
{
    Enable({ "cmdSaveLG", "cmdCopyClipLG", "cmdCreateLowRes", "cmdDelLG", "cmdUndoLG",
               "cmdChangeTC_LG", "cmdImportLG", "cmdPastePicLG", "mnuUndo_LG", "mnuPasteLG" },
        false);
    Enable({ "cmdSaveSM", "cmdCopyClipSM", "cmdDelSM", "cmdUndoSM", "cmdChangeTC_SM", "cmdImportSM",
               "cmdPastePicSM", "mnuUndo_SM", "mnuPasteSM" },
        false);
}

std::optional<std::string> Form1::ChooseIconset()
{
    if (SkipOpenDialog)
        return FileName;
    if (DroppedFile)
        return DroppedFileName;
    OpenQuestion question{
        .title = TemplateMode ? tr("Load Template") : tr("Open Iconset"),
        .folder = {},
        .filters = { TemplateMode ? "VYPX Template File (*.vpt)" : "Vantry Iconset (*.prc *.pdb)" },
    };
    if (UseLastDirs && DirExists(LastDirIconsetLoad))
        question.folder = ShownPath(LastDirIconsetLoad);
    const QString chosen = m_ask.OpenFile(this, question);
    if (chosen.isEmpty())
        return std::nullopt;
    return chosen.toStdString();
}

void Form1::Message(std::string_view text) { m_ask.Show(this, { .text = Shown(text) }); }

void Form1::BeginLoad()
{
    for (Panel* panel : Panels()) {
        panel->size->clear();
        panel->colour->clear();
        panel->swatch->setVisible(false);
    }
    ShowPanelsByOption();
}

void Form1::TreeCleared()
{
    m_ui->TreeView1->setVisible(false);
    ShowTree();
    m_ui->lblWorking->setVisible(true);
    RunPendingEvents();
}

void Form1::DocumentNamed()
{
    ShowStatus(1, "Windows Filename = " + ShownPath(LastComponent(FileName)));
    ShowStatus(2, "Palm Database Name = " + Shown(DatabaseName));
    RunPendingEvents();
}

void Form1::ClearPictures()
{
    for (Panel* panel : Panels())
        ClearPicture(*panel);
    RunPendingEvents();
}

void Form1::WalkGivenUp()
{
    m_ui->lblWorking->setVisible(false);
    ShowStatus(1, QString());
}

void Form1::Busy(std::string_view text) { m_ui->lblWorking->setText(Shown(text)); }

void Form1::BusyEnded()
{
    m_ui->lblWorking->setVisible(false);
    m_ui->lblWorking->setText("Working....");
}

void Form1::ProgressMaximum(int maximum) { m_ui->ProgressBar1->setMaximum(maximum); }

void Form1::ProgressShown()
{
    m_ui->ProgressBar1->setValue(0);
    m_ui->ProgressBar1->setVisible(true);
}

void Form1::Progress(int count)
{
    constexpr qint64 BetweenPaints = 16; // milliseconds
    if (m_ui->ProgressBar1->maximum() < count)
        return;
    m_ui->ProgressBar1->setValue(count);
    if (m_sincePaint.elapsed() < BetweenPaints)
        return;
    m_sincePaint.restart();
    RunPendingEvents();
}

void Form1::ProgressHidden() { m_ui->ProgressBar1->setVisible(false); }

/// One was opened or made: with the depth that was chosen last, wherever.
void Form1::DocumentBegan()
{
    if (m_depthWindow)
        m_depthWindow->KeepChoices();
    ShowDepth();
    ForgetNote();
}

/// A note about a save that failed stays until one succeeds, any other goes with its document.
void Form1::ForgetNote()
{
    if (m_noteIsOfDocument)
        m_ui->lblNotSaved->setVisible(false);
}

void Form1::Opened()
{
    if (m_newIconset)
        m_newIconset->close(); // it was asked for in the place of another document
    DocumentBegan();
    Enable({ "cmdAssignApp", "cmdRemoveIcon" }, false); // until an icon of it is clicked
    OfferRemoval(Removal::Remove);
    Enable({ "frameLG", "frameSM", "cmdAddIcon" }, true);
    BusyEnded();
    ShowTree();
    m_ui->TreeView1->setVisible(true);
    Enable({ "mnuRemoveLR", "mnuRemoveHR", "mnuCloseIconset", "mnuSave", "mnuSaveandInstall",
               "mnuSaveAs", "mnuExportTemplate" },
        true);
}

} // namespace vypx
