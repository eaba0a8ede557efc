#include "settings/IniText.h"

#include "support/Properties.h"

#include <gmock/gmock.h>

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

TEST(IniText, OnePairOfQuotesAroundAValueDoesNotCount)
{
    const std::pair<const char*, const char*> values[] = {
        { "\"x\"", "x" },
        { "'x'", "x" },
        { "\"\"", "" }, // quotes around nothing
        { "''", "" },
        { "\"\"x\"\"", "\"x\"" },
        { " \" x \" ", " x " },
        // no pair
        { "\"", "\"" },
        { "'", "'" },
        { "\"x'", "\"x'" },
        { "'x\"", "'x\"" },
        { "\"x", "\"x" },
        { "xyx", "xyx" },
    };
    for (const auto& [written, read] : values)
        EXPECT_EQ(IniText("[A]\nx=" + std::string(written) + "\n").Value("A", "x"), read)
            << written;
}

TEST(IniText, NamesMatchInAnyCaseFromAToZAndInNoOtherLetter)
{
    const IniText text("[AZ az]\nZebra=1\nALPHA=2\na@b=3\na[b=4\n\xC4=5\n");

    EXPECT_EQ(text.Value("az AZ", "zEBRA"), "1");
    EXPECT_EQ(text.Value("az AZ", "alpha"), "2");
    EXPECT_EQ(text.Value("AZ AZ", "A@B"), "3");
    EXPECT_EQ(text.Value("AZ AZ", "a`b"), std::nullopt);
    EXPECT_EQ(text.Value("AZ AZ", "A[B"), "4");
    EXPECT_EQ(text.Value("AZ AZ", "a{b"), std::nullopt);
    EXPECT_EQ(text.Value("AZ AZ", "\xE4"), std::nullopt);
}

TEST(IniText, LinesThatAreNeitherAreNoNames)
{
    const IniText text("[A]\n=1\n =2\n[B\nwords\n;[C]\n[D]\n");

    EXPECT_THAT(text.SectionNames(), ElementsAre("A", "D"));
    EXPECT_THAT(text.KeyNames("A"), ElementsAre());
    EXPECT_THAT(text.KeyNames("B"), ElementsAre()) << "there is no such section";
    EXPECT_EQ(text.Value("B", "x"), std::nullopt);
    EXPECT_EQ(text.Value("A", ""), std::nullopt);
}

TEST(IniText, BlanksAroundNamesAndValuesDoNotCount)
{
    const IniText text("\t[ A ] \n \tx \t=\v 1 2\f \n");

    EXPECT_EQ(text.Value(" A", "x "), "1 2");
    EXPECT_THAT(text.KeyNames("A"), ElementsAre("x"));
}

TEST(IniText, ANewKeyEndsItsSectionBeforeTheBlankLines)
{
    IniText text("[A]\r\nx=1\r\n\r\n \r\n[B]\r\n\r\n[C]");

    EXPECT_TRUE(text.SetValue("a", "y", "2"));
    EXPECT_TRUE(text.SetValue("B", "z", "3"));
    EXPECT_TRUE(text.SetValue("C", "w", "4"));

    EXPECT_EQ(text.Bytes(), "[A]\r\nx=1\r\ny=2\r\n\r\n \r\n[B]\r\nz=3\r\n\r\n[C]\r\nw=4\r\n");
}

TEST(IniText, AValueIsReplacedInPlaceAndItsNameStaysAsWritten)
{
    IniText text("[A]\n Key = 1 \nz=0");

    EXPECT_TRUE(text.SetValue("A", "kEY", "2"));
    EXPECT_TRUE(text.SetValue("A", "Z", "9"));

    EXPECT_EQ(text.Bytes(), "[A]\n Key =2\nz=9");
    EXPECT_EQ(text.Value("A", "key"), "2");
}

TEST(IniText, ANewSectionEndsTheFile)
{
    IniText text("[A]\r\nx=1");

    EXPECT_TRUE(text.SetValue(" B ", " y ", "2"));

    EXPECT_EQ(text.Bytes(), "[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
    EXPECT_EQ(text.Value("b", "Y"), "2") << "it is found at once";
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
    EXPECT_FALSE(text.SetValue("A", " ", "1"));
    EXPECT_FALSE(text.SetValue("\n", "x", "1"));
    EXPECT_FALSE(text.SetValue("A", "\xEF\xBB\xBFx", "1"));
    EXPECT_EQ(text.Bytes(), "[A]\n");
}

TEST(IniText, ANewSectionIsThereAtOnceWithAllItsKeys)
{
    IniText text("[A]\nx=1\n");

    text.SetValue(" b ", "x", "2");
    text.SetValue("B", "y", "3");
    text.SetValue("b", "X", "4");
    text.SetValue("a", "y", "5");

    EXPECT_TRUE(text.HasSection("B"));
    EXPECT_FALSE(text.HasSection("C"));
    EXPECT_EQ(text.Bytes(), "[A]\nx=1\ny=5\n[b]\nx=4\ny=3\n");
    EXPECT_EQ(text.Value("B", "y"), "3");
}

TEST(IniText, AFirstValueStandsRightUnderItsHeader)
{
    IniText text("[A]\r\n; words\r\nx=1\r\ny=2\r\nY=3\r\n[B]");

    EXPECT_TRUE(text.SetFirstValue("a", " y", "4\n5"));
    EXPECT_TRUE(text.SetFirstValue("B", "z", "6"));
    EXPECT_TRUE(text.SetFirstValue("C", "w", "7"));
    EXPECT_FALSE(text.SetFirstValue("C", "=", "8"));
    EXPECT_FALSE(text.SetFirstValue(" ", "x", "9"));

    EXPECT_EQ(text.Bytes(), "[A]\r\ny=4 5\r\n; words\r\nx=1\r\n[B]\r\nz=6\r\n[C]\r\nw=7\r\n");
    EXPECT_EQ(text.Value("A", "y"), "4 5");
}

TEST(IniText, NamesAreOneUpToCaseAndTheBlanksAroundThem)
{
    EXPECT_TRUE(IniText::SameName(" My App", "MY app\t"));
    EXPECT_FALSE(IniText::SameName("My App", "MyApp"));
    EXPECT_FALSE(IniText::SameName("\xE9", "\xC9"));
}

TEST(IniText, DeletingTakesAllOfAName)
{
    IniText text("[A]\nx=1\nX=2\ny=3\n[B]\n[a]\nz=4\n");

    text.DeleteKey("A", "x");
    EXPECT_EQ(text.Bytes(), "[A]\ny=3\n[B]\n[a]\nz=4\n");
    text.DeleteSection("A");
    EXPECT_EQ(text.Bytes(), "[B]\n");
}

TEST(IniText, ADeletedSectionLeavesTheCommentsBehindItsLastKey)
{
    IniText text("[A]\n; in A\nx=1\n\n; about B\n\n[B]\ny=1\n[C]\n; about D\n[D]\nz=1\n \n"
                 "words\n; end");

    EXPECT_EQ(text.DeleteSection("A"), 1u);
    EXPECT_EQ(text.Bytes(), "; about B\n\n[B]\ny=1\n[C]\n; about D\n[D]\nz=1\n \nwords\n; end");
    text.DeleteSection("C");
    text.DeleteSection("D");
    EXPECT_EQ(text.Bytes(), "; about B\n\n[B]\ny=1\n; about D\nwords\n; end");
    EXPECT_EQ(text.DeleteSection("D"), 0u);
}

TEST(IniText, ASectionIsGoneWithAllOfItsName)
{
    IniText text("[A]\nx=1\n[a]\n[B]\n[ A ]\n");

    EXPECT_EQ(text.DeleteSection("A"), 3u);
    EXPECT_EQ(text.Bytes(), "[B]\n");
}

/// Its square would be hours.
TEST(IniText, ASectionMayHaveAMillionLines)
{
    std::string bytes = "[A]\n";
    for (int i = 0; i < 1'000'000; ++i)
        bytes += ";\n";

    EXPECT_THAT(IniText(bytes + "x=1\n").KeyNames("A"), ElementsAre("x"));
}

TEST(IniText, DeletingWhatIsNotThereChangesNothing)
{
    const std::string bytes = "top\n[A]\nx=1\n;x=2\n";
    IniText text(bytes);

    text.DeleteKey("B", "x");
    text.DeleteKey("A", "y");
    text.DeleteSection("B");

    EXPECT_EQ(text.Bytes(), bytes);
    text.DeleteKey("A", "X");
    EXPECT_EQ(text.Bytes(), "top\n[A]\n;x=2\n");
    EXPECT_EQ(text.Value("A", "x"), std::nullopt);
}

#ifdef RC_GTEST_PROP
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
#endif

} // namespace
} // namespace vypx::test
