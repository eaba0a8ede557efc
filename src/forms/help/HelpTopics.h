#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace vypx {

/// Where the pages of the help lie in the program.
inline constexpr const char* HelpFolder = ":/help/";

/// A line of the contents with those below it. A page may stand there more than once.
struct HelpEntry {
    QString title, page;
    QList<HelpEntry> children;
};

/// A line of the index.
struct HelpWord {
    QString word, page;
};

/// What the help consists of, as its topics.json tells. A page is a file name, with or without an
/// anchor behind "#".
class HelpTopics {
public:
    explicit HelpTopics(const QByteArray& json);

    /// Those that the program comes with, read with the first call.
    static const HelpTopics& OfProgram();

    const QList<HelpEntry>& Contents() const { return m_contents; }
    const QList<HelpWord>& Words() const { return m_words; }
    /// Every page once, in the order of the contents.
    QStringList Pages() const;

    /// The first page of the contents where nobody knows the number.
    QString OfContext(int context) const;
    /// Empty: that name has no page.
    QString OfWindow(const QString& objectName) const { return m_windows.value(objectName); }

private:
    QList<HelpEntry> m_contents;
    QList<HelpWord> m_words;
    QHash<int, QString> m_contexts;
    QHash<QString, QString> m_windows;
};

/// A page's name without the anchor.
QString WithoutAnchor(const QString& page);

} // namespace vypx
