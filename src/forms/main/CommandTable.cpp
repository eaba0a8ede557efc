#include "forms/main/CommandTable.h"

#include <vector>

namespace vypx {

namespace {

constexpr bool Built = true, NotBuiltYet = false;

std::vector<CommandRow> Rows()
{
    using enum Command;
    const QKeySequence none;
    // clang-format off
    return {
        { New, "mnuNew", "&New Iconset", QKeySequence::New, Built, When::Always },
        { Open, "mnuOpen", "&Open IconSet", QKeySequence::Open, Built, When::Always },
        { CloseIconset, "mnuCloseIconset", "&Close Iconset", QKeySequence::Close, Built, When::Document },
        { Save, "mnuSave", "&Save", QKeySequence::Save, Built, When::Document },
        { SaveAs, "mnuSaveAs", "S&ave As", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), Built, When::Document },
        { SaveAndInstall, "mnuSaveandInstall", "Save and &Install", none, Built, When::Document },
        { LoadTemplate, "mnuLoadTemplate", "&Load Template", none, Built, When::Always },
        { ExportTemplate, "mnuExportTemplate", "&Export Template", none, Built, When::Document },
        // No key: it asks nothing, and Ctrl+Q is beside Ctrl+W.
        { Exit, "mnuExit", "&Exit", none, Built, When::Always },
        { ShowPreviewOptions, "mnuShowPrevOpt", "Show Preview Options", none, Built, When::Always, true },
        { ShowIconStats, "mnuShowIconStats", "Show Icon Stats", none, Built, When::Always, true },
        { ShowShared, "mnuShowShared", "Show Shared Icons", none, Built, When::Always, true },
        { ShowBoth, "mnuShowBoth", "Show &Both High and Low Res Icons", none, Built, When::Always, true },
        { HideLowRes, "mnuHideLowRes", "Show Only &High Res Icons", none, Built, When::Always, true },
        { HideHighRes, "mnuHideHighRes", "Show Only &Low Res Icons", none, Built, When::Always, true },
        { RemoveLowRes, "mnuRemoveLR", "Remove All Low Res Images", none, Built, When::Document },
        { RemoveHighRes, "mnuRemoveHR", "Remove All High Res Images", none, Built, When::Document },
        { Options, "mnuOptions", "&Program Options", none, Built, When::Always },
        { Tips, "mnuTips", "&Tip of the Day", none, Built, When::Always },
        { Manual, "mnuManual", "&Show VY Pixelworks Help", none, NotBuiltYet, When::Always },
        { About, "mnuAbout", "About VY Pixelworks", none, Built, When::Always },
        { ArrangeWindows, "mnuArrangeWin", "&Arrange Windows", none, Built, When::Always },
        { AddIcon, "cmdAddIcon", "Add Icon", none, Built, When::Document },
        { AssignApp, "cmdAssignApp", "Change / Share", none, Built, When::Icon },
        { RemoveIcon, "cmdRemoveIcon", "&Remove Selected", none, Built, When::Icon },
        { ClearDeleted, "cmdClrDeleted", "Clear &Deleted", none, Built, When::Icon },
        { ChangeDatabaseName, "cmdChangeDataBaseName", "Change Palm Iconset Name", none, Built, When::Root },
        { EditAppList, "cmdEditAppList", "Edit App List", none, Built, When::Always },
        { PanelLG, "frameLG", "", none, Built, When::Always },
        { ImportLG, "cmdImportLG", "&Import...", none, Built, When::Icon },
        { ExportLG, "cmdSaveLG", "E&xport...", none, Built, When::Icon },
        { CopyLG, "cmdCopyClipLG", "&Copy", none, Built, When::Icon },
        { PasteLG, "cmdPastePicLG", "&Paste", none, Built, When::Icon },
        { DeleteLG, "cmdDelLG", "De&lete", none, Built, When::Icon },
        { UndoLG, "cmdUndoLG", "&Undo", none, Built, When::Icon },
        { ChangeColourLG, "cmdChangeTC_LG", "Chan&ge...", none, Built, When::Icon },
        { CreateLowRes, "cmdCreateLowRes", "Create Low Res", none, Built, When::Icon },
        { MenuUndoLG, "mnuUndo_LG", "Undo", none, Built, When::Icon },
        { MenuCopyLG, "mnuCopyLG", "Copy", none, Built, When::Icon },
        { MenuPasteLG, "mnuPasteLG", "Paste", none, Built, When::Icon },
        { PanelSM, "frameSM", "", none, Built, When::Always },
        { ImportSM, "cmdImportSM", "I&mport...", none, Built, When::Icon },
        { ExportSM, "cmdSaveSM", "Exp&ort...", none, Built, When::Icon },
        { CopySM, "cmdCopyClipSM", "Cop&y", none, Built, When::Icon },
        { PasteSM, "cmdPastePicSM", "P&aste", none, Built, When::Icon },
        { DeleteSM, "cmdDelSM", "Dele&te", none, Built, When::Icon },
        { UndoSM, "cmdUndoSM", "U&ndo", none, Built, When::Icon },
        { ChangeColourSM, "cmdChangeTC_SM", "Change...", none, Built, When::Icon },
        { MenuUndoSM, "mnuUndo_SM", "Undo", none, Built, When::Icon },
        { MenuCopySM, "mnuCopySM", "Copy", none, Built, When::Icon },
        { MenuPasteSM, "mnuPasteSM", "Paste", none, Built, When::Icon },
    };
    // clang-format on
}

} // namespace

std::span<const CommandRow> CommandRows()
{
    static const std::vector<CommandRow> rows = Rows();
    return rows;
}

const CommandRow& RowOf(Command command)
{
    return CommandRows()[static_cast<std::size_t>(command)];
}

} // namespace vypx
