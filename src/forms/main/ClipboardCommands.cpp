#include "forms/main/ClipboardCommands.h"

#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "forms/imaging/ClipboardPicture.h"
#include "forms/main/Commands.h"
#include "forms/main/IconCommands.h"
#include "forms/main/PictureCommands.h"
#include "imaging/WorkingPicture.h"

#include <QMenu>

namespace vypx {

namespace {

struct CopyRow {
    Command command;
    void (ClipboardCommands::*act)();
};

constexpr CopyRow CopyRows[] = {
    { Command::CopyLG, &ClipboardCommands::CopyImageLG },
    { Command::MenuCopyLG, &ClipboardCommands::CopyImageLG },
    { Command::CopySM, &ClipboardCommands::CopyImageSM },
    { Command::MenuCopySM, &ClipboardCommands::CopyImageSM },
};

/// What a command does besides the paste.
struct PasteRow {
    Command command;
    const vypx::Slot& slot;
    bool marksDocument, countsIcons;
};

const PasteRow PasteRows[] = {
    { Command::PasteLG, SlotLG, true, false },
    { Command::PasteSM, SlotSM, true, true },
    { Command::MenuPasteLG, SlotLG, false, false },
    { Command::MenuPasteSM, SlotSM, false, false },
};

Command MenuCopyOf(const vypx::Slot& slot)
{
    return slot.letters == SlotLG.letters ? Command::MenuCopyLG : Command::MenuCopySM;
}

} // namespace

ClipboardCommands::ClipboardCommands(
    const View& view, Ask& ask, PictureCommands& pictures, IconCommands& icons)
    : m_view(view)
    , m_ask(ask)
{
    for (const CopyRow& row : CopyRows)
        view.commands.Connect(row.command, this, row.act);
    for (const PasteRow& row : PasteRows)
        view.commands.Connect(row.command, this, [&row, &pictures, &icons] {
            if (row.marksDocument)
                IconsetChanged = true;
            pictures.Paste(row.slot);
            if (row.countsIcons)
                icons.UpdateIconStats();
        });
    for (const ImagePanel* panel : view.panels)
        connect(panel, &ImagePanel::MenuAsked, this,
            [this, panel](const QPoint& place) { ShowMenu(*panel, place); });
}

void ClipboardCommands::CopyImageLG() { CopyImage(SlotLG); }

void ClipboardCommands::CopyImageSM() { CopyImage(SlotSM); }

void ClipboardCommands::CopyImage(const vypx::Slot& slot)
{
    if (slot.path.empty() || !FileExists(slot.path))
        return;
    std::optional<Picture> stored = ReadWorkingPicture(slot.path);
    if (!stored) {
        m_ask.Show(
            &m_view.form, { .text = tr("The picture was not copied: it can't be read any more.") });
        return;
    }
    picbuff = { .pixels = std::move(*stored) };
    PutOnClipboard(picbuff.pixels);
}

/// The menu key can come as a key and as the desktop's wish for a menu, one behind the other.
void ClipboardCommands::ShowMenu(const ImagePanel& panel, const QPoint& place)
{
    if (panel.Menu()->isVisible())
        return;
    m_view.commands.Enable(MenuCopyOf(panel.Shows()), panel.Shows().loaded);
    panel.Menu()->popup(place);
}

} // namespace vypx
