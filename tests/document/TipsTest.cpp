#include "document/Tips.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Tips : public ::testing::Test {
protected:
    std::optional<std::vector<std::string>> Read(const std::string& text)
    {
        WriteText(folder.File("tips.txt"), text);
        return ReadTips(folder.File("tips.txt"));
    }

    TempFolder folder;
};

TEST_F(Tips, EachLineIsOne)
{
    EXPECT_THAT(*Read("one\ntwo\nthree\n"), ElementsAre("one", "two", "three"));
}

TEST_F(Tips, TheLastLineNeedsNoEnd) { EXPECT_THAT(*Read("one\ntwo"), ElementsAre("one", "two")); }

TEST_F(Tips, LinesOfAllSystemsEndAlike)
{
    EXPECT_THAT(*Read("one\r\ntwo\rthree\nfour"), ElementsAre("one", "two", "three", "four"));
}

TEST_F(Tips, LinesWithoutALetterAreNone)
{
    EXPECT_THAT(*Read("\n\none\r\n\r\n \t \ntwo\n\n"), ElementsAre("one", "two"));
    EXPECT_THAT(*Read("\n \r\n"), IsEmpty());
    EXPECT_THAT(*Read(""), IsEmpty());
}

TEST_F(Tips, AreReadAsUtf8)
{
    EXPECT_THAT(*Read("gr\xC3\xBC\xC3\x9F dich \xE2\x82\xAC \xF0\x9F\x99\x82\n"),
        ElementsAre("gr\xC3\xBC\xC3\x9F dich \xE2\x82\xAC \xF0\x9F\x99\x82"));
}

TEST_F(Tips, OfAnEditorThatMarksUtf8DoNotShowTheMark)
{
    EXPECT_THAT(*Read("\xEF\xBB\xBFone\n"), ElementsAre("one"));
}

TEST_F(Tips, AreReadAsLatin1WhereTheyAreNoUtf8)
{
    EXPECT_THAT(*Read("gr\xFC\xDF dich\nABC\n"), ElementsAre("gr\xC3\xBC\xC3\x9F dich", "ABC"));
}

TEST_F(Tips, NoUtf8AreLettersThatAreTooLongOrBroken)
{
    for (const std::string letter : { "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80",
             "\xF4\x90\x80\x80", "\xC3", "\x80", "\xC3\x41", "\xFF" }) {
        const std::vector<std::string> tips = TipsIn(letter);
        ASSERT_EQ(tips.size(), 1u);
        EXPECT_NE(tips[0], letter);
        EXPECT_TRUE(tips[0][0] == '\xC2' || tips[0][0] == '\xC3') << "each byte is a letter";
    }
}

TEST_F(Tips, WithoutANameOrAFileThereAreNone)
{
    EXPECT_FALSE(ReadTips(""));
    EXPECT_FALSE(ReadTips(folder.File("none.txt")));
    EXPECT_FALSE(ReadTips(folder.Path()));
}

TEST_F(Tips, OfALargeFileTheFirstMebibyteIsReadAndNoHalfLine)
{
    const std::string line = std::string(99, 'x') + "\n";
    std::string text;
    while (text.size() < 2 * MaxTipBytes)
        text += line;

    const auto tips = Read(text);

    EXPECT_EQ(tips->size(), MaxTipBytes / line.size());
    EXPECT_EQ(tips->back(), std::string(99, 'x'));
}

TEST_F(Tips, ALetterThatTheBoundCutsDoesNotMakeTheFileLatin1)
{
    std::string text = "gr\xC3\xBC\xC3\x9F\n";
    while (text.size() <= MaxTipBytes)
        text += "\xC3\xBC";

    EXPECT_THAT(*Read(text), ElementsAre("gr\xC3\xBC\xC3\x9F"));
}

TEST_F(Tips, ALineThatEndsAtTheBoundIsWhole)
{
    const std::string line(MaxTipBytes, 'x');

    EXPECT_THAT(*Read(line), ElementsAre(line));
    EXPECT_THAT(*Read(line + "\nmore"), ElementsAre(line));
    EXPECT_THAT(*Read(line + "y\nmore"), IsEmpty());
}

TEST_F(Tips, APickIsTheWholePartOfTheShareAndOne)
{
    EXPECT_EQ(PickTip(44, 0.0), 1u);
    EXPECT_EQ(PickTip(44, 0.5), 23u);
    EXPECT_EQ(PickTip(44, 0.9999), 44u);
    EXPECT_EQ(PickTip(1, 0.9999), 1u);
    EXPECT_EQ(PickTip(0, 0.5), 0u);
}

TEST_F(Tips, TheShippedOnesAreWorthTheName)
{
    const auto tips = ReadTips(std::string(VYPX_SHIPPED_DATA) + "/" + std::string(TipFileName));

    ASSERT_TRUE(tips);
    EXPECT_GE(tips->size(), 25u);
}

} // namespace
} // namespace vypx::test
