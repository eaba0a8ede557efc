#include "settings/LetterCase.h"

#include <gtest/gtest.h>

namespace vypx {
namespace {

TEST(LowerCase, FoldsAToZAndNothingElse)
{
    EXPECT_EQ(LowerCase("AbYZ@[`{ \xC4 9"), "abyz@[`{ \xC4 9");
}

} // namespace
} // namespace vypx
