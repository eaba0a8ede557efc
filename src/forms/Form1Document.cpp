#include "document/Document.h"
#include "document/IconStats.h"
#include "forms/Ask.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "forms/frmNewIconset.h"
#include "forms/frmSelectCDepth.h"
#include "settings/Settings.h"
#include "ui_Form1.h"

namespace vypx {

/// The question before a changed document is left. On purpose: Yes never saves.
QMessageBox::StandardButton Form1::AskAboutChanges()
{
    return m_ask.Show(this,
        { .text = "The current iconset may have been changed.\n\nSave the current iconset?",
            .title = "Save Changes?",
            .icon = QMessageBox::Information,
            .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel });
}

void Form1::mnuNew_Click()
{
    if (FileLoaded && IconsetChanged && AskAboutChanges() != QMessageBox::No)
        return;
    Enable({ "cmdAddIcon", "cmdRemoveIcon", "cmdAssignApp", "cmdClrDeleted" }, false);
    PendingOpen = false;
    PendingNew = true;
    if (PromptColorDepth)
        ShowDepthWindow();
    else
        ShowNewIconset();
    for (Panel* panel : Panels())
        ClearPicture(*panel);
    UpdateIconStats();
}

void Form1::mnuOpen_Click()
{
    Enable("cmdChangeDataBaseName", false);
    PendingNew = false;
    for (Panel* panel : Panels())
        panel->sizeLimit->clear();
    if (IconsetChanged && (StatHighRes != 0 || StatLowRes != 0)) {
        const auto answer = AskAboutChanges();
        if (answer == QMessageBox::Yes)
            m_ask.Show(this, { .text = "Not in this version :-( " });
        if (answer != QMessageBox::No)
            return;
    }
    PendingOpen = true;
    if (PromptColorDepth)
        ShowDepthWindow();
    else
        LoadFile();
}

void Form1::ShowDepthWindow()
{
    if (!m_depthWindow) {
        m_depthWindow = new frmSelectCDepth(this);
        connect(m_depthWindow, &frmSelectCDepth::DepthChosen, this, &Form1::RefreshOptions);
        connect(m_depthWindow, &frmSelectCDepth::ResolutionChosen, this, &Form1::ShowResolution);
        connect(m_depthWindow, &frmSelectCDepth::TakenBack, this, &Form1::ShowDepth);
        connect(m_depthWindow, &frmSelectCDepth::Done, this, &Form1::LeaveDepthWindow);
    }
    m_depthWindow->show();
    m_depthWindow->raise();
    m_depthWindow->activateWindow();
}

/// The depth is chosen: on to what was asked for.
void Form1::LeaveDepthWindow()
{
    ShowDepth();
    ShowResolution();
    if (PendingNew)
        ShowNewIconset();
    if (PendingOpen)
        LoadFile();
}

void Form1::ShowNewIconset()
{
    if (!m_newIconset) {
        m_newIconset = new frmNewIconset(this);
        connect(m_newIconset, &frmNewIconset::Done, this, &Form1::MakeNewIconset);
    }
    m_newIconset->show();
    m_newIconset->raise();
    m_newIconset->activateWindow();
}

void Form1::MakeNewIconset(const QString& name)
{
    if (!name.isEmpty()) {
        Parent = DatabaseName = Inner(name);
        Tree.Clear();
        Tree.SetRoot(Parent);
        ShowTree();
        FileLoaded = true;
        Enable({ "mnuRemoveLR", "mnuRemoveHR", "mnuCloseIconset", "mnuSave", "mnuSaveandInstall",
                   "mnuSaveAs", "mnuExportTemplate", "frameLG", "frameSM", "cmdAddIcon" },
            true);
        FileName.clear();
        ShowStatus(1, "Windows Filename = ");
        ShowStatus(2, "Palm Database Name = " + Shown(DatabaseName));
        EmptyTables();
        DocumentBegan();
    } else if (!FileLoaded) {
        // What is left of a closed or a half-read file must never be saved over it.
        FileName.clear();
        Tree.Clear();
        ShowTree();
        EmptyTables();
        DocumentBegan();
    }
    // On purpose: without a name as well.
    FileLoaded = true;
    Enable({ "mnuRemoveLR", "mnuRemoveHR" }, true);
    UpdateIconStats(); // or a save would judge the new iconset by the icons of the old one
}

void Form1::mnuCloseIconset_Click()
{
    if (IconsetChanged) {
        const auto answer = m_ask.Show(this,
            { .text =
                    "The current iconset has been modified.\n\nAre you sure you want to close it?",
                .title = "Current Iconset Was Changed!",
                .icon = QMessageBox::Warning,
                .buttons = QMessageBox::Ok | QMessageBox::Cancel });
        if (answer != QMessageBox::Ok)
            return;
    }
    Tree.Clear();
    ShowTree();
    Enable({ "mnuCloseIconset", "mnuSave", "mnuSaveandInstall", "mnuSaveAs", "mnuExportTemplate",
               "mnuRemoveLR", "mnuRemoveHR" },
        false);
    FileLoaded = false;
    ForgetNote();
    EmptyTables();
    Enable({ "cmdAddIcon", "cmdClrDeleted" }, false);
    Itbl.assign(1, {});
    FileCashe.assign(1, 0);
    IconsetChanged = false;
    UpdateIconStats();
}

/// There are no icons any more, no pictures on show and no commands for them.
void Form1::EmptyTables()
{
    IconTable.assign(1, {});
    BitmapTable.assign(1, {});
    BitmapRow = 0;
    ShareNames.assign(1, {});
    ClearSlots();
    for (Panel* panel : Panels()) {
        HideColour(*panel);
        ClearPicture(*panel);
        panel->size->clear();
    }
    DisableSlotCommands();
    Enable({ "cmdRemoveIcon", "cmdAssignApp" }, false);
    OfferRemoval(Removal::Remove);
}

} // namespace vypx
