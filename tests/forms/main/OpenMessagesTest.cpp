#include "WindowFixture.h"

#include <QPushButton>

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

TEST_F(OpenMessages, OfOneTextThreeBoxesAreShownAndTheRestIsCounted)
{
    AppTable = { {}, { "Fern", "appl", "FERN", "" } };
    std::vector<Resource> resources{ { "iTbl", 1000, {} } };
    for (int id = 3500; id < 3506; ++id) {
        resources[0].data =
            Join({ resources[0].data, IndexRecord("appl", "FERN", static_cast<unsigned>(id), 0) });
        resources.push_back(Picture(id));
    }
    for (int box = 0; box < 3; ++box)
        ask.Answer(QMessageBox::Ok);

    Open(Written(Iconset{ .resources = resources }.File()));

    const QString text = "Warning, file contains a duplicate resource!";
    EXPECT_EQ(Messages(), QStringList({ text, text, text }));
    EXPECT_EQ(NodeTexts().size(), 6);
    auto& note = Find<QLabel>("lblNote");
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(note.text(), "2 more messages: " + text);

    Open(Written(Iconset{ .resources = { Picture(3500) } }.File()));
    EXPECT_FALSE(note.isVisible()) << "it goes with its document";
}

/// A file whose resource count no reader can hold ends a load without words.
TEST_F(OpenMessages, AfterALoadThatFailsWithoutWordsThereIsNoDocument)
{
    AppTable = { {}, { "Fern", "appl", "FERN", "" } };
    Open(Written(
        Iconset{ .name = "Old",
            .resources = { { "iTbl", 1000, IndexRecord("appl", "FERN", 3500, 0) }, Picture(3500) } }
            .File(),
        "old.prc"));
    Nodes().setCurrentItem(Nodes().Root()->child(0));
    Bytes broken = Iconset{ .name = "Broken", .resources = { Picture(3500) } }.File();
    PutU16(broken, 76, 0x8000);

    Open(Written(broken, "broken.prc"));

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_FALSE(FileLoaded);
    EXPECT_EQ(Nodes().Root(), nullptr);
    EXPECT_EQ(Status(1), "");
    EXPECT_EQ(Status(2), "");
    for (const char* entry : { "mnuSave", "mnuSaveAs", "mnuCloseIconset", "mnuSaveandInstall",
             "mnuExportTemplate", "mnuRemoveLR", "mnuRemoveHR" })
        EXPECT_FALSE(Entry(entry).isEnabled()) << entry;
    for (const char* button : { "cmdRemoveIcon", "cmdClrDeleted", "cmdChangeDataBaseName" })
        EXPECT_FALSE(Find<QPushButton>(button).isEnabled()) << button;
    EXPECT_TRUE(Find<QLabel>("lblNote").isVisible());
    EXPECT_EQ(Find<QLabel>("lblNote").text(), "broken.prc could not be read.");
    EXPECT_EQ(frame->windowTitle(), "VY Pixelworks");
}

TEST_F(OpenMessages, BrokenChainsOfManyPicturesShowThreeBoxes)
{
    std::vector<Resource> resources;
    for (int id = 3500; id < 3510; ++id) {
        resources.push_back(Picture(id));
        PutU16(resources.back().data, 10, 0x4000);
    }
    for (int box = 0; box < 3; ++box)
        ask.Answer(QMessageBox::Ok);

    Open(Written(Iconset{ .resources = resources }.File()));

    EXPECT_EQ(ask.shown.size(), 3u);
    EXPECT_EQ(Messages().first(), "Error parsing file following tAIB3500.");
    EXPECT_EQ(
        Find<QLabel>("lblNote").text(), "7 more messages: Error parsing file following tAIB3509.");
}

TEST_F(OpenMessages, OneMessageMoreIsToldAsOne)
{
    std::vector<Resource> resources;
    for (int id = 3500; id < 3504; ++id) {
        resources.push_back(Picture(id));
        PutU16(resources.back().data, 10, 0x4000);
    }
    for (int box = 0; box < 3; ++box)
        ask.Answer(QMessageBox::Ok);

    Open(Written(Iconset{ .resources = resources }.File()));

    EXPECT_EQ(
        Find<QLabel>("lblNote").text(), "1 more message: Error parsing file following tAIB3503.");
}

TEST_F(OpenMessages, ARefusedFileOffersNothingOfTheDocumentBefore)
{
    Open(
        Written(Iconset{ .resources = { { "iTbl", 1000, {} }, Picture(3500) } }.File(), "old.prc"));
    ASSERT_TRUE(Find<QPushButton>("cmdClrDeleted").isEnabled()) << "an orphan is marked";

    ExpectSays(Bytes(68, 'x'), { "Error! Invalid file!" });

    EXPECT_FALSE(Find<QPushButton>("cmdClrDeleted").isEnabled());
}

TEST_F(OpenMessages, PicturesThatCouldNotBeStoredAreTold)
{
    const QString path = Written(Iconset{ .resources = { Picture(3500), Picture(3501) } }.File());
    std::filesystem::remove_all(WorkFolder());

    Open(path);

    EXPECT_TRUE(ask.shown.empty());
    EXPECT_TRUE(FileLoaded);
    const QString note = Find<QLabel>("lblNote").text();
    EXPECT_TRUE(note.startsWith("2 pictures could not be stored")) << note.toStdString();
    EXPECT_FALSE(note.contains(".bmp"));
}

} // namespace
} // namespace vypx::test
