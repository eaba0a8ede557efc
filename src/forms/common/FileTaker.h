#pragma once

#include <QObject>
#include <QString>

namespace vypx {

/// A file that the desktop asks to have opened.
struct OutsideFile {
    QString path;
    /// What lets a window come to the front, as the desktop gave it; empty: nothing was given.
    QString token;

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
    /// The main window comes to the front; `token` as in OutsideFile.
    virtual void ComeUp(const QString& token) = 0;

signals:
    /// A file that was taken can't be opened here any more: there is a document by now, or the user
    /// left the program.
    void GivenBack(const vypx::OutsideFile& file);
};

} // namespace vypx
