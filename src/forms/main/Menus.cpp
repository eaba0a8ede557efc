#include "forms/main/Menus.h"

#include "forms/main/CommandTable.h"

#include <QMenu>
#include <QMenuBar>
#include <optional>
#include <vector>

namespace vypx {

namespace {

/// A command, a separator, or a menu within the menu.
struct Entry {
    std::optional<Command> command = {};
    const char* separator = nullptr; ///< its name
    const char* submenu = nullptr;   ///< its name
    const char* caption = nullptr;   ///< of the submenu
    Command inSubmenu = {};          ///< its only entry

    Entry(Command it)
        : command(it)
    {
    }
    Entry(const char* separatorName)
        : separator(separatorName)
    {
    }
    Entry(const char* name, const char* words, Command only)
        : submenu(name)
        , caption(words)
        , inSubmenu(only)
    {
    }
};

struct MenuRow {
    const char* name;
    const char* caption;
    std::vector<Entry> entries;
};

const std::vector<MenuRow>& MenuRows()
{
    using enum Command;
    static const std::vector<MenuRow> Rows{
        { "mnuFile", "&File",
            { New, Open, CloseIconset, Save, SaveAs, SaveAndInstall, "break", LoadTemplate,
                ExportTemplate, "breakfiles1", Exit } },
        { "mnuView", "&View",
            { ShowPreviewOptions, ShowIconStats, ShowShared, "breakview", ShowBoth, HideLowRes,
                HideHighRes } },
        { "mnuEdit", "&Edit", { RemoveLowRes, RemoveHighRes } },
        { "mnuSetup", "&Setup", { Options } },
        { "mnuHelp", "&Help", { Tips, Manual, { "mnuAboutMenu", "&About", About } } },
        { "mnuWindow", "&Window", { ArrangeWindows } },
    };
    return Rows;
}

/// The pop-ups of the two panels; they stand in no menu bar.
const std::vector<MenuRow>& PopUpRows()
{
    using enum Command;
    static const std::vector<MenuRow> Rows{
        { "mnuCopyPasteLG", "CopyPasteLG", { MenuUndoLG, "breakundolg", MenuCopyLG, MenuPasteLG } },
        { "mnuCopyPasteSM", "CopyPasteSM", { MenuUndoSM, "breakundosm", MenuCopySM, MenuPasteSM } },
    };
    return Rows;
}

void AddCommand(QMenu& menu, Command command)
{
    const CommandRow& row = RowOf(command);
    QAction* const entry = menu.addAction(row.caption);
    entry->setObjectName(row.name);
    entry->setShortcut(row.keys);
    entry->setCheckable(row.isCheckable);
}

void FillMenu(QMenu& menu, const std::vector<Entry>& entries)
{
    for (const Entry& entry : entries) {
        if (entry.command) {
            AddCommand(menu, *entry.command);
        } else if (entry.separator) {
            menu.addSeparator()->setObjectName(entry.separator);
        } else {
            QMenu* const submenu = menu.addMenu(entry.caption);
            submenu->setObjectName(entry.submenu);
            AddCommand(*submenu, entry.inSubmenu);
        }
    }
}

} // namespace

void MakeMenus(QMenuBar& bar)
{
    for (const MenuRow& row : MenuRows()) {
        QMenu* const menu = bar.addMenu(row.caption);
        menu->setObjectName(row.name);
        FillMenu(*menu, row.entries);
    }
}

QMenu* MakePopUp(const QString& letters, QWidget& owner)
{
    for (const MenuRow& row : PopUpRows()) {
        if (!QString(row.name).endsWith(letters))
            continue;
        auto* const menu = new QMenu(row.caption, &owner);
        menu->setObjectName(row.name);
        FillMenu(*menu, row.entries);
        return menu;
    }
    return nullptr;
}

} // namespace vypx
