#include "imaging/Export.h"

#include "settings/Settings.h"
#include "support/PicturesFixture.h"
#include "support/Skips.h"

namespace vypx::test {

namespace {

/// Pictures go out as files.
class Exporting : public EachSlot {
protected:
    Exporting()
    {
        LastDirImageSave = "before";
        Fill(slot, Large, Many(16, 11));
        Select(Large);
    }

    ExportReport Export(const std::string& path) { return ExportPicture(slot, path); }
    std::string Target() const { return folder.File("out.bmp"); }
};
INSTANTIATE_TEST_SUITE_P(Slots, Exporting, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(Exporting, TheFileIsTheWorkingFileByteForByte)
{
    const ExportReport exported = Export(Target());

    EXPECT_EQ(exported.message, "");
    EXPECT_EQ(exported.note, "");
    EXPECT_EQ(ReadBytes(Target()), ReadBytes(slot.path));
    EXPECT_EQ(LastDirImageSave, folder.Path());
}

TEST_P(Exporting, AnOldFileIsReplaced)
{
    WriteText(Target(), "old");

    Export(Target());

    EXPECT_EQ(ReadBytes(Target()), ReadBytes(slot.path));
}

TEST_P(Exporting, AFileThatHasGoneIsToldAndNothingWritten)
{
    std::filesystem::remove(slot.path);

    EXPECT_EQ(Export(Target()).message, "Error saving image.");

    EXPECT_FALSE(NamedFileExists(Target()));
    EXPECT_EQ(LastDirImageSave, "before");
}

TEST_P(Exporting, AFolderThatIsNotThereIsNamedInTheNote)
{
    const ExportReport exported = Export(folder.File("missing/out.bmp"));

    EXPECT_EQ(exported.message, "");
    EXPECT_THAT(exported.note, ::testing::StartsWith("The picture was not exported: "));
    EXPECT_THAT(exported.note, ::testing::HasSubstr("missing"));
    EXPECT_EQ(LastDirImageSave, "before");
}

TEST_P(Exporting, AFolderInThePlaceOfTheFileStays)
{
    std::filesystem::create_directory(Target());

    EXPECT_NE(Export(Target()).note, "");

    EXPECT_TRUE(std::filesystem::is_directory(Target()));
}

constexpr const char* Refused = "The picture was not exported: the program keeps its working files "
                                "in that folder. Choose another one.";

TEST_P(Exporting, TheWorkingFileItselfIsRefused)
{
    SKIP_WITHOUT_LINKS();
    const Bytes before = ReadBytes(slot.path);

    EXPECT_EQ(Export(slot.path).message, Refused);
    std::filesystem::create_symlink(slot.path, Target());
    EXPECT_EQ(Export(Target()).message, Refused);

    EXPECT_EQ(ReadBytes(slot.path), before);
    EXPECT_EQ(LastDirImageSave, "before");
}

TEST_P(Exporting, TheWorkingFolderIsRefusedByEveryName)
{
    SKIP_WITHOUT_LINKS();
    const auto before = WorkFiles();
    std::filesystem::create_directory_symlink(WorkFolder(), folder.File("link"));

    EXPECT_EQ(Export(WorkPath("out.bmp")).message, Refused);
    EXPECT_EQ(Export(WorkPath("../" + LastComponent(WorkFolder()) + "/out.bmp")).message, Refused);
    EXPECT_EQ(Export(folder.File("link/out.bmp")).message, Refused);
    std::filesystem::create_symlink(WorkPath("new.bmp"), folder.File("dangling.bmp"));
    EXPECT_EQ(Export(folder.File("dangling.bmp")).message, Refused);
    std::filesystem::create_directory(WorkPath("below"));
    EXPECT_EQ(Export(WorkPath("below/out.bmp")).message, Refused);

    EXPECT_EQ(WorkFiles(), before);
}

/// At each depth.
class ExportedPictures : public Pictures, public ::testing::WithParamInterface<ColorDepth> {
protected:
    void ExpectTheSame(const Slot& slot)
    {
        const PixelSize size = slot.limitOfLarge;
        Select(Large);
        ASSERT_EQ(Import(slot, Many(size.width, size.height)), ImportResult::Stored);
        const std::string from = NameFor(slot, Large), to = NameFor(slot, Unknown);
        const Picture stored = Stored(from);
        const std::string out = folder.File("out.bmp");
        ExportPicture(slot, out);

        Select(Unknown); // whose size is the one that was kept
        host.choice = out;
        ASSERT_EQ(Again(slot), ImportResult::Stored);

        EXPECT_EQ(Stored(to), stored);
        EXPECT_EQ(TransparentColour(BitmapOf(to)), TransparentColour(BitmapOf(from)));
    }
};
INSTANTIATE_TEST_SUITE_P(Depths, ExportedPictures,
    ::testing::Values(ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16));

TEST_P(ExportedPictures, ComeBackTheSameIntoAnotherIcon)
{
    DefaultColorDepth = GetParam();

    ExpectTheSame(SlotLG);
    ExpectTheSame(SlotSM);
}

} // namespace

} // namespace vypx::test
