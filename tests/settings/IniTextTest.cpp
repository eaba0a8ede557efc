#include "settings/IniText.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using namespace std::string_literals;

TEST(IniText, KeepsEveryByteThatNobodyEdits)
{
    for (const std::string& bytes :
        { ""s, "\n"s, "\r\n\r"s, "[A]\nx=1"s, "[A\nx==\n=3\n\0\xFF"s }) {
        EXPECT_EQ(IniText(bytes).Bytes(), bytes);
    }
}

TEST(IniText, ASectionsNameEndsAtTheLastBracket)
{
    const IniText text("[ A [b] ] tail\nx=1\n");

    EXPECT_THAT(text.SectionNames(), ElementsAre("A [b]"));
    EXPECT_EQ(text.Value("A [b]", "x"), "1");
}

TEST(IniText, OnlyASemicolonBeginsAComment)
{
    const IniText text("[A]\n;x=1\n  ; y=2\n#z=3\n");

    EXPECT_THAT(text.KeyNames("A"), ElementsAre("#z"));
}

TEST(IniText, KeysBeforeTheFirstSectionAreNobodys)
{
    const IniText text("x=1\n[A]\ny=2\n");

    EXPECT_EQ(text.Value("", "x"), std::nullopt);
    EXPECT_EQ(text.Value("A", "x"), std::nullopt);
}

TEST(IniText, TheFirstOfRepeatedNamesCountsAndAllAreListed)
{
    const IniText text("[A]\nx=1\nX=2\n[a]\ny=3\n");

    EXPECT_EQ(text.Value("A", "x"), "1");
    EXPECT_EQ(text.Value("A", "y"), std::nullopt);
    EXPECT_THAT(text.SectionNames(), ElementsAre("A", "a"));
    EXPECT_THAT(text.KeyNames("a"), ElementsAre("x", "X"));
}

TEST(IniText, AByteOrderMarkIsNoPartOfTheFirstName)
{
    const IniText text("\xEF\xBB\xBF[A]\nx=1\n");

    EXPECT_EQ(text.Value("A", "x"), "1");
}

TEST(IniText, AValueEndsAtANul) { EXPECT_EQ(IniText("[A]\nx=ab\0cd\n"s).Value("A", "x"), "ab"); }

TEST(IniText, AValueMayHoldEqualsSigns)
{
    EXPECT_EQ(IniText("[A]\nx=a=b\n").Value("A", "x"), "a=b");
}

TEST(IniText, ALineBreakInAValueOrNameBecomesABlank)
{
    IniText text;

    EXPECT_TRUE(text.SetValue("A\n[B]", "x", "1\r\n[C]"));

    EXPECT_THAT(text.SectionNames(), ElementsAre("A [B]"));
    EXPECT_EQ(text.Value("A\n[B]", "x"), "1  [C]");
}

TEST(IniText, NamesThatCouldNotBeReadBackAreRefused)
{
    IniText text("[A]\n");

    EXPECT_FALSE(text.SetValue("A", "", "1"));
    EXPECT_FALSE(text.SetValue("", "x", "1"));
    EXPECT_FALSE(text.SetValue("A", "a=b", "1"));
    EXPECT_FALSE(text.SetValue("A", "[x", "1"));
    EXPECT_FALSE(text.SetValue("A", ";x", "1"));
    EXPECT_EQ(text.Bytes(), "[A]\n");
}

TEST(IniText, DeletingTakesAllOfAName)
{
    IniText text("[A]\nx=1\nX=2\ny=3\n[B]\n[a]\nz=4\n");

    text.DeleteKey("A", "x");
    EXPECT_EQ(text.Bytes(), "[A]\ny=3\n[B]\n[a]\nz=4\n");
    text.DeleteSection("A");
    EXPECT_EQ(text.Bytes(), "[B]\n");
}

RC_GTEST_PROP(IniText, AnyBytesAreKeptAndAWriteIsReadBack, (const std::string& bytes))
{
    IniText text(bytes);
    RC_ASSERT(text.Bytes() == bytes);
    const std::vector<std::string> sections = text.SectionNames();

    RC_ASSERT(text.SetValue("Fresh Section", "key", "value"));

    const IniText again(text.Bytes());
    RC_ASSERT(again.Value("fresh section", "KEY") == "value");
    RC_ASSERT(again.SectionNames().size() == sections.size() + 1);
}

} // namespace
} // namespace vypx::test
