#include "support/CroppingFixture.h"

namespace vypx::test {

namespace {

/// Gone, or no picture any more.
class CroppingLostFiles : public Cropping, public ::testing::WithParamInterface<bool> {
protected:
    static void Lose(const std::string& name)
    {
        std::filesystem::remove(WorkPath(name));
        if (GetParam())
            WriteText(WorkPath(name), "no picture");
    }
};
INSTANTIATE_TEST_SUITE_P(Ways, CroppingLostFiles, ::testing::Bool());

TEST_P(CroppingLostFiles, AreToldWhenTheWindowOpens)
{
    CropTask task = Waiting(100, 60);
    Lose("temp.bmp");

    EXPECT_EQ(task.CropFrmLoad(), "Unable to load original image!");
    EXPECT_TRUE(task.Shown().pixels.IsNull());
    EXPECT_EQ(task.Crop(), "Error Processing Image!");
}

TEST_P(CroppingLostFiles, AreToldInEveryLaterStep)
{
    CropTask task = Waiting(100, 60);
    task.CropFrmLoad();
    Lose("temp.bmp");

    EXPECT_EQ(task.Crop(), "Error Processing Image!");
    EXPECT_EQ(task.StretchPreview(), "Unable to load original image!");
    EXPECT_EQ(task.Stretch(), "Unable to load original image!");
    EXPECT_EQ(task.PicFit(), "Unable to load original image!");
    EXPECT_EQ(NamedFileExists(WorkPath("temp.bmp")), GetParam());
}

TEST_P(CroppingLostFiles, TheHalfIsCutThoughItsSecondFileIsGone)
{
    CropTask task = Waiting(3000, 60);
    task.CropFrmLoad();
    Lose("temp.bmp");

    EXPECT_EQ(task.Crop(), "");
    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 64, 44 }));
}

TEST_F(Cropping, AHalfThatCantBeWrittenLeavesThePictureToCancelOrStretch)
{
    CropTask task = Waiting(3000, 60);
    Block("lgtemp.bmp");

    EXPECT_THROW(task.CropFrmLoad(), PictureFault);

    EXPECT_TRUE(task.Shown().pixels.IsNull());
    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 3000, 60 }));
    EXPECT_EQ(task.Stretch(), "");
}

TEST_F(Cropping, AHalfThatCantTakeThePicturesPlaceIsNotShownNorCut)
{
    CropTask task = Waiting(3000, 60);
    std::filesystem::create_directory(WorkPath("temp.bmp.new.bmp")); // where it is written first

    EXPECT_THROW(task.CropFrmLoad(), PictureFault);

    EXPECT_TRUE(task.Shown().pixels.IsNull());
    EXPECT_EQ(task.Crop(), "Error Processing Image!");
    EXPECT_EQ(SizeOf("temp.bmp"), (PixelSize{ 3000, 60 }));
}

TEST_F(Cropping, AResultThatCantBeWrittenIsAFault)
{
    CropTask task = Waiting(3000, 60);
    task.CropFrmLoad();
    Block("temp.bmp");

    EXPECT_THROW(task.Crop(), PictureFault);
}

} // namespace

} // namespace vypx::test
