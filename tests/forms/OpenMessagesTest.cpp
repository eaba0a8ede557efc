#include "WindowFixture.h"

namespace vypx::test {

namespace {

/// What a load says, in a box with the program's title and an OK button.
class OpenMessages : public WindowFixture {
protected:
    OpenMessages() { Start(); }

    /// Opens the file, answers as many boxes as there are in `expected`, and compares their words.
    void ExpectSays(const Bytes& file, const QStringList& expected)
    {
        for (int box = 0; box < expected.size(); ++box)
            ask.Answer(QMessageBox::Ok);
        Open(Written(file));
        EXPECT_EQ(Messages(), expected);
        for (const Box& box : ask.shown) {
            EXPECT_EQ(box.title, "VY Pixelworks");
            EXPECT_EQ(box.buttons, QMessageBox::Ok);
        }
        EXPECT_TRUE(Nodes().isVisible());
        EXPECT_FALSE(Find<QLabel>("lblWorking").isVisible());
    }
};

TEST_F(OpenMessages, AFileOf68BytesIsTooShort)
{
    ExpectSays(Bytes(68, 'x'), { "Error! Invalid file!" });

    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_FALSE(FileLoaded);
    EXPECT_EQ(FileName, program.File("set.prc"));
}

TEST_F(OpenMessages, AFileOf69BytesIsJudgedByItsType)
{
    ExpectSays(Bytes(69, 'x'), { "This file doesn't appear to be a valid Vantry IconSet" });
}

TEST_F(OpenMessages, AnotherCreatorIsNoIconset)
{
    ExpectSays(Iconset{ .creator = "vntr" }.File(),
        { "This file doesn't appear to be a valid Vantry IconSet" });
}

TEST_F(OpenMessages, ABadFileKeepsTheStatusBarAndTheChangedMark)
{
    Open(Written(Iconset{ .name = "Old" }.File(), "old.prc"));
    IconsetChanged = true;

    ExpectSays(Bytes(68, 'x'), { "Error! Invalid file!" });

    EXPECT_EQ(Status(1), "Windows Filename = old.prc");
    EXPECT_EQ(Status(2), "Palm Database Name = Old");
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(OpenMessages, AnIndexOfOddSizeCannotBeRead)
{
    ExpectSays(Iconset{ .resources = { { "iTbl", 1000, Bytes(15, 0) }, Picture(3500) } }.File(),
        { "Error reading iTbl" });
}

TEST_F(OpenMessages, TwoIconsOfOneOwnerCollideOnTheirLabel)
{
    AppTable = { {}, { "Fern", "appl", "FERN", "" } };

    ExpectSays(Iconset{ .resources = { { "iTbl", 1000,
                                           Join({ IndexRecord("appl", "FERN", 3500, 0),
                                               IndexRecord("appl", "FERN", 3501, 0) }) },
                            Picture(3500), Picture(3501) } }
                   .File(),
        { "Warning, file contains a duplicate resource!" });

    EXPECT_TRUE(FileLoaded);
}

TEST_F(OpenMessages, ABrokenChainNamesTheHighResStemAfterItsMark)
{
    Resource broken{ "tAIB", 3500, Join({ LowRecord(8, false), Separator(), HighRecord(8) }) };
    PutU16(broken.data, broken.data.size() - HighRecord(8).size() + 22, 0x7000);

    ExpectSays(Iconset{ .resources = { broken } }.File(),
        { "Error parsing file following tAIB3500-d144." });
}

TEST_F(OpenMessages, AFileThatIsGoneSaysNothing)
{
    Open(QString::fromStdString(program.File("gone.prc")));

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_FALSE(FileLoaded);
    EXPECT_TRUE(Nodes().isVisible());
    EXPECT_FALSE(Find<QLabel>("lblWorking").isVisible());
}

TEST_F(OpenMessages, AfterABadFileAGoodOneOpens)
{
    ExpectSays(Bytes(68, 'x'), { "Error! Invalid file!" });

    Open(Written(Iconset{ .name = "Good", .resources = { Picture(3500) } }.File()));

    EXPECT_EQ(NodeTexts(), QStringList("tAIB3500 () "));
    EXPECT_TRUE(FileLoaded);
}

} // namespace
} // namespace vypx::test
