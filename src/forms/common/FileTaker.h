#pragma once

#include <QObject>
#include <QString>

namespace vypx {

/// What lets a window come to the front, as the desktop gave it; empty: nothing was given. Each is
/// of a kind of its own and means nothing where the other one belongs.
struct Activation {
    QString token;     ///< of Wayland: XDG_ACTIVATION_TOKEN
    QString startupId; ///< of X11: DESKTOP_STARTUP_ID

    friend bool operator==(const Activation&, const Activation&) = default;
};

/// A file that the desktop asks to have opened.
struct OutsideFile {
    QString path;
    Activation activation = {};

    friend bool operator==(const OutsideFile&, const OutsideFile&) = default;
};

/// This copy of the program as those see it who bring it files from outside.
class FileTaker : public QObject {
    Q_OBJECT

public:
    /// Whether a file would be taken now: there is no document, no other file waits, and nobody
    /// leaves the program.
    virtual bool IsFree() const = 0;
    /// Takes the file, which is opened as soon as nothing stands in its way; false: not free.
    virtual bool Take(const OutsideFile& file) = 0;
    /// A box, as soon as nothing stands in its way.
    virtual void Tell(const QString& text) = 0;
    /// The main window comes to the front; before the end of the start it does so then.
    virtual void ComeUp(const Activation& activation) = 0;

signals:
    /// A file that was taken can't be opened here any more: there is a document by now, or the user
    /// left the program.
    void GivenBack(const vypx::OutsideFile& file);
};

} // namespace vypx
