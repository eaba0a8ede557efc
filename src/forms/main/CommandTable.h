#pragma once

#include "document/Command.h"

#include <QKeySequence>
#include <span>

namespace vypx {

/// When a command can be used; within that the steps of other commands decide.
enum class When {
    Always,
    Document, ///< while a document is open
    Icon,     ///< by the selected icon and its pictures
    Root,     ///< while the root is selected
};

/// A command and its control. The one place for names, captions and keys of commands.
struct CommandRow {
    Command command;
    const char* name;    ///< of the button, menu entry or panel
    const char* caption; ///< empty: the control has none, or its own
    QKeySequence keys;
    When when;
    bool isCheckable = false;
};

/// Every command, in the order of the enumeration.
std::span<const CommandRow> CommandRows();

const CommandRow& RowOf(Command command);

} // namespace vypx
