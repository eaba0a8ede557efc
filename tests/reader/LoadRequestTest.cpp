#include "reader/LoadRequest.h"

#include "support/LoadFixture.h"

namespace vypx::test {

namespace {

class RequestFromFlags : public LoadFixture { };

TEST_F(RequestFromFlags, IsForWhatTheUserChooses)
{
    FileName = "/open.prc";
    DroppedFileName = "/dropped.prc";

    const LoadRequest request = vypx::RequestFromFlags("/chosen.prc");

    EXPECT_EQ(request.path, "/chosen.prc");
    EXPECT_TRUE(request.MustBeChosen());
    EXPECT_FALSE(request.asTemplate);
}

TEST_F(RequestFromFlags, TakesADroppedFileInTheChosenOnesPlace)
{
    DroppedFile = TemplateMode = true;
    DroppedFileName = "/dropped.vpt";

    const LoadRequest request = vypx::RequestFromFlags("/chosen.prc");

    EXPECT_EQ(request.path, "/dropped.vpt");
    EXPECT_TRUE(request.dropped);
    EXPECT_FALSE(request.chosenBefore);
    EXPECT_FALSE(request.MustBeChosen());
    EXPECT_TRUE(request.asTemplate);
    EXPECT_TRUE(TemplateMode) << "which the load ends";
}

TEST_F(RequestFromFlags, TakesAFileThatWasChosenBeforeOverADroppedOneAndOnlyOnce)
{
    SkipOpenDialog = DroppedFile = true;
    FileName = "/before.prc";
    DroppedFileName = "/dropped.prc";

    const LoadRequest request = vypx::RequestFromFlags();

    EXPECT_EQ(request.path, "/before.prc");
    EXPECT_TRUE(request.chosenBefore);
    EXPECT_FALSE(request.MustBeChosen());
    EXPECT_EQ(vypx::RequestFromFlags().path, "/dropped.prc");
}

} // namespace
} // namespace vypx::test
