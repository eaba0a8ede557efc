#include "forms/main/PictureCommands.h"

#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "forms/imaging/ClipboardPicture.h"
#include "forms/imaging/PictureFile.h"
#include "forms/imaging/frmCrop.h"
#include "imaging/BulkRemoval.h"
#include "imaging/LowRes.h"
#include "imaging/Paste.h"
#include "imaging/Undo.h"
#include "pictures/PictureLoader.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QElapsedTimer>

namespace vypx {

namespace {

struct SlotCommand {
    Command command;
    const vypx::Slot& slot;
    void (PictureCommands::*act)(const vypx::Slot&);
};

const SlotCommand SlotCommands[] = {
    { Command::ImportLG, SlotLG, &PictureCommands::Import },
    { Command::ImportSM, SlotSM, &PictureCommands::Import },
    { Command::DeleteLG, SlotLG, &PictureCommands::Delete },
    { Command::DeleteSM, SlotSM, &PictureCommands::Delete },
    { Command::UndoLG, SlotLG, &PictureCommands::Undo },
    { Command::UndoSM, SlotSM, &PictureCommands::Undo },
    { Command::MenuUndoLG, SlotLG, &PictureCommands::Undo },
    { Command::MenuUndoSM, SlotSM, &PictureCommands::Undo },
    { Command::RemoveHighRes, SlotLG, &PictureCommands::RemoveAll },
    { Command::RemoveLowRes, SlotSM, &PictureCommands::RemoveAll },
};

QString AllPicturesFilter()
{
    QStringList patterns;
    for (const std::string& ending : PictureEndings())
        patterns << "*." + QString::fromStdString(ending);
    return QObject::tr("All Pictures (%1)").arg(patterns.join(' '));
}

/// At once, before what takes long.
void Show(QLabel& note)
{
    note.setVisible(true);
    QCoreApplication::processEvents();
}

} // namespace

PictureCommands::PictureCommands(const View& view, Ask& ask, BusyGuard& busy, IconCommands& icons,
    SavedSettings& settings, const SettingsWindows& windows, ViewEntries& views)
    : m_view(view)
    , m_ask(ask)
    , m_busy(busy)
    , m_icons(icons)
    , m_settings(settings)
    , m_windows(windows)
    , m_views(views)
{
    for (const SlotCommand& row : SlotCommands)
        view.commands.Connect(row.command, this, [this, &row] { (this->*row.act)(row.slot); });
    view.commands.Connect(Command::CreateLowRes, this, &PictureCommands::CreateLowRes);
}

/// One command: no input gets in but to its own boxes, and what fails beyond what it expects is
/// told in a box.
void PictureCommands::Run(const std::function<void()>& work)
{
    if (m_busy.IsBusy())
        return;
    const QPointer<QWidget> focus = QApplication::focusWidget();
    m_view.notes.Tell(Notes::Kind::Picture, {});
    QElapsedTimer since;
    since.start();
    m_busy.Run([&] {
        Guard(work);
        constexpr int Noticeable = 100; // milliseconds
        if (m_view.working.isVisible() || since.hasExpired(Noticeable))
            QCoreApplication::processEvents(); // what was typed meanwhile goes nowhere
        m_view.working.setVisible(false);
    });
    m_view.status.ShowTitle();
    KeepFocus(focus);
}

void PictureCommands::Guard(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& fault) {
        Message(tr("The picture was not changed.").toStdString() + '\n' + fault.what(), {});
    }
}

/// A button that its own use disables hands the focus on, and the next press of a key would use
/// another command.
void PictureCommands::KeepFocus(QWidget* before)
{
    const bool isUsable = before && before->isEnabled() && before->isVisible();
    if (before && !isUsable && m_view.form.isAncestorOf(before))
        m_view.tree.setFocus();
}

void PictureCommands::Import(const vypx::Slot& slot)
{
    Run([&] { ImportPicture(slot, *this); });
}

void PictureCommands::Paste(const vypx::Slot& slot)
{
    Run([&] { PasteImage(slot, *this); });
}

void PictureCommands::Delete(const vypx::Slot& slot)
{
    Run([&] { DeleteImage(slot, *this); });
}

void PictureCommands::Undo(const vypx::Slot& slot)
{
    Run([&] { UndoChange(slot, *this); });
}

void PictureCommands::CreateLowRes()
{
    Run([&] {
        const Box question{ .text = "Are you sure you want to replace the current low res image?",
            .title = "Replace Low Res Image?",
            .icon = QMessageBox::Warning,
            .buttons = QMessageBox::Ok | QMessageBox::Cancel };
        if (LowResPath.empty() || m_ask.Show(&m_view.form, question) == QMessageBox::Ok)
            ReplaceLowRes(*this);
    });
}

void PictureCommands::RemoveAll(const vypx::Slot& slot)
{
    Run([&] {
        const auto answer = m_ask.Show(&m_view.form,
            { .text = FromLatin1(slot.removalText),
                .title = FromLatin1(slot.removalTitle),
                .icon = QMessageBox::Information,
                .buttons = QMessageBox::Yes | QMessageBox::No });
        if (answer != QMessageBox::Yes)
            return;
        RemoveAllImages(slot);
        m_views.ShowAfterRemoval(slot);
        ForgetPictureOnShow(slot);
        PanelOf(m_view.panels, slot).ClearImage();
        m_view.commands.Enable(slot.ofStored, false);
        m_view.commands.Enable(slot.ofUndo, false);
        m_icons.UpdateIconStats(); // who listens may ask for the picture on show
    });
}

std::string PictureCommands::ChoosePicture()
{
    OpenQuestion question{
        .title = tr("Import Picture"),
        .folder = {},
        .filters = { "Image File (*.bmp *.jpg *.gif)", AllPicturesFilter() },
    };
    if (UseLastDirs && DirExists(LastDirImageLoad))
        question.folder = PathText(LastDirImageLoad);
    return m_ask.OpenFile(&m_view.form, question).toStdString();
}

bool PictureCommands::TakesDropped(const std::string& path) const { return HasPictureEnding(path); }

LoadedPicture PictureCommands::Load(const std::string& path)
{
    if (PixelsClaimed(path) > ManyPixels)
        Show(m_view.working);
    return LoadPicture(path);
}

std::function<LoadedPicture()> PictureCommands::ClipboardPicture()
{
    return PictureOnClipboard([this] { Show(m_view.working); });
}

ColorDepth PictureCommands::Depth() const { return m_windows.DepthOfDocument(); }

void PictureCommands::Message(std::string_view text, std::string_view title)
{
    Box box{ .text = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())) };
    box.text.replace("\r\n", "\n"); // as boxes break their lines
    if (!title.empty())
        box.title = FromLatin1(title);
    m_ask.Show(&m_view.form, box);
}

void PictureCommands::Note(const std::string& text)
{
    m_view.notes.Tell(Notes::Kind::Picture, QString::fromStdString(text));
}

void PictureCommands::FolderRemembered() { m_settings.Save(); }

void PictureCommands::Enable(std::span<const Command> commands, bool on)
{
    m_view.commands.Enable(commands, on);
}

void PictureCommands::ShowColour(const vypx::Slot& slot, Rgb colour)
{
    PanelOf(m_view.panels, slot).ShowMask(colour);
}

void PictureCommands::ClearPanel(const vypx::Slot& slot)
{
    PanelOf(m_view.panels, slot).ClearImage();
}

void PictureCommands::Draw(const vypx::Slot& slot) { PanelOf(m_view.panels, slot).Draw(); }

void PictureCommands::ShowCrop(const vypx::Slot& slot)
{
    if (m_crop)
        m_crop->close();
    const frmCrop::Doors doors{
        .run = [this](const std::function<void()>& work) { Run(work); },
        .import = [this](const CropTask& task) { ImportCropped(task); },
    };
    m_crop = new frmCrop(slot, Depth(), m_ask, doors, m_view.form);
    Guard([this] { m_crop->Open(); });
}

void PictureCommands::ImportCropped(const CropTask& task)
{
    if (task.HandOver())
        ImportPicture(task.ForSlot(), *this);
    else
        m_view.notes.Tell(Notes::Kind::Picture,
            tr("The picture was not imported: its icon is not selected any more."));
}

void PictureCommands::StatsChanged() { m_icons.ShowCount(); }

} // namespace vypx
