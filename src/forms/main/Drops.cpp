#include "forms/main/Drops.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "forms/imaging/PictureFile.h"
#include "forms/main/SettingsWindows.h"
#include "forms/main/frmDropIconTarget.h"
#include "pictures/PictureLoader.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QScopedValueRollback>

namespace vypx {

Drops::Drops(const View& view, Ask& ask, BusyGuard& busy, Doors doors)
    : m_view(view)
    , m_ask(ask)
    , m_busy(busy)
    , m_doors(std::move(doors))
{
    for (const DropTargetRow& target : DropTargets()) {
        const DropHandler handler{
            .isReady = [this] { return CanServe(); },
            .takes = [this, &target](const DraggedData& data) { return Takes(target, data); },
            .take = [this, &target](const DraggedData& data) { Serve(target, data); },
        };
        QWidget& control = *ControlNamed(target.control);
        TakeDrops(control, handler);
        if (auto* const scrolled = qobject_cast<QAbstractScrollArea*>(&control))
            TakeDrops(*scrolled->viewport(), handler);
    }
}

QWidget* Drops::ControlNamed(std::string_view name) const
{
    const QString wanted = FromLatin1(name);
    for (QWidget* window : { &m_view.frame, &m_view.form })
        if (window->objectName() == wanted)
            return window;
    return m_view.form.findChild<QWidget*>(wanted);
}

bool Drops::CanServe() const
{
    const bool searches = m_doors.isSearching && m_doors.isSearching();
    return !m_isServing && !m_busy.IsBusy() && !searches && m_view.frame.isEnabled()
        && !QApplication::activeModalWidget();
}

bool Drops::Takes(const DropTargetRow& target, const DraggedData& data) const
{
    return CanServe() && (!data.file.isEmpty() || (data.isPicture && CanPaste(target)));
}

bool Drops::CanPaste(const DropTargetRow& target) const
{
    return target.takesPicture && m_view.commands.IsEnabled(Command::PasteLG);
}

/// What was dropped is looked at a moment later, and the world may have changed.
void Drops::Serve(const DropTargetRow& target, const DraggedData& data)
{
    if (!Takes(target, data))
        return;
    const QScopedValueRollback<bool> serving(m_isServing, true);
    if (data.file.isEmpty()) {
        // On purpose: what the clipboard holds, and not what was dragged.
        if (m_doors.paste)
            m_doors.paste();
        return;
    }
    m_view.notes.Tell(Notes::Kind::Picture, {});
    DroppedFile = true;
    DroppedFileName = data.file.toStdString();
    if (target.destination)
        ServePanel(target);
    else
        ChkDragFile();
}

void Drops::ChkDragFile()
{
    const DropTargetRow& window = WindowTarget();
    if (HasDatabaseEnding(PathText(DroppedFileName), window.databases)) {
        OpenDropped(window.question);
        return;
    }
    DropLGEnabled = m_view.commands.IsEnabled(Command::ImportLG);
    DropSMEnabled = m_view.commands.IsEnabled(Command::ImportSM);
    DroppedFile = true;
    if (HasPictureEnding(DroppedFileName))
        ShowIconTarget();
    else // On purpose: DroppedFile stays, so the next import fails on the file.
        NoteOtherEnding(window);
}

void Drops::ServePanel(const DropTargetRow& target)
{
    const QString path = PathText(DroppedFileName);
    if (HasPictureEnding(DroppedFileName)) {
        if (const std::string_view why = WhyNotImported(target); !why.empty())
            m_ask.Show(&m_view.form, { .text = FromLatin1(why) });
        else
            m_doors.import(target.destination->slot);
    } else if (HasDatabaseEnding(path, target.databases)) {
        OpenDropped(target.question);
    } else if (!HasDatabaseEnding(path, WindowTarget().databases)) {
        NoteOtherEnding(target);
    }
    DroppedFile = false;
}

/// The message; empty where the picture can be imported.
std::string_view Drops::WhyNotImported(const DropTargetRow& target) const
{
    if (!target.noIcons.empty() && StatTotal == 0)
        return target.noIcons;
    const bool canImport = m_view.commands.IsEnabled(target.destination->import);
    return canImport ? std::string_view() : target.noneSelected;
}

void Drops::OpenDropped(const DropQuestion& question)
{
    const bool opens = !IconsetChanged
        || m_ask.Show(&m_view.form,
               { .text = FromLatin1(question.text),
                   .title = FromLatin1(question.title),
                   .icon = QMessageBox::Warning,
                   .buttons = QMessageBox::Ok | QMessageBox::Cancel })
            == QMessageBox::Ok;
    if (opens) {
        TemplateMode = false; // which a depth window may stand open for
        m_doors.load();
    }
    DroppedFile = false;
}

void Drops::ShowIconTarget()
{
    auto* const window = new frmDropIconTarget(m_view.panels, m_ask, m_doors.import, m_view.form);
    BringUp(*window); // the program that the file comes from is in front
}

void Drops::NoteOtherEnding(const DropTargetRow& target)
{
    QStringList endings;
    for (const std::string_view ending : target.databases)
        endings << FromLatin1(ending);
    for (const std::string& ending : PictureEndings())
        endings << QString::fromStdString(ending);
    m_view.notes.Tell(Notes::Kind::Picture,
        tr("%1 is neither an iconset nor a picture. Files with these endings can be dropped: %2.")
            .arg(PathText(LastComponent(DroppedFileName)), endings.join(", ")));
}

} // namespace vypx
