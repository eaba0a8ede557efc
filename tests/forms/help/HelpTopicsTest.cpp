#include "forms/help/HelpTopics.h"

#include <QDir>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

const HelpTopics& Topics() { return HelpTopics::OfProgram(); }

TEST(HelpTopics, TheProgramCarriesEveryPageThatItsContentsName)
{
    EXPECT_GE(Topics().Pages().size(), 50);
    for (const QString& page : Topics().Pages())
        EXPECT_TRUE(QFile::exists(HelpFolder + page)) << page.toStdString();
}

TEST(HelpTopics, NoPageOfTheProgramIsMissingInTheContents)
{
    const QStringList carried = QDir(HelpFolder).entryList({ "*.html" });
    ASSERT_FALSE(carried.isEmpty());
    for (const QString& page : carried)
        EXPECT_TRUE(Topics().Pages().contains(page)) << page.toStdString();
}

TEST(HelpTopics, ContextsLeadToTheirPages)
{
    EXPECT_EQ(Topics().OfContext(1030), "main-window.html");
    EXPECT_EQ(Topics().OfContext(1040), "start.html");
    EXPECT_EQ(Topics().OfContext(1080), "app-list.html");
    EXPECT_EQ(Topics().OfContext(7), "start.html");
}

TEST(HelpTopics, AWindowWithoutAPageHasNone)
{
    EXPECT_EQ(Topics().OfWindow("frmCrop"), "resize-image.html");
    EXPECT_EQ(Topics().OfWindow("frmNobody"), QString());
}

TEST(HelpTopics, APageThatStandsTwiceIsListedOnce)
{
    const HelpTopics topics(R"({"contents": [{"title": "A", "page": "a.html", "children":
        [{"title": "A again", "page": "a.html#b"}, {"title": "B", "page": "b.html"}]}]})");

    EXPECT_EQ(topics.Pages(), QStringList({ "a.html", "b.html" }));
    EXPECT_EQ(topics.Contents().value(0).children.value(1).title, "B");
}

TEST(HelpTopics, WhatIsNoListOfTopicsHasNone)
{
    const HelpTopics topics("nothing");

    EXPECT_TRUE(topics.Contents().isEmpty());
    EXPECT_EQ(topics.OfContext(1030), QString());
}

} // namespace

} // namespace vypx::test
