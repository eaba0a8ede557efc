#include "forms/main/ExportCommands.h"

#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "imaging/Export.h"
#include "settings/Settings.h"

namespace vypx {

ExportCommands::ExportCommands(const View& view, Ask& ask, SavedSettings& settings)
    : m_view(view)
    , m_ask(ask)
    , m_settings(settings)
{
    view.commands.Connect(Command::ExportLG, this, [this] { Export(SlotLG); });
    view.commands.Connect(Command::ExportSM, this, [this] { Export(SlotSM); });
}

void ExportCommands::Export(const vypx::Slot& slot)
{
    m_view.notes.Tell(Notes::Kind::Picture, {});
    SaveQuestion question{
        .title = tr("Export Picture"),
        .folder = {},
        .filters = { "Windows BMP (*.bmp)" },
        .defaultEnding = "bmp",
    };
    if (UseLastDirs && DirExists(LastDirImageSave))
        question.folder = PathText(LastDirImageSave);
    const std::optional<QString> path = m_ask.SaveFile(&m_view.form, question);
    if (!path)
        return;
    const ExportReport report = ExportPicture(slot, path->toStdString());
    m_view.notes.Tell(Notes::Kind::Picture, QString::fromStdString(report.note));
    if (!report.message.empty())
        m_ask.Show(&m_view.form, { .text = QString::fromStdString(report.message) });
    else if (report.note.empty())
        m_settings.Save();
}

} // namespace vypx
