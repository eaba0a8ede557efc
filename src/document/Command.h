#pragma once

namespace vypx {

/// Everything that the user can have the main form do by a button or a menu entry. The windows
/// know the controls (forms/main/CommandTable.h); what is decided here is decided in commands.
enum class Command {
    // File
    New,
    Open,
    CloseIconset,
    Save,
    SaveAs,
    SaveAndInstall,
    LoadTemplate,
    ExportTemplate,
    Exit,
    // View
    ShowPreviewOptions,
    ShowIconStats,
    ShowShared,
    ShowBoth,
    HideLowRes,
    HideHighRes,
    // Edit, Setup, Help, Window
    RemoveLowRes,
    RemoveHighRes,
    Options,
    Tips,
    Manual,
    About,
    ArrangeWindows,
    // Below the tree
    AddIcon,
    AssignApp,
    RemoveIcon,
    ClearDeleted,
    ChangeDatabaseName,
    EditAppList,
    // High-res panel, and its pop-up menu
    PanelLG, ///< the panel itself, with all that is in it
    ImportLG,
    ExportLG,
    CopyLG,
    PasteLG,
    DeleteLG,
    UndoLG,
    ChangeColourLG,
    CreateLowRes,
    MenuUndoLG,
    MenuCopyLG,
    MenuPasteLG,
    // Low-res panel, and its pop-up menu
    PanelSM,
    ImportSM,
    ExportSM,
    CopySM,
    PasteSM,
    DeleteSM,
    UndoSM,
    ChangeColourSM,
    MenuUndoSM,
    MenuCopySM,
    MenuPasteSM,
};

} // namespace vypx
