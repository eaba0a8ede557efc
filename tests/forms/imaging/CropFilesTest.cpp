#include "CropFixture.h"

#include <filesystem>

namespace vypx::test {

namespace {

class CropFiles : public CropFixture {
protected:
    static bool Exists(const std::string& name) { return NamedFileExists(WorkPath(name)); }
    static QStringList Pictures()
    {
        QStringList names;
        for (const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
            names << QString::fromStdString(entry.path().filename().string());
        return names;
    }
    void ChangeBorder()
    {
        Push("cmdChangeBackColor");
        Push(Border(), "cmdOK");
    }
};

} // namespace

TEST_F(CropFiles, UpTo2400PixelsThePictureWaitsAsItIs)
{
    OpenCrop(2400, 50);

    EXPECT_EQ(WorkPicture("temp.bmp"), Blocks(2400, 50));
    EXPECT_FALSE(Exists("lgtemp.bmp"));
}

TEST_F(CropFiles, ALargerOneIsHalvedOnDisk)
{
    OpenCrop(2402, 50); // 1201 x 25: each block is a pixel

    const vypx::Picture half = WorkPicture("lgtemp.bmp");
    ASSERT_EQ(SizeOf(half), QSize(1201, 25));
    for (int y = 0; y < 25; ++y)
        for (int x = 0; x < 1201; ++x)
            ASSERT_EQ(half.At(x, y), BlockColour(x, y)) << x << ", " << y;
    EXPECT_EQ(WorkPicture("temp.bmp"), half) << "it takes the source's place";
    EXPECT_EQ(View().width(), 300) << "a quarter: 300.25";
}

TEST_F(CropFiles, AHighOneIsHalvedTooAndOddPixelsAreDropped)
{
    OpenCrop(51, 2401);

    EXPECT_EQ(SizeOf(WorkPicture("lgtemp.bmp")), QSize(25, 1200));
    EXPECT_EQ(SizeOf(WorkPicture("temp.bmp")), QSize(25, 1200));
}

TEST_F(CropFiles, AnOldHalfIsReplaced)
{
    OpenCrop(2500, 60);
    Cancel();
    OpenCrop(2402, 50);
    EXPECT_EQ(SizeOf(WorkPicture("lgtemp.bmp")), QSize(1201, 25));
    Cancel();

    OpenCrop(128, 88); // and one that is left over is not taken for this picture's
    Push("optStretch");
    Push("optMaintainAspect");
    EXPECT_EQ(View().width(), 128);
    Ok();

    EXPECT_EQ(StoredLG().At(0, 0), BlockColour(16, 11));
}

/// The half is 1280 x 800, of blocks of 2 x 2; four of its pixels are one of the view and of the
/// slot.
TEST_F(CropFiles, TheHalfIsCutAtItsOwnScale)
{
    vypx::Picture picture(2560, 1600);
    for (int y = 0; y < 1600; ++y)
        for (int x = 0; x < 2560; ++x)
            picture.Set(x, y, BlockColour(x / 8, y / 8));
    OpenCrop(picture);
    ASSERT_EQ(View().size(), QSize(320, 320)); // the picture from row 60 on
    ASSERT_EQ(Rectangle(), QRect(128, 138, 64, 44));
    DragLeft({ 160, 160 }, { 150, 170 });

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    for (int y = 0; y < 44; ++y)
        for (int x = 0; x < 64; ++x)
            ASSERT_EQ(stored.At(x, y), BlockColour(118 + x, 88 + y)) << x << ", " << y;
}

TEST_F(CropFiles, TheHalfIsStretched)
{
    OpenCrop(2560, 88); // 1280 x 44: twenty columns are one
    Push("optStretch");
    EXPECT_EQ(View().size(), QSize(64, 44));

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    EXPECT_NEAR(stored.At(0, 0).red, 9.5, 0.6) << "the mean of 0 to 19";
    EXPECT_EQ(stored.At(0, 0).green, 0);
    EXPECT_EQ(stored.At(20, 43).green, 43);
    EXPECT_NEAR(stored.At(2, 7).red, 49.5, 0.6);
}

TEST_F(CropFiles, AHalfThatIsLargeItselfIsNotHalvedOnceMore)
{
    OpenCrop(4992, 24); // 2496 x 12, a sixth of it in the view
    ASSERT_EQ(View().size(), QSize(416, 416));
    DragLeft({ 200, 200 }, { 190, 205 });
    const QRect before = Rectangle();

    ChangeBorder();
    EXPECT_EQ(View().size(), QSize(416, 416));
    EXPECT_EQ(Rectangle(), before);
    EXPECT_EQ(SizeOf(WorkPicture("temp.bmp")), QSize(2496, 12));
    EXPECT_EQ(SizeOf(WorkPicture("lgtemp.bmp")), QSize(2496, 12));
    Push("optStretch");
    Push("optMaintainAspect");
    EXPECT_EQ(View().size(), QSize(416, 416));
    ChangeBorder();

    EXPECT_EQ(View().size(), QSize(416, 416));
    EXPECT_EQ(SizeOf(WorkPicture("temp.bmp")), QSize(2496, 12));
}

TEST_F(CropFiles, AfterACutTheScratchPictureHasTheTargetsSize)
{
    OpenCrop(700, 500);
    Ok();

    EXPECT_EQ(SizeOf(WorkPicture("temp.bmp")), QSize(64, 44));
    for (const QString& name : Pictures())
        EXPECT_FALSE(name.contains("new") || name.contains("tempx")) << name.toStdString();
}

TEST_F(CropFiles, APictureThatHasGoneIsTold)
{
    OpenCrop(700, 500);
    std::filesystem::remove(WorkPath("temp.bmp"));
    ask.Answer(QMessageBox::Ok);

    Push("optStretch");

    EXPECT_EQ(ask.shown.back().text, "Unable to load original image!");
    EXPECT_EQ(ask.shown.back().title, Box{}.title);
    EXPECT_EQ(ask.shown.back().buttons, QMessageBox::Ok);
    ASSERT_TRUE(IsOpen());
    Cancel();
    EXPECT_TRUE(frame->isEnabled());
    EXPECT_TRUE(IsUntouched(StoredLG()));
}

TEST_F(CropFiles, APictureThatHasGoneIsToldForANewBorderToo)
{
    OpenCrop(700, 500);
    std::filesystem::remove(WorkPath("temp.bmp"));
    ask.Answer(QMessageBox::Ok);

    ChangeBorder();

    EXPECT_EQ(ask.shown.back().text, "Unable to load original image!");
    EXPECT_FALSE(IsOpen("frmChangeBackColor"));
    Cancel();
    EXPECT_TRUE(frame->isEnabled());
}

/// What happens to the working folder while the window stands.
struct Harm {
    const char* name;
    void (*act)();
};

/// Whatever comes up is clicked away. In the end the icon has its old picture or a whole new one,
/// what failed was told, and the program goes on.
class CropHarm : public CropFixture, public ::testing::WithParamInterface<Harm> {
protected:
    void SetUp() override { ask.AnswerFurther(QMessageBox::Ok); }

    void ExpectOldOrNew()
    {
        const vypx::Picture stored = StoredLG();
        const bool isNew = SizeOf(stored) == QSize(64, 44);
        const bool isGone = stored.IsNull() && !DirExists(WorkFolder());
        EXPECT_TRUE(isNew || isGone || IsUntouched(stored));
        EXPECT_TRUE(isNew || !ask.shown.empty() || Note() != "") << "a failure that nobody told";
        if (IsOpen())
            Cancel();
        EXPECT_FALSE(IsOpen());
        EXPECT_TRUE(frame->isEnabled());
        MakeFolder(WorkFolder());
        for (const char* name : { "temp.bmp", "lgtemp.bmp" })
            std::filesystem::remove_all(WorkPath(name));
        ExpectTheNextImportWorks();
    }
    void ExpectTheNextImportWorks()
    {
        Click("Beta (Large Icon)");
        OpenCrop(700, 500);
        ASSERT_TRUE(IsOpen());
        Ok();
        EXPECT_EQ(WorkPicture("tAIB3502-d144.bmp").At(0, 0), BlockColour(143, 103));
    }
};

TEST_P(CropHarm, BeforeACut)
{
    OpenCrop(700, 500);
    GetParam().act();

    Ok();

    ExpectOldOrNew();
}

TEST_P(CropHarm, BeforeAStretchedOne)
{
    OpenCrop(700, 500);
    Push("optStretch");
    GetParam().act();

    Ok();

    ExpectOldOrNew();
}

TEST_P(CropHarm, BeforeTheModesAreChanged)
{
    OpenCrop(2560, 100);
    GetParam().act();

    Push("optStretch");
    Push("optAspectSquare");
    Push("optMaintainAspect");
    Push("optAspectIcon");
    if (IsOpen())
        Ok();

    ExpectOldOrNew();
}

TEST_P(CropHarm, BeforeANewBorder)
{
    OpenCrop(2560, 100);
    Push("cmdChangeBackColor");
    GetParam().act();

    Push(Border(), "cmdOK");
    if (IsOpen())
        Ok();

    ExpectOldOrNew();
}

INSTANTIATE_TEST_SUITE_P(Kinds, CropHarm,
    ::testing::Values(
        Harm{ "ThePictureVanishes", [] { std::filesystem::remove(WorkPath("temp.bmp")); } },
        Harm{ "TheHalfVanishes", [] { std::filesystem::remove(WorkPath("lgtemp.bmp")); } },
        Harm{ "BothVanish",
            [] {
                std::filesystem::remove(WorkPath("temp.bmp"));
                std::filesystem::remove(WorkPath("lgtemp.bmp"));
            } },
        Harm{ "GarbageReplacesThem",
            [] {
                WriteText(WorkPath("temp.bmp"), "no picture");
                WriteText(WorkPath("lgtemp.bmp"), "");
            } },
        Harm{ "AnotherPictureReplacesThem",
            [] {
                WriteBytes(WorkPath("temp.bmp"), EncodeBmp24(vypx::Picture(3, 2)));
                WriteBytes(WorkPath("lgtemp.bmp"), EncodeBmp24(vypx::Picture(9000, 1)));
            } },
        Harm{ "FoldersReplaceThem",
            [] {
                for (const char* name : { "temp.bmp", "lgtemp.bmp" }) {
                    std::filesystem::remove(WorkPath(name));
                    std::filesystem::create_directory(WorkPath(name));
                    WriteText(WorkPath(name) + "/x", "x");
                }
            } },
        Harm{ "TheFolderVanishes", [] { std::filesystem::remove_all(WorkFolder()); } }),
    [](const auto& harm) -> std::string { return harm.param.name; });

} // namespace vypx::test
