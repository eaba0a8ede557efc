#include "forms/help/HelpTopics.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The pages lie in a library, where nothing else would pull them in.
static void InitHelp() { Q_INIT_RESOURCE(help); }

namespace vypx {

namespace {

QList<HelpEntry> Entries(const QJsonArray& rows)
{
    QList<HelpEntry> entries;
    for (const QJsonValue& row : rows)
        entries.append({ .title = row["title"].toString(),
            .page = row["page"].toString(),
            .children = Entries(row["children"].toArray()) });
    return entries;
}

void ListPages(const QList<HelpEntry>& entries, QStringList& pages)
{
    for (const HelpEntry& entry : entries) {
        const QString page = WithoutAnchor(entry.page);
        if (!pages.contains(page))
            pages.append(page);
        ListPages(entry.children, pages);
    }
}

QByteArray ShippedTopics()
{
    InitHelp();
    QFile file(QString(HelpFolder) + "topics.json");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QString WithoutAnchor(const QString& page) { return page.section('#', 0, 0); }

HelpTopics::HelpTopics(const QByteArray& json)
{
    const QJsonObject topics = QJsonDocument::fromJson(json).object();
    m_contents = Entries(topics["contents"].toArray());
    for (const QJsonValue& row : topics["index"].toArray())
        m_words.append({ .word = row["word"].toString(), .page = row["page"].toString() });
    const QJsonObject contexts = topics["contexts"].toObject();
    for (const QString& number : contexts.keys())
        m_contexts[number.toInt()] = contexts[number].toString();
    const QJsonObject windows = topics["windows"].toObject();
    for (const QString& name : windows.keys())
        m_windows[name] = windows[name].toString();
}

const HelpTopics& HelpTopics::OfProgram()
{
    static const HelpTopics topics(ShippedTopics());
    return topics;
}

QStringList HelpTopics::Pages() const
{
    QStringList pages;
    ListPages(m_contents, pages);
    return pages;
}

QString HelpTopics::OfContext(int context) const
{
    return m_contexts.value(context, m_contents.value(0).page);
}

} // namespace vypx
