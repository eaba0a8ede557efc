#include "forms/main/CommandTable.h"

#include <vector>

namespace vypx {

namespace {

std::vector<CommandRow> Rows()
{
    using enum Command;
    const QKeySequence none;
    // clang-format off
    return {
        { New, "mnuNew", "&New Iconset", QKeySequence::New, When::Always },
        { Open, "mnuOpen", "&Open IconSet", QKeySequence::Open, When::Always },
        { CloseIconset, "mnuCloseIconset", "&Close Iconset", QKeySequence::Close, When::Document },
        { Save, "mnuSave", "&Save", QKeySequence::Save, When::Document },
        { SaveAs, "mnuSaveAs", "S&ave As", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), When::Document },
        { SaveAndInstall, "mnuSaveandInstall", "Save and &Install", none, When::Document },
        { LoadTemplate, "mnuLoadTemplate", "&Load Template", none, When::Always },
        { ExportTemplate, "mnuExportTemplate", "&Export Template", none, When::Document },
        // No key: it asks nothing, and Ctrl+Q is beside Ctrl+W.
        { Exit, "mnuExit", "&Exit", none, When::Always },
        { ShowPreviewOptions, "mnuShowPrevOpt", "Show Preview Options", none, When::Always, true },
        { ShowIconStats, "mnuShowIconStats", "Show Icon Stats", none, When::Always, true },
        { ShowShared, "mnuShowShared", "Show Shared Icons", none, When::Always, true },
        { ShowBoth, "mnuShowBoth", "Show &Both High and Low Res Icons", none, When::Always, true },
        { HideLowRes, "mnuHideLowRes", "Show Only &High Res Icons", none, When::Always, true },
        { HideHighRes, "mnuHideHighRes", "Show Only &Low Res Icons", none, When::Always, true },
        { RemoveLowRes, "mnuRemoveLR", "Remove All Low Res Images", none, When::Document },
        { RemoveHighRes, "mnuRemoveHR", "Remove All High Res Images", none, When::Document },
        { Options, "mnuOptions", "&Program Options", none, When::Always },
        { Tips, "mnuTips", "&Tip of the Day", none, When::Always },
        { Manual, "mnuManual", "&Show VY Pixelworks Help", none, When::Always },
        { About, "mnuAbout", "About VY Pixelworks", none, When::Always },
        { ArrangeWindows, "mnuArrangeWin", "&Arrange Windows", none, When::Always },
        { AddIcon, "cmdAddIcon", "Add Icon", none, When::Document },
        { AssignApp, "cmdAssignApp", "Change / Share", none, When::Icon },
        { RemoveIcon, "cmdRemoveIcon", "&Remove Selected", none, When::Icon },
        { ClearDeleted, "cmdClrDeleted", "Clear &Deleted", none, When::Icon },
        { ChangeDatabaseName, "cmdChangeDataBaseName", "Change Palm Iconset Name", none, When::Root },
        { EditAppList, "cmdEditAppList", "Edit App List", none, When::Always },
        { PanelLG, "frameLG", "", none, When::Always },
        { ImportLG, "cmdImportLG", "&Import...", none, When::Icon },
        { ExportLG, "cmdSaveLG", "E&xport...", none, When::Icon },
        { CopyLG, "cmdCopyClipLG", "&Copy", none, When::Icon },
        { PasteLG, "cmdPastePicLG", "&Paste", none, When::Icon },
        { DeleteLG, "cmdDelLG", "De&lete", none, When::Icon },
        { UndoLG, "cmdUndoLG", "&Undo", none, When::Icon },
        { ChangeColourLG, "cmdChangeTC_LG", "Chan&ge...", none, When::Icon },
        { CreateLowRes, "cmdCreateLowRes", "Create Low Res", none, When::Icon },
        { MenuUndoLG, "mnuUndo_LG", "Undo", none, When::Icon },
        { MenuCopyLG, "mnuCopyLG", "Copy", none, When::Icon },
        { MenuPasteLG, "mnuPasteLG", "Paste", none, When::Icon },
        { PanelSM, "frameSM", "", none, When::Always },
        { ImportSM, "cmdImportSM", "I&mport...", none, When::Icon },
        { ExportSM, "cmdSaveSM", "Exp&ort...", none, When::Icon },
        { CopySM, "cmdCopyClipSM", "Cop&y", none, When::Icon },
        { PasteSM, "cmdPastePicSM", "P&aste", none, When::Icon },
        { DeleteSM, "cmdDelSM", "Dele&te", none, When::Icon },
        { UndoSM, "cmdUndoSM", "U&ndo", none, When::Icon },
        { ChangeColourSM, "cmdChangeTC_SM", "Change...", none, When::Icon },
        { MenuUndoSM, "mnuUndo_SM", "Undo", none, When::Icon },
        { MenuCopySM, "mnuCopySM", "Copy", none, When::Icon },
        { MenuPasteSM, "mnuPasteSM", "Paste", none, When::Icon },
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
