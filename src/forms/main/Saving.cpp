#include "forms/main/Saving.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"
#include "writer/TemplateExport.h"

namespace vypx {

namespace {

constexpr const char* NoImages = "Can't save. The iconset doesn't contain any images.";

} // namespace

QString FolderToSaveIn(bool takesLast)
{
    if (takesLast && DirExists(LastDirIconsetSave))
        return PathText(LastDirIconsetSave);
    const std::string ofIconset = FolderOf(FileName);
    return DirExists(ofIconset) ? PathText(ofIconset) : QString();
}

Saving::Saving(const View& view, Ask& ask, IconCommands& icons, SavedSettings& settings,
    const SettingsWindows& windows)
    : m_view(view)
    , m_ask(ask)
    , m_icons(icons)
    , m_settings(settings)
    , m_windows(windows)
{
    view.commands.Connect(Command::Save, this, &Saving::SaveIconset);
    view.commands.Connect(Command::SaveAs, this, &Saving::SaveAs);
}

void Saving::Message(std::string_view text)
{
    m_ask.Show(&m_view.form, { .text = FromLatin1(text) });
}

SaveEnd Saving::SaveIconset()
{
    if (!PassesChecks())
        return SaveEnd::Refused;
    const SaveEnd end = FileName.empty() ? SaveNewIconset() : SaveToKnownName();
    m_view.status.ShowTitle();
    return end;
}

bool Saving::PassesChecks()
{
    m_icons.FinishName();
    const std::optional<std::string_view> why = WhyNotSaved();
    if (why)
        Message(*why);
    return !why;
}

SaveEnd Saving::SaveToKnownName()
{
    if (NamedFileExists(FileName) && WarnOverwrite) {
        const auto answer = m_ask.Show(&m_view.form,
            { .text = "About to overwrite the existing file.\nAre you sure?",
                .title = "Overwrite file?",
                .icon = QMessageBox::Warning,
                .buttons = QMessageBox::Yes | QMessageBox::No });
        if (answer != QMessageBox::Yes)
            return SaveEnd::Refused;
    }
    if (!HasNormalImages()) {
        Message(NoImages);
        return SaveEnd::Refused;
    }
    SavingAs = false;
    if (!Compile())
        return SaveEnd::Failed;
    IconsetChanged = false;
    return SaveEnd::Saved;
}

/// On purpose: unlike Save As, this takes the document for unchanged before it is written, and goes
/// on without a name.
SaveEnd Saving::SaveNewIconset()
{
    if (!HasNormalImages()) {
        Message(NoImages);
        return SaveEnd::Refused;
    }
    SavingAs = true;
    const std::optional<std::string> path = ChooseTarget();
    if (!path)
        return SaveEnd::Failed;
    NameFile(*path);
    if (FileName.empty())
        Message("Can't save. Filename not specified.");
    TakeTargetFolder();
    IconsetChanged = false;
    SavingAs = true;
    if (!Compile())
        return SaveEnd::Failed;
    SavingAs = false;
    return SaveEnd::Saved;
}

void Saving::SaveAs()
{
    if (!PassesChecks())
        return;
    SavingAs = true;
    const std::optional<std::string> path = ChooseTarget();
    if (!path)
        return;
    NameFile(*path);
    TakeTargetFolder();
    SavingAs = true;
    if (!Compile())
        return;
    IconsetChanged = false;
    SavingAs = false;
    m_view.status.ShowTitle();
}

/// Empty when the dialog was cancelled.
std::optional<std::string> Saving::ChooseTarget()
{
    const SaveQuestion question{
        .title = tr("Save Iconset"),
        .folder = FolderToSaveIn(UseLastDirs),
        .filters = { "Vantry Iconset (*.prc *.pdb)" },
        // On purpose: the template's ending on this dialog too.
        .defaultEnding = "vpt",
    };
    const std::optional<QString> chosen = m_ask.SaveFile(&m_view.form, question);
    if (!chosen)
        return std::nullopt;
    return chosen->toStdString();
}

/// What was loaded as a template was so from its own file: another one may hold pictures already,
/// also where the save fails.
void Saving::NameFile(const std::string& path)
{
    LoadedAsTemplate = LoadedAsTemplate && IsOpenFile(path);
    FileName = path;
}

void Saving::TakeTargetFolder()
{
    LastDirIconsetSave = FolderOf(FileName);
    m_settings.Save();
    m_view.status.ShowFileName(FileName);
    m_view.status.ShowTitle();
    emit FileNamed();
}

/// Writes the iconset. A failure shows no box but a note that stays until a save succeeds; the old
/// file stands. The note about what the next load will show otherwise goes with the document.
bool Saving::Compile()
{
    try {
        CompileTarget target = TargetFromFlags();
        target.depth = m_windows.DepthOfDocument();
        const std::string note = NoteOf(CompileIconset(target));
        LoadedAsTemplate = false; // whatever its ending, the file holds pictures now
        m_view.notes.SaveSucceeded();
        m_view.notes.Tell(Notes::Kind::Install, {}); // which was about the file before
        m_view.notes.Tell(Notes::Kind::Save, FromLatin1(note));
        return true;
    } catch (const std::exception& failure) {
        m_view.notes.Tell(Notes::Kind::Save, {}); // of an earlier one
        m_view.notes.SaveFailed(QString::fromStdString(failure.what()));
        return false;
    }
}

} // namespace vypx
