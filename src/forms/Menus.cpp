#include "forms/Menus.h"

#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <vector>

namespace vypx {

namespace {

struct Entry {
    const char* name;
    const char* caption = nullptr; ///< null: a separator
    QKeySequence keys = {};
    bool checkable = false;
    std::vector<Entry> submenu = {};
};

struct MenuRow {
    const char* name;
    const char* caption;
    std::vector<Entry> entries;
};

const std::vector<MenuRow>& MenuRows()
{
    static const std::vector<MenuRow> Rows{
        { "mnuFile", "&File",
            {
                { "mnuNew", "&New Iconset", QKeySequence::New },
                { "mnuOpen", "&Open IconSet", QKeySequence::Open },
                { "mnuCloseIconset", "&Close Iconset", QKeySequence::Close },
                { "mnuSave", "&Save", QKeySequence::Save },
                { "mnuSaveAs", "S&ave As", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S) },
                { "mnuSaveandInstall", "Save and &Install" }, { "break" },
                { "mnuLoadTemplate", "&Load Template" },
                { "mnuExportTemplate", "&Export Template" }, { "breakfiles1" },
                { "mnuExit", "&Exit" }, // no key: it asks nothing, and Ctrl+Q is beside Ctrl+W
            } },
        { "mnuView", "&View",
            {
                { "mnuShowPrevOpt", "Show Preview Options" },
                { "mnuShowIconStats", "Show Icon Stats" },
                { "mnuShowShared", "Show Shared Icons" },
                { "breakview" },
                { .name = "mnuShowBoth",
                    .caption = "Show &Both High and Low Res Icons",
                    .checkable = true },
                { .name = "mnuHideLowRes",
                    .caption = "Show Only &High Res Icons",
                    .checkable = true },
                { .name = "mnuHideHighRes",
                    .caption = "Show Only &Low Res Icons",
                    .checkable = true },
            } },
        { "mnuEdit", "&Edit",
            {
                { "mnuRemoveLR", "Remove All Low Res Images" },
                { "mnuRemoveHR", "Remove All High Res Images" },
            } },
        { "mnuSetup", "&Setup", { { "mnuOptions", "&Program Options" } } },
        { "mnuHelp", "&Help",
            {
                { "mnuTips", "&Tip of the Day" },
                { "mnuManual", "&Show VY Pixelworks Help" },
                { .name = "mnuAboutMenu",
                    .caption = "&About",
                    .submenu = { { "mnuAbout", "About VY Pixelworks" } } },
            } },
        { "mnuWindow", "&Window", { { "mnuArrangeWin", "&Arrange Windows" } } },
    };
    return Rows;
}

/// The pop-ups of the two panels; they stand in no menu bar.
const std::vector<MenuRow>& PopUpRows()
{
    static const std::vector<MenuRow> Rows{
        { "mnuCopyPasteLG", "CopyPasteLG",
            {
                { "mnuUndo_LG", "Undo" },
                { "breakundolg" },
                { "mnuCopyLG", "Copy" },
                { "mnuPasteLG", "Paste" },
            } },
        { "mnuCopyPasteSM", "CopyPasteSM",
            {
                { "mnuUndo_SM", "Undo" },
                { "breakundosm" },
                { "mnuCopySM", "Copy" },
                { "mnuPasteSM", "Paste" },
            } },
    };
    return Rows;
}

void FillMenu(QMenu& menu, const std::vector<Entry>& entries)
{
    for (const Entry& entry : entries) {
        if (!entry.submenu.empty()) {
            QMenu* const submenu = menu.addMenu(entry.caption);
            submenu->setObjectName(entry.name);
            FillMenu(*submenu, entry.submenu);
            continue;
        }
        QAction* const action = entry.caption ? menu.addAction(entry.caption) : menu.addSeparator();
        action->setObjectName(entry.name);
        action->setShortcut(entry.keys);
        action->setCheckable(entry.checkable);
    }
}

} // namespace

void MakeMenus(QMenuBar& bar, QWidget& owner)
{
    for (const MenuRow& row : MenuRows()) {
        QMenu* const menu = bar.addMenu(row.caption);
        menu->setObjectName(row.name);
        FillMenu(*menu, row.entries);
    }
    for (const MenuRow& row : PopUpRows()) {
        auto* const menu = new QMenu(row.caption, &owner);
        menu->setObjectName(row.name);
        FillMenu(*menu, row.entries);
    }
}

} // namespace vypx
