#include "forms/main/Installing.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "install/InstallResult.h"
#include "install/InstallWay.h"
#include "settings/Settings.h"

#include <QGuiApplication>

namespace vypx {

namespace {

constexpr std::string_view NoWay = "Error! InstAide.dll is missing.";
constexpr std::string_view NoUser =
    "No Palm User ID has been set.\n"
    "Please add your Palm User ID in the Program Option Screen under the Setup menu.";

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

/// Queues the saved iconset. On purpose: the way may rewrite the user's name and the path.
std::int16_t Queue(InstallWay& way)
{
    const WaitCursor waiting; // another program may have its turn
    try {
        return way.Install(PalmUserID, FileName);
    } catch (const std::exception&) {
        return InstallResult::Unknown;
    }
}

} // namespace

Installing::Installing(const View& view, Ask& ask, Saving& saving)
    : m_view(view)
    , m_ask(ask)
    , m_saving(saving)
{
    view.commands.Connect(Command::SaveAndInstall, this, &Installing::mnuSaveandInstall_Click);
}

/// On purpose: a save that is refused goes on with the file as it stands on disk.
void Installing::mnuSaveandInstall_Click()
{
    m_view.notes.Tell(Notes::Kind::Install, {});
    const std::unique_ptr<InstallWay> way = ChooseInstallWay(PlacesForInstall());
    if (!way) {
        Message(NoWay);
        return;
    }
    if (way->UsesUser() && PalmUserID.empty()) {
        Message(NoUser);
        return;
    }
    const SaveEnd end = m_saving.SaveIconset();
    if (end == SaveEnd::Failed || !FileLoaded || !NamedFileExists(FileName))
        return;
    const std::int16_t result = Queue(*way);
    ShowForm();
    if (result == InstallResult::Queued) {
        m_ask.Beep();
        TellQueued(end, way->WhatNext(PalmUserID, FileName));
    } else {
        Message(InstallMessage(result));
    }
}

void Installing::Message(std::string_view text)
{
    m_ask.Show(&m_view.form, { .text = FromLatin1(text) });
}

void Installing::ShowForm()
{
    m_view.status.ShowFileName(FileName);
    m_view.status.ShowTitle();
    m_view.form.repaint();
}

void Installing::TellQueued(SaveEnd end, const std::string& whatNext)
{
    QString text = tr("%1 is queued.").arg(PathText(LastComponent(FileName)));
    if (end == SaveEnd::Refused)
        text += " " + tr("Nothing was saved now: it is the file as it stands on disk.");
    if (LoadedAsTemplate)
        text += " " + tr("It is a template: its icons are empty.");
    m_view.notes.Tell(Notes::Kind::Install, text + " " + QString::fromStdString(whatNext));
}

} // namespace vypx
