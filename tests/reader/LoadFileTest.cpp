#include "reader/LoadFile.h"

#include "document/IconStats.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

class LoadFile : public LoadFixture { };

TEST_F(LoadFile, OpensAnIconset)
{
    const Iconset set{ .name = "My Icons", .resources = { Icon(3500), Icon(3501) } };

    EXPECT_EQ(Open(set.File()), LoadResult::Opened);

    EXPECT_TRUE(FileLoaded);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_EQ(FileName, folder.File("set.prc"));
    EXPECT_EQ(DatabaseName, "My Icons");
    EXPECT_EQ(Parent, "My Icons");
    EXPECT_EQ(Tree.Root(), "My Icons");
    EXPECT_EQ(IconTable.size(), 2u);
    EXPECT_THAT(listener.messages, IsEmpty());
}

TEST_F(LoadFile, KeepsTheFileFromIndexOneWithAZeroBehindIt)
{
    const Bytes file = Iconset{ .resources = { Icon(3500) } }.File();

    Open(file);

    EXPECT_EQ(IconFileSize, static_cast<int>(file.size()) + 1);
    ASSERT_EQ(FileCashe.size(), file.size() + 2);
    EXPECT_EQ(Bytes(FileCashe.begin() + 1, FileCashe.end() - 1), file);
    EXPECT_EQ(FileCashe.back(), 0);
}

TEST_F(LoadFile, TellsItsStepsInTheirOrder)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501) } }.File());

    std::vector<std::string> steps;
    for (const std::string& step : listener.steps)
        if (!step.starts_with("progress:"))
            steps.push_back(step);
    EXPECT_THAT(steps,
        ElementsAre("begin", "folder", "cleared", "named", "pictures", "maximum:2",
            "busy:Getting Images, please wait....", "progress", "idle", "no progress", "maximum:2",
            "opened", "stats", "stats"));
}

TEST_F(LoadFile, OneBitmapLeavesTheProgressMaximumAlone)
{
    Open(Iconset{ .resources = { Icon(3500) } }.File());

    for (const std::string& step : listener.steps)
        EXPECT_FALSE(step.starts_with("maximum")) << step;
}

TEST_F(LoadFile, TakesPdbAndAnyCaseOfTheEnding)
{
    const Bytes file = Iconset{ .resources = { Icon(3500) } }.File();

    EXPECT_EQ(Open(file, "a.pdb"), LoadResult::Opened);
    EXPECT_EQ(Open(file, "b.PRC"), LoadResult::Opened);
    EXPECT_EQ(Open(file, "c.Pdb"), LoadResult::Opened);
}

TEST_F(LoadFile, AnotherEndingIsAnIncorrectFileTypeAndLeavesTheOldDocumentWhole)
{
    Open(Iconset{ .name = "Old", .resources = { Icon(3500) } }.File());
    IconsetChanged = true;
    const std::vector<IconRow> rows = IconTable;
    const std::vector<BitmapEntry> bitmaps = BitmapTable;
    const Bytes picture = ReadBytes(WorkPath("tAIB3500.bmp"));

    EXPECT_EQ(Open(Iconset{ .name = "New" }.File(), "set.txt"), LoadResult::WrongFileType);

    EXPECT_THAT(listener.messages, ElementsAre("Incorrect file type."));
    EXPECT_EQ(FileName, folder.File("set.prc"));
    EXPECT_EQ(Tree.Root(), "Old");
    EXPECT_EQ(IconTable, rows);
    EXPECT_EQ(BitmapTable, bitmaps);
    EXPECT_EQ(ReadBytes(WorkPath("tAIB3500.bmp")), picture);
    EXPECT_TRUE(FileLoaded);
    EXPECT_TRUE(IconsetChanged);
}

TEST_F(LoadFile, ATemplateWantsItsOwnEnding)
{
    const Bytes file = Iconset{ .resources = { Icon(3500) } }.File();

    TemplateMode = true;
    EXPECT_EQ(Open(file, "set.prc"), LoadResult::WrongFileType);
    TemplateMode = true;
    EXPECT_EQ(Open(file, "set.vpt"), LoadResult::Opened);
    EXPECT_FALSE(TemplateMode);
}

TEST_F(LoadFile, WhatCameFromATemplateIsRememberedUntilTheNextDocument)
{
    const Bytes file = Iconset{ .resources = { Icon(3500) } }.File();

    TemplateMode = true;
    Open(file, "set.vpt");
    EXPECT_TRUE(LoadedAsTemplate);
    Open(file, "set.prc");
    EXPECT_FALSE(LoadedAsTemplate);
}

TEST_F(LoadFile, AFileOf68BytesIsInvalidWhateverItHolds)
{
    Bytes file = Iconset{}.File();
    file.resize(68);

    EXPECT_EQ(Open(file), LoadResult::Recovered);

    EXPECT_THAT(listener.messages, ElementsAre("Error! Invalid file!"));
}

TEST_F(LoadFile, AFileOf69BytesIsJudgedByItsType)
{
    Bytes file = Iconset{ .type = "DATA" }.File();
    file.resize(69);

    EXPECT_EQ(Open(file), LoadResult::Recovered);

    EXPECT_THAT(
        listener.messages, ElementsAre("This file doesn't appear to be a valid Vantry IconSet"));
}

TEST_F(LoadFile, AnotherTypeOrCreatorIsNoIconset)
{
    Open(Iconset{ .type = "appl" }.File());
    Open(Iconset{ .creator = "vntr" }.File());

    EXPECT_THAT(listener.messages,
        ElementsAre("This file doesn't appear to be a valid Vantry IconSet",
            "This file doesn't appear to be a valid Vantry IconSet"));
}

TEST_F(LoadFile, ATemplateOfAnotherCreatorIsNoTemplate)
{
    TemplateMode = true;

    EXPECT_EQ(Open(Iconset{ .creator = "ABCD" }.File(), "t.vpt"), LoadResult::Recovered);

    EXPECT_THAT(listener.messages,
        ElementsAre("This file doesn't appear to be a valid VYPX Template File"));
}

TEST_F(LoadFile, OnPurposeATemplateOfAnotherTypeGetsTheIconsetsWords)
{
    TemplateMode = true;

    Open(Iconset{ .type = "appl", .creator = "ABCD" }.File(), "t.vpt");

    EXPECT_THAT(
        listener.messages, ElementsAre("This file doesn't appear to be a valid Vantry IconSet"));
}

TEST_F(LoadFile, RecoveringLeavesNoDocumentTheBadPathAndTheFlags)
{
    Open(Iconset{ .name = "Old", .resources = { Icon(3500) } }.File());
    IconsetChanged = true;

    Open(Iconset{ .type = "DATA" }.File(), "bad.prc");

    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(Tree.HasRoot());
    EXPECT_EQ(FileName, folder.File("bad.prc"));
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(StatTotal, 0);
    EXPECT_EQ(listener.steps.back(), "stats");
}

TEST_F(LoadFile, RecoveringKeepsTemplateMode)
{
    TemplateMode = true;

    Open(Iconset{ .type = "DATA" }.File(), "bad.vpt");

    EXPECT_TRUE(TemplateMode);
}

TEST_F(LoadFile, AMissingFileFailsSilentlyAndLeavesNoDocument)
{
    Open(Iconset{ .resources = { Icon(3500) } }.File());
    IconsetChanged = TemplateMode = true;

    EXPECT_EQ(Load(folder.File("gone.vpt")), LoadResult::Failed);

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(IconsetChanged);
    EXPECT_FALSE(TemplateMode);
}

TEST_F(LoadFile, AFolderWithTheRightEndingFailsSilently)
{
    MakeFolder(folder.File("set.prc"));

    EXPECT_EQ(Load(folder.File("set.prc")), LoadResult::Failed);

    EXPECT_FALSE(FileLoaded);
}

TEST_F(LoadFile, OneThatFailsLeavesNothingOfAnyDocument)
{
    Resource endless = Icon(3500);
    PutU16(endless.data, 2, 0xFFFF); // height
    const Bytes broken = Iconset{ .name = "New", .resources = { endless, Icon(3501) } }.File();
    for (const bool isMissing : { true, false }) {
        Open(Iconset{ .name = "Old",
            .resources = { Index({ IndexRecord("appl", "ALPH", 3500, 0) }), Icon(3500) } }
                 .File());
        ASSERT_TRUE(FileLoaded);
        IconsetChanged = true;

        EXPECT_EQ(isMissing ? Load(folder.File("gone.prc")) : Open(broken, "broken.prc"),
            LoadResult::Failed);

        EXPECT_FALSE(FileLoaded);
        EXPECT_FALSE(IconsetChanged);
        EXPECT_FALSE(Tree.HasRoot());
        EXPECT_THAT(Tree.Nodes(), IsEmpty());
        EXPECT_EQ(IconTable, std::vector<IconRow>(1));
        EXPECT_EQ(BitmapTable, std::vector<BitmapEntry>(1));
        EXPECT_EQ(BitmapRow, 0);
        EXPECT_THAT(Itbl, IsEmpty());
        EXPECT_THAT(FileCashe, IsEmpty());
        EXPECT_EQ(FileName + Parent + DatabaseName, "");
        EXPECT_EQ(StatTotal, 0);
        EXPECT_EQ(listener.steps.back(), "stats");
        EXPECT_EQ(NoteOf(report), "The file could not be read.");
    }
}

TEST_F(LoadFile, WhatIsNoFaultOfTheFilePassesUpAndLeavesNoDocument)
{
    const Bytes file = Iconset{ .name = "tAIB3500 () ", .resources = { Icon(3500) } }.File();
    // Before, within and behind the walk over the resources.
    for (const std::string where : { "named", "message:", "progress", "opened" }) {
        listener.during = [&](const std::string& step) {
            if (step.starts_with(where))
                throw std::out_of_range("a mistake of the program");
        };
        IconsetChanged = TemplateMode = true;

        EXPECT_THROW(Open(file, "t.vpt"), std::out_of_range) << where;

        EXPECT_FALSE(FileLoaded);
        EXPECT_FALSE(IconsetChanged);
        EXPECT_FALSE(TemplateMode);
        EXPECT_FALSE(Tree.HasRoot());
        EXPECT_EQ(IconTable, std::vector<IconRow>(1));
        EXPECT_EQ(FileName, "");
    }
}

TEST_F(LoadFile, NoMemoryPassesUpAsWell)
{
    listener.during = [](const std::string& step) {
        if (step == "named")
            throw std::bad_alloc();
    };

    EXPECT_THROW(Open(Iconset{}.File()), std::bad_alloc);

    EXPECT_FALSE(FileLoaded);
}

TEST_F(LoadFile, PicturesThatCannotBeStoredAreCounted)
{
    Resource tooWide = Icon(3502);
    PutU16(tooWide.data, 0, 100); // more pixels than a row has: no picture at all
    const Bytes file = Iconset{ .resources = { Icon(3500), Icon(3501), tooWide } }.File();
    std::filesystem::remove_all(WorkFolder());

    EXPECT_EQ(Open(file), LoadResult::Opened);

    EXPECT_EQ(report.picturesNotStored, 2);
    EXPECT_EQ(NoteOf(report),
        "2 pictures could not be stored and can't be shown: No such file or directory.");
}

TEST_F(LoadFile, OnePictureThatCannotBeStoredIsToldInTheSingular)
{
    MakeFolder(WorkPath("tAIB3501.bmp"));

    EXPECT_EQ(Open(Iconset{ .resources = { Icon(3500), Icon(3501) } }.File()), LoadResult::Opened);

#ifdef _WIN32
    const std::string why = "Permission denied";
#else
    const std::string why = "Is a directory";
#endif
    EXPECT_EQ(NoteOf(report), "1 picture could not be stored and can't be shown: " + why + ".");
}

TEST_F(LoadFile, OneThatStoresAllItsPicturesHasNoNote)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501) } }.File());

    EXPECT_EQ(report.picturesNotStored, 0);
    EXPECT_EQ(NoteOf(report), "");
}

TEST_F(LoadFile, CountsOf32768AndMoreFailSilently)
{
    Bytes file = Iconset{ .name = "Many" }.File();
    PutU16(file, 76, 0x8000);

    EXPECT_EQ(Open(file), LoadResult::Failed);

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_FALSE(FileLoaded);
}

TEST_F(LoadFile, AFileThatEndsBeforeItsCountFailsSilently)
{
    Bytes file = Iconset{}.File();
    file.resize(70);

    EXPECT_EQ(Open(file), LoadResult::Failed);

    EXPECT_FALSE(FileLoaded);
}

TEST_F(LoadFile, ANameOf32CharactersIsReadWhole)
{
    const std::string name = "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345";

    Open(Iconset{ .name = name }.File());

    EXPECT_EQ(DatabaseName, name);
}

TEST_F(LoadFile, ANameEndsAtTheFirstByteOutsideOf32To126)
{
    Open(Iconset{ .name = "Blank ~\x7F tail" }.File());
    EXPECT_EQ(DatabaseName, "Blank ~");
    Open(Iconset{ .name = "Caf\xE9" }.File());
    EXPECT_EQ(DatabaseName, "Caf");
    Open(Iconset{ .name = "Tab\tbed" }.File());
    EXPECT_EQ(DatabaseName, "Tab");
}

TEST_F(LoadFile, DeletesOldWorkingPicturesAndNothingElse)
{
    WriteText(WorkPath("tAIB1.bmp"), "old");
    WriteText(WorkPath("TEMP.BMP"), "old");
    WriteText(WorkPath("tAIB1.bmp.bak"), "kept");

    Open(Iconset{}.File());

    EXPECT_FALSE(FileExists(WorkPath("tAIB1.bmp")));
    EXPECT_FALSE(FileExists(WorkPath("TEMP.BMP")));
    EXPECT_TRUE(FileExists(WorkPath("tAIB1.bmp.bak")));
}

TEST_F(LoadFile, RemembersTheFileFolderWithoutItsSeparator)
{
    Open(Iconset{}.File());

    EXPECT_EQ(LastDirIconsetLoad, folder.Path());
}

TEST_F(LoadFile, AFileThatWasChosenBeforeIsLookedAtWhateverItsEndingAndCleansNothing)
{
    WriteText(WorkPath("kept.bmp"), "kept");
    FileName = Written(Iconset{}.File(), "set.any");
    SkipOpenDialog = true;

    EXPECT_EQ(Load("another"), LoadResult::Opened);

    EXPECT_EQ(FileName, folder.File("set.any"));
    EXPECT_TRUE(FileExists(WorkPath("kept.bmp")));
    EXPECT_FALSE(SkipOpenDialog);
}

TEST_F(LoadFile, TheRequestAndNoFlagSaysWhatIsRead)
{
    const std::string path = Written(Iconset{ .resources = { Icon(3500) } }.File(), "t.vpt");

    EXPECT_EQ(
        vypx::LoadFile({ .path = path, .asTemplate = true }, listener).result, LoadResult::Opened);
    EXPECT_EQ(IconTable.at(0).LowResFile, "NEW");

    TemplateMode = SkipOpenDialog = DroppedFile = true;
    EXPECT_EQ(vypx::LoadFile({ .path = path }, listener).result, LoadResult::WrongFileType);
    EXPECT_TRUE(TemplateMode);
    EXPECT_TRUE(SkipOpenDialog);
}

TEST_F(LoadFile, FileLoadedIsFalseFromTheClearedTreeToTheEnd)
{
    Open(Iconset{ .resources = { Icon(3500) } }.File());
    std::vector<std::string> loadedAt;
    listener.during = [&](const std::string& step) {
        if (FileLoaded)
            loadedAt.push_back(step);
    };

    Open(Iconset{ .resources = { Icon(3500) } }.File());

    EXPECT_THAT(loadedAt, ElementsAre("begin", "folder", "opened", "stats", "stats"));
}

TEST_F(LoadFile, NoSlotStaysEmptyOnceTheFileIsOpen)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501, "abmp") } }.File());

    ASSERT_EQ(IconTable.size(), 2u);
    for (const IconRow& row : IconTable) {
        EXPECT_NE(row.LowResFile, "");
        EXPECT_EQ(row.HighResFile, "NEW");
    }
}

TEST_F(LoadFile, AnAbmpResourceHasARowButNoImages)
{
    Open(Iconset{ .resources = { Icon(3500), Icon(3501, "abmp") } }.File());

    ASSERT_EQ(IconTable.size(), 2u);
    EXPECT_EQ(IconTable[1].ResourceKey, "abmp3501");
    EXPECT_EQ(IconTable[1].LowResFile, "NEW");
    EXPECT_EQ(IconTable[1].HighResFile, "NEW");
    EXPECT_EQ(TimesOf(listener.steps, "maximum:2"), 2u) << "it counts";
    EXPECT_EQ(TimesOf(listener.steps, "progress:1"), 1u);
    EXPECT_EQ(TimesOf(listener.steps, "progress:2"), 0u) << "and is never done";
}

TEST_F(LoadFile, ARowWithoutImagesIsBlueInTheTree)
{
    Open(Iconset{ .resources = { Icon(3501, "abmp") } }.File());

    EXPECT_EQ(Tree.Nodes().at(0).colour, Blue);
}

TEST_F(LoadFile, ATemplateBringsRowsAndNoImages)
{
    TemplateMode = true;

    Open(Iconset{ .resources = { Icon(3500) } }.File(), "t.vpt");

    EXPECT_THAT(IconTable,
        Each(AllOf(Field(&IconRow::LowResFile, "NEW"), Field(&IconRow::HighResFile, "NEW"))));
    EXPECT_EQ(TimesOf(listener.steps, "busy:Getting Template, please wait...."), 1u);
}

TEST_F(LoadFile, ManyResourcesAreOverTheCapAndLeaveTheRootOnly)
{
    Iconset set{ .name = "Many" };
    for (int id = 0; id < 2001; ++id)
        set.resources.push_back({ .type = "data", .id = id, .data = {} });

    EXPECT_EQ(Open(set.File()), LoadResult::Opened);

    EXPECT_THAT(listener.messages, ElementsAre("Error parsing file!"));
    EXPECT_EQ(TimesOf(listener.steps, "given up"), 1u);
    EXPECT_EQ(Tree.Root(), "Many");
    EXPECT_THAT(Tree.Nodes(), IsEmpty());
    EXPECT_THAT(IconTable, IsEmpty());
}

TEST_F(LoadFile, TwoThousandResourcesAreNotOverTheCap)
{
    Iconset set;
    for (int id = 0; id < 2000; ++id)
        set.resources.push_back(Icon(id));

    EXPECT_EQ(Open(set.File()), LoadResult::Opened);

    EXPECT_THAT(listener.messages, IsEmpty());
    EXPECT_EQ(IconTable.size(), 2000u);
}

} // namespace
} // namespace vypx::test
