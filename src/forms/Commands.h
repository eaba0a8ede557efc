#pragma once

#include <string_view>

class QWidget;

namespace vypx {

/// Whether a command, by its control's name, waits for code that is not written yet. Such commands
/// stay disabled whatever a step says.
bool IsNotBuiltYet(std::string_view command);

/// Enables or disables the button, group or menu entry of that name in the window.
/// The one way to do so for a command.
void EnableCommand(QWidget& window, std::string_view command, bool on);

/// Whether the command can be used now.
bool CommandIsEnabled(const QWidget& window, std::string_view command);

/// Disables what is not built yet; once, when the window has its controls.
void DisableWhatIsNotBuilt(QWidget& window);

} // namespace vypx
