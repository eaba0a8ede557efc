#include "forms/Commands.h"

#include "forms/Text.h"

#include <QAction>
#include <QWidget>
#include <algorithm>
#include <array>

namespace vypx {

namespace {

/// The commands that are not built yet. A row goes when its command comes, the table with the last.
constexpr std::array NotBuiltYet{
    std::string_view("cmdAddIcon"),
    std::string_view("cmdAssignApp"),
    std::string_view("cmdEditAppList"),
    std::string_view("cmdImportLG"),
    std::string_view("cmdSaveLG"),
    std::string_view("cmdCopyClipLG"),
    std::string_view("cmdPastePicLG"),
    std::string_view("cmdDelLG"),
    std::string_view("cmdUndoLG"),
    std::string_view("cmdChangeTC_LG"),
    std::string_view("cmdCreateLowRes"),
    std::string_view("cmdImportSM"),
    std::string_view("cmdSaveSM"),
    std::string_view("cmdCopyClipSM"),
    std::string_view("cmdPastePicSM"),
    std::string_view("cmdDelSM"),
    std::string_view("cmdUndoSM"),
    std::string_view("cmdChangeTC_SM"),
    std::string_view("mnuSaveandInstall"),
    std::string_view("mnuLoadTemplate"),
    std::string_view("mnuExportTemplate"),
    std::string_view("mnuShowPrevOpt"),
    std::string_view("mnuShowIconStats"),
    std::string_view("mnuShowShared"),
    std::string_view("mnuRemoveLR"),
    std::string_view("mnuRemoveHR"),
    std::string_view("mnuTips"),
    std::string_view("mnuManual"),
    std::string_view("mnuAbout"),
    std::string_view("mnuArrangeWin"),
    std::string_view("mnuUndo_LG"),
    std::string_view("mnuCopyLG"),
    std::string_view("mnuPasteLG"),
    std::string_view("mnuUndo_SM"),
    std::string_view("mnuCopySM"),
    std::string_view("mnuPasteSM"),
};

} // namespace

bool IsNotBuiltYet(std::string_view command)
{
    return std::find(NotBuiltYet.begin(), NotBuiltYet.end(), command) != NotBuiltYet.end();
}

void EnableCommand(QWidget& window, std::string_view command, bool on)
{
    const bool enabled = on && !IsNotBuiltYet(command);
    if (auto* control = window.findChild<QWidget*>(Shown(command)))
        control->setEnabled(enabled);
    if (auto* entry = window.findChild<QAction*>(Shown(command)))
        entry->setEnabled(enabled);
}

bool CommandIsEnabled(const QWidget& window, std::string_view command)
{
    if (const auto* control = window.findChild<QWidget*>(Shown(command)))
        return control->isEnabled();
    const auto* entry = window.findChild<QAction*>(Shown(command));
    return entry && entry->isEnabled();
}

void DisableWhatIsNotBuilt(QWidget& window)
{
    for (const std::string_view command : NotBuiltYet)
        EnableCommand(window, command, false);
}

} // namespace vypx
