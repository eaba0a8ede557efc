#include "forms/help/HelpSearch.h"

#include "forms/help/HelpTopics.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

class SearchOfHelp : public ::testing::Test {
protected:
    QStringList Found(const QString& words)
    {
        QStringList pages;
        for (const HelpHit& hit : search.Find(words))
            pages << hit.page;
        return pages;
    }

    HelpSearch search{ HelpTopics::OfProgram().Pages() };
};

TEST_F(SearchOfHelp, APageWhoseTitleHasTheWordsComesFirst)
{
    EXPECT_EQ(Found("program options").value(0), "options.html");
    EXPECT_EQ(Found("FRINGE").value(0), "recipe-fringe.html");
    EXPECT_EQ(Found("duplicate creator").value(0), "duplicate-creators.html");
}

TEST_F(SearchOfHelp, AllWordsMustOccur)
{
    EXPECT_FALSE(Found("emulator").isEmpty());
    EXPECT_TRUE(Found("emulator xylophone").isEmpty());
}

TEST_F(SearchOfHelp, AWordIsFoundWhileItIsBeingTyped)
{
    EXPECT_TRUE(Found("transpar").contains("transparent-color.html"));
    EXPECT_TRUE(Found("ransparent").isEmpty());
}

TEST_F(SearchOfHelp, SignsBetweenWordsDoNotCount)
{
    EXPECT_EQ(Found("\"Overwrite  file?\""), Found("overwrite file"));
    EXPECT_FALSE(Found("overwrite file").isEmpty());
}

TEST_F(SearchOfHelp, WordsSideBySideComeBeforeWordsApart)
{
    EXPECT_EQ(Found("the iconset was not saved").value(0), "messages-save.html");
}

TEST_F(SearchOfHelp, WithoutAWordNothingIsFound)
{
    EXPECT_TRUE(Found("").isEmpty());
    EXPECT_TRUE(Found(" ?! ").isEmpty());
}

TEST_F(SearchOfHelp, HitsBearTheTitleOfThePage)
{
    EXPECT_EQ(search.Find("program options").value(0).title, "Program Options");
}

} // namespace

} // namespace vypx::test
