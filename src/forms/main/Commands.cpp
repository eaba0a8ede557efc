#include "forms/main/Commands.h"

#include <stdexcept>

namespace vypx {

Commands::Commands(QWidget& frame, QWidget& form)
{
    for (const CommandRow& row : CommandRows()) {
        Control control;
        for (QWidget* place : { &frame, &form })
            if (!control.entry)
                control.entry = place->findChild<QAction*>(row.name);
        control.widget = control.entry ? nullptr : form.findChild<QWidget*>(row.name);
        control.button = qobject_cast<QAbstractButton*>(control.widget);
        if (!control.entry && !control.widget)
            throw std::logic_error(row.name);
        if (control.button) {
            control.button->setText(row.caption);
        }
        m_controls.push_back(control);
        Enable(row.command, row.when == When::Always);
    }
}

void Commands::Enable(Command command, bool on)
{
    Control& control = m_controls[static_cast<std::size_t>(command)];
    control.isWanted = on;
    Apply(control);
}

void Commands::Hold(std::initializer_list<Command> commands, bool on)
{
    for (const Command command : commands) {
        Control& control = m_controls[static_cast<std::size_t>(command)];
        control.isHeld = on;
        Apply(control);
    }
}

void Commands::Apply(const Control& control)
{
    const bool enabled = control.isWanted && !control.isHeld;
    if (control.widget)
        control.widget->setEnabled(enabled);
    else
        control.entry->setEnabled(enabled);
}

void Commands::Enable(std::initializer_list<Command> commands, bool on)
{
    Enable(std::span(commands.begin(), commands.size()), on);
}

void Commands::Enable(std::span<const Command> commands, bool on)
{
    for (const Command command : commands)
        Enable(command, on);
}

void Commands::Enable(When when, bool on)
{
    for (const CommandRow& row : CommandRows())
        if (row.when == when)
            Enable(row.command, on);
}

bool Commands::IsEnabled(Command command) const
{
    const Control& control = ControlOf(command);
    return control.widget ? control.widget->isEnabled() : control.entry->isEnabled();
}

} // namespace vypx
