#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace vypx {

/// A page that was found.
struct HelpHit {
    QString page, title;
};

/// Finds words on the pages of the help, in whatever letter case. A word is letters and digits; it
/// is found where one on the page begins with it, so that pages come while it is being typed.
class HelpSearch {
public:
    /// Reads the pages.
    explicit HelpSearch(const QStringList& pages);

    /// The pages that have all words: first those whose title has them, then those that have them
    /// side by side as they are asked for, then by how often they occur. Without a word: none.
    QList<HelpHit> Find(const QString& words) const;

    static QStringList WordsOf(const QString& text);

private:
    struct Page {
        HelpHit hit;
        QString title, text; // words with one blank before, between and behind them
    };
    QList<Page> m_pages;
};

} // namespace vypx
