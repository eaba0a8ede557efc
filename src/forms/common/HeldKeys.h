#pragma once

#include <QObject>

class QKeyEvent;

namespace vypx {

/// Enter of the keyboard or of its number pad.
bool IsEnter(const QKeyEvent& press);

/// Whether presses of a key come from holding it down. Desktops mark such presses, but under X11
/// not reliably: there a press at the very moment of the key's own release is one as well.
class HeldKey {
public:
    void Released(const QKeyEvent& release);
    bool IsRepeat(const QKeyEvent& press) const;

private:
    int m_key = 0;
    quint64 m_released = 0; // milliseconds of the event; 0: not known
};

/// The key of the program that was released last.
class HeldKeys : public QObject {
public:
    /// Begins to watch the program's keys with the first call.
    static HeldKeys& OfProgram();

    bool IsRepeat(const QKeyEvent& press) const { return m_held.IsRepeat(press); }
    /// The same of the press that came last, for a shortcut, which knows no press.
    bool IsLastPressRepeat() const { return m_isLastRepeat; }
    /// Looks at an event. To be called by a filter that keeps events from going on to this one.
    void See(const QEvent& event);
    /// A held Enter or Escape, which a window before this one was closed with: it is to close no
    /// second one.
    bool IsHeldEnd(const QKeyEvent& press) const;

private:
    HeldKeys();
    bool eventFilter(QObject* watched, QEvent* event) override;

    HeldKey m_held;
    bool m_isLastRepeat = false;
};

} // namespace vypx
