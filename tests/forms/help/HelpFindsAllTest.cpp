#include "forms/help/HelpSearch.h"
#include "forms/help/HelpTopics.h"
#include "forms/main/CommandTable.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

QString SourceText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList Sources(const QStringList& rooms, const QStringList& names)
{
    QStringList paths;
    for (const QString& room : rooms) {
        QDirIterator files(
            QString(VYPX_SOURCES "/") + room, names, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths << files.next();
    }
    paths.sort();
    return paths;
}

/// Texts in quotes, those side by side as one, without what a program fills in.
QStringList Literals(QString source)
{
    static const QRegularExpression comment(
        "^\\s*//.*$|\\s//[^\"\n]*$", QRegularExpression::MultilineOption);
    static const QRegularExpression raw(
        "R\"\\((.*?)\\)\"", QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression including("^#.*$", QRegularExpression::MultilineOption);
    static const QRegularExpression literals(
        R"re("(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*)re");
    static const QRegularExpression seam(R"re((?<!\\)"\s*")re");
    source.remove("'\"'").remove(comment).remove(raw).remove(including);
    QStringList texts;
    for (auto found = literals.globalMatch(source); found.hasNext();) {
        QString text = found.next().captured();
        text = text.mid(1, text.size() - 2).remove(seam);
        text.replace("\\n", " ").replace("\\\"", "\"").remove(QRegularExpression("[%&]\\d?"));
        texts << text;
    }
    return texts;
}

/// What people read has words; names of controls, files, keys and formats have not.
bool IsSentence(const QString& text)
{
    static const QRegularExpression odd("[{}<>;=_/\\\\]|^[a-z]|::|\\(\\*");
    // A section of a file, an ending, a pattern, an example in a comment.
    static const QStringList unseen{ "Instance Count", "-d144.bmp", "[0-9]*", "ABCD - Large" };
    return !unseen.contains(text) && HelpSearch::WordsOf(text).size() >= 2 && !text.contains(odd);
}

/// Captions, titles and options of the windows as they are drawn.
QStringList TextsOfWindow(const QString& path)
{
    QStringList texts;
    QXmlStreamReader xml(SourceText(path));
    QString property;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.attributes().hasAttribute("name"))
            property = xml.attributes().value("name").toString();
        if (!xml.isStartElement() || xml.name() != u"string")
            continue;
        if (property == "text" || property == "title" || property == "windowTitle")
            texts << xml.readElementText().remove('&');
    }
    return texts;
}

class HelpFinds : public ::testing::Test {
protected:
    /// Fails with the texts that no page has.
    void ExpectFound(const QStringList& texts, const QString& where)
    {
        for (const QString& text : texts)
            EXPECT_TRUE(HelpSearch::WordsOf(text).isEmpty() || !search.Find(text).isEmpty())
                << where.section('/', -1).toStdString() << ": " << text.toStdString();
    }

    HelpSearch search{ HelpTopics::OfProgram().Pages() };
};

TEST_F(HelpFinds, EveryCommand)
{
    QStringList captions;
    for (const CommandRow& row : CommandRows())
        captions << QString(row.caption).remove('&');
    ASSERT_FALSE(captions.isEmpty());
    ExpectFound(captions, "commands");
}

TEST_F(HelpFinds, EveryTextOfEveryWindow)
{
    const QStringList windows = Sources({ "forms" }, { "*.ui" });
    ASSERT_GE(windows.size(), 15);
    for (const QString& window : windows)
        ExpectFound(TextsOfWindow(window), window);
}

TEST_F(HelpFinds, EveryWindowByAPageOfItsOwn)
{
    for (const QString& window : Sources({ "forms" }, { "frm*.ui" }))
        EXPECT_FALSE(
            HelpTopics::OfProgram().OfWindow(window.section('/', -1).section('.', 0, 0)).isEmpty())
            << window.toStdString();
}

TEST_F(HelpFinds, EveryMessage)
{
    const QStringList sources = Sources({ "forms", "document", "catalogs", "imaging", "reader",
                                            "writer", "install", "pictures", "companion" },
        { "*.cpp", "*.h" });
    int messages = 0;
    for (const QString& source : sources) {
        if (source.endsWith("/SettingsFile.cpp"))
            continue; // keys of a file
        QStringList texts = Literals(SourceText(source));
        texts.removeIf([](const QString& text) { return !IsSentence(text); });
        messages += static_cast<int>(texts.size());
        ExpectFound(texts, source);
    }
    EXPECT_GT(messages, 100);
}

} // namespace

} // namespace vypx::test
