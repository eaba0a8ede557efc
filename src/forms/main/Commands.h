#pragma once

#include "forms/main/CommandTable.h"

#include <QAbstractButton>
#include <QAction>
#include <QWidget>
#include <initializer_list>
#include <span>
#include <vector>

namespace vypx {

/// The controls of all commands. The one way to enable a command.
class Commands {
public:
    /// Takes the menu entries out of `frame` and `form`, the buttons and panels out of `form`, by
    /// name, gives buttons their captions, and enables what needs nothing.
    Commands(QWidget& frame, QWidget& form);

    void Enable(Command command, bool on);
    void Enable(std::initializer_list<Command> commands, bool on);
    void Enable(std::span<const Command> commands, bool on);
    /// All commands of that kind.
    void Enable(When when, bool on);
    bool IsEnabled(Command command) const;
    /// Keeps commands disabled, whatever is asked meanwhile, until they are let go: then they are
    /// enabled as was asked last.
    void Hold(std::initializer_list<Command> commands, bool on);

    /// A command's button or entry was used.
    template <typename Receiver, typename Handler>
    void Connect(Command command, Receiver* receiver, Handler handler)
    {
        const Control& control = ControlOf(command);
        if (control.button)
            QObject::connect(control.button, &QAbstractButton::clicked, receiver, handler);
        else
            QObject::connect(control.entry, &QAction::triggered, receiver, handler);
    }

    QAbstractButton* Button(Command command) const { return ControlOf(command).button; }
    QAction* Entry(Command command) const { return ControlOf(command).entry; }

private:
    struct Control {
        QWidget* widget = nullptr; // a button or a panel
        QAbstractButton* button = nullptr;
        QAction* entry = nullptr;
        bool isWanted = false; // enabled, as was asked last
        bool isHeld = false;
    };
    static void Apply(const Control& control);
    const Control& ControlOf(Command command) const
    {
        return m_controls[static_cast<std::size_t>(command)];
    }

    std::vector<Control> m_controls; // by command
};

} // namespace vypx
