#include "document/RunCount.h"

#include "document/SettingsFile.h"
#include "support/LoadFixture.h"

namespace vypx::test {

namespace {

class RunCount : public LoadFixture {
protected:
    static int CountOf(const std::string& text)
    {
        WriteText(SettingsFile(), "[Instance Count]\nRun Count=" + text + "\n");
        return ReadRunCount();
    }
};

TEST_F(RunCount, WithoutAFileItIs0)
{
    EXPECT_EQ(ReadRunCount(), 0);
    EXPECT_FALSE(NamedFileExists(SettingsFile()));
}

TEST_F(RunCount, WhatIsWrittenIsReadBackAndOtherKeysStay)
{
    WriteText(SettingsFile(), "[Program]\nName=VY Pixelworks\n");

    EXPECT_TRUE(WriteRunCount(2));

    EXPECT_EQ(ReadRunCount(), 2);
    EXPECT_EQ(
        ReadText(SettingsFile()), "[Program]\nName=VY Pixelworks\n[Instance Count]\nRun Count=2\n");
}

TEST_F(RunCount, ANumberThatNoMachineReachesIs0)
{
    EXPECT_EQ(CountOf("1"), 1);
    EXPECT_EQ(CountOf("999999"), 999999);
    for (const char* text : { "1000000", "-1", "many", "", "2147483648" })
        EXPECT_EQ(CountOf(text), 0) << text;
}

TEST_F(RunCount, AFileThatCannotBeWrittenIsToldOf)
{
    MakeFolder(SettingsFile());

    EXPECT_FALSE(WriteRunCount(1));
}

} // namespace
} // namespace vypx::test
