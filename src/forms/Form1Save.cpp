#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/Ask.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "settings/Settings.h"
#include "ui_Form1.h"
#include "writer/CompileIconset.h"
#include "writer/ReadBack.h"
#include "writer/SaveChecks.h"

namespace vypx {

namespace {

constexpr const char* NoImages = "Can't save. The iconset doesn't contain any images.";

} // namespace

void Form1::mnuSave_Click() { SaveIconset(); }

void Form1::SaveIconset()
{
    if (!PassesSaveChecks())
        return;
    if (FileName.empty())
        SaveNewIconset();
    else
        SaveToKnownName();
}

bool Form1::PassesSaveChecks()
{
    m_ui->TreeView1->FinishEdit();
    TellOfLongName();
    const std::optional<std::string_view> why = WhyNotSaved();
    if (why)
        Message(*why);
    return !why;
}

void Form1::SaveToKnownName()
{
    if (NamedFileExists(FileName) && WarnOverwrite) {
        const auto answer = m_ask.Show(this,
            { .text = "About to overwrite the existing file.\nAre you sure?",
                .title = "Overwrite file?",
                .icon = QMessageBox::Warning,
                .buttons = QMessageBox::Yes | QMessageBox::No });
        if (answer != QMessageBox::Yes)
            return;
    }
    if (!HasNormalImages()) {
        Message(NoImages);
        return;
    }
    SavingAs = false;
    if (Compile())
        IconsetChanged = false;
}

/// On purpose: unlike Save As, this takes the document for unchanged before it is written, and goes
/// on without a name.
void Form1::SaveNewIconset()
{
    if (!HasNormalImages()) {
        Message(NoImages);
        return;
    }
    SavingAs = true;
    const std::optional<std::string> path = ChooseTarget();
    if (!path)
        return;
    FileName = *path;
    if (FileName.empty())
        Message("Can't save. Filename not specified.");
    TakeTargetFolder();
    IconsetChanged = false;
    SavingAs = true;
    if (Compile())
        SavingAs = false;
}

void Form1::mnuSaveAs_Click()
{
    if (!PassesSaveChecks())
        return;
    SavingAs = true;
    const std::optional<std::string> path = ChooseTarget();
    if (!path)
        return;
    FileName = *path;
    TakeTargetFolder();
    SavingAs = true;
    if (!Compile())
        return;
    IconsetChanged = false;
    SavingAs = false;
}

/// Empty when the dialog was cancelled.
std::optional<std::string> Form1::ChooseTarget()
{
    SaveQuestion question{
        .title = tr("Save Iconset"),
        .folder = {},
        .filters = { "Vantry Iconset (*.prc *.pdb)" },
        // On purpose: the template's ending on this dialog too.
        .defaultEnding = "vpt",
    };
    if (UseLastDirs && DirExists(LastDirIconsetSave))
        question.folder = ShownPath(LastDirIconsetSave);
    const std::optional<QString> chosen = m_ask.SaveFile(this, question);
    if (!chosen)
        return std::nullopt;
    return chosen->toStdString();
}

void Form1::TakeTargetFolder()
{
    LastDirIconsetSave = FolderOf(FileName);
    SaveSettings();
    ShowStatus(1, "Windows Filename = " + ShownPath(LastComponent(FileName)));
}

/// Writes the iconset. A failure shows no box but a note that stays until a save succeeds; the old
/// file stands. The note about icons that find no room in the file goes with the document.
bool Form1::Compile()
{
    try {
        CompileIconset();
        const std::string lost = IconsWithoutRoom();
        m_ui->lblNotSaved->setText(tr("The iconset was saved. %1").arg(Shown(lost)));
        m_ui->lblNotSaved->setVisible(!lost.empty());
        m_noteIsOfDocument = true;
        return true;
    } catch (const std::exception& failure) {
        m_ui->lblNotSaved->setText(
            tr("The iconset was not saved. %1").arg(QString::fromStdString(failure.what())));
        m_ui->lblNotSaved->setVisible(true);
        m_noteIsOfDocument = false;
        return false;
    }
}

} // namespace vypx
