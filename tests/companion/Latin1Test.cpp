#include "companion/Latin1.h"

#include <gtest/gtest.h>

namespace vypx {
namespace {

TEST(Latin1, IsTheFirst256CharactersOfUtf8)
{
    EXPECT_EQ(Utf8FromLatin1("Caf\xE9 \x80\xFF"), "Caf\xC3\xA9 \xC2\x80\xC3\xBF");
    EXPECT_EQ(Latin1FromUtf8("Caf\xC3\xA9 \xC2\x80\xC3\xBF"), "Caf\xE9 \x80\xFF");
}

TEST(Latin1, HasAQuestionMarkForEveryOtherCharacter)
{
    EXPECT_EQ(Latin1FromUtf8("\xC4\x80|\xE2\x82\xAC|\xF0\x9F\x98\x80"), "?|?|?");
}

TEST(Latin1, TakesATextThatBreaksOff) { EXPECT_EQ(Latin1FromUtf8("a\xC3"), "a?"); }

} // namespace
} // namespace vypx
