#include "forms/main/TemplateExporting.h"

#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "forms/main/Saving.h"
#include "writer/TemplateExport.h"

namespace vypx {

TemplateExporting::TemplateExporting(
    const View& view, Ask& ask, IconCommands& icons, const SettingsWindows& windows)
    : m_view(view)
    , m_ask(ask)
    , m_icons(icons)
    , m_windows(windows)
{
    view.commands.Connect(
        Command::ExportTemplate, this, &TemplateExporting::mnuExportTemplate_Click);
}

void TemplateExporting::mnuExportTemplate_Click()
{
    m_icons.FinishName();
    if (const auto why = WhyNotExported()) {
        Message(FromLatin1(*why));
        return;
    }
    const std::optional<std::string> path = ChooseTarget();
    if (!path)
        return;
    if (WouldReplaceOpenIconset(*path))
        Message(tr("%1 is the iconset that is open. A template can't take its place.\n"
                   "Please choose another name.")
                    .arg(PathText(LastComponent(*path))));
    else
        Export(*path);
}

void TemplateExporting::Message(const QString& text) { m_ask.Show(&m_view.form, { .text = text }); }

/// Empty when the dialog was cancelled. On purpose: it starts in the folder of the last save
/// whatever the options say, and does not change that folder.
std::optional<std::string> TemplateExporting::ChooseTarget()
{
    const std::optional<QString> chosen = m_ask.SaveFile(&m_view.form,
        { .title = tr("Export Template"),
            .folder = FolderToSaveIn(true),
            .filters = { "VYPX Template (*.vpt)" },
            .defaultEnding = "vpt",
            .addsEnding = true });
    if (!chosen)
        return std::nullopt;
    return chosen->toStdString();
}

/// A failure shows no box but a note that stays until an export succeeds or the document ends.
void TemplateExporting::Export(const std::string& path)
{
    m_view.notes.Tell(Notes::Kind::Template, {}); // of an earlier one
    try {
        const SaveReport report = ExportTemplate(path, m_windows.DepthOfDocument());
        m_view.notes.ExportSucceeded();
        const QString told = tr("The template was written to %1.").arg(PathText(path));
        m_view.notes.Tell(
            Notes::Kind::Template, (told + " " + FromLatin1(NoteOf(report))).trimmed());
    } catch (const std::exception& failure) {
        m_view.notes.ExportFailed(QString::fromStdString(failure.what()));
    }
}

} // namespace vypx
