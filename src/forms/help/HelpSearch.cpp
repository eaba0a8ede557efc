#include "forms/help/HelpSearch.h"

#include "forms/help/HelpTopics.h"

#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>
#include <tuple>

namespace vypx {

namespace {

QString Normalised(const QString& text) { return ' ' + HelpSearch::WordsOf(text).join(' ') + ' '; }

bool HasAll(const QString& text, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(),
        [&text](const QString& word) { return text.contains(' ' + word); });
}

/// How well a page fits; the greater the better.
using Rank = std::tuple<bool, bool, qsizetype>;

} // namespace

QStringList HelpSearch::WordsOf(const QString& text)
{
    static const QRegularExpression between("[^\\p{L}\\p{N}]+");
    return text.toCaseFolded().split(between, Qt::SkipEmptyParts);
}

HelpSearch::HelpSearch(const QStringList& pages)
{
    for (const QString& page : pages) {
        QFile file(HelpFolder + page);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        QTextDocument document;
        document.setHtml(QString::fromUtf8(file.readAll()));
        const QString title = document.metaInformation(QTextDocument::DocumentTitle);
        m_pages.append({ .hit = { .page = page, .title = title },
            .title = Normalised(title),
            .text = Normalised(title + ' ' + document.toPlainText()) });
    }
}

QList<HelpHit> HelpSearch::Find(const QString& text) const
{
    const QStringList words = WordsOf(text);
    if (words.isEmpty())
        return {};
    const QString phrase = ' ' + words.join(' ');
    QList<std::pair<Rank, HelpHit>> found;
    for (const Page& page : m_pages) {
        if (!HasAll(page.text, words))
            continue;
        qsizetype times = 0;
        for (const QString& word : words)
            times += page.text.count(' ' + word);
        found.append(
            { Rank(HasAll(page.title, words), page.text.contains(phrase), times), page.hit });
    }
    std::stable_sort(found.begin(), found.end(),
        [](const auto& one, const auto& other) { return one.first > other.first; });
    QList<HelpHit> hits;
    for (const auto& [rank, hit] : found)
        hits.append(hit);
    return hits;
}

} // namespace vypx
