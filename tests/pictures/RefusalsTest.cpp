#include "pictures/WitnessFixture.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace vypx::test {

namespace {

constexpr const char* NoPicture = "it is no picture that can be read here";

TEST(LoadPicture, RefusesWhatIsNoPicture)
{
    const TempFolder folder;
    WriteText(folder.File("text.png"), "Dear reader, this is no picture.\n");
    WriteText(folder.File("empty.png"), "");
    WriteText(folder.File("a.svg"),
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"><rect width=\"8\" "
        "height=\"8\"/></svg>");
    WriteText(folder.File("a.pdf"), "%PDF-1.4\n1 0 obj\n<</Type /Catalog>>\nendobj\n%%EOF\n");

    for (const char* name : { "text.png", "empty.png", "a.svg", "a.pdf" }) {
        const LoadedPicture loaded = LoadPicture(folder.File(name));
        EXPECT_TRUE(loaded.picture.pixels.IsNull()) << name;
        EXPECT_EQ(loaded.whyNot, NoPicture) << name;
        EXPECT_EQ(PixelsClaimed(folder.File(name)), 0) << name;
    }
}

TEST(LoadPicture, RefusesWhatIsNoFile)
{
    const TempFolder folder;
    ASSERT_EQ(::mkfifo(folder.File("pipe.png").c_str(), 0600), 0);

    EXPECT_EQ(LoadPicture(folder.File("missing.png")).whyNot, "it is not there");
    EXPECT_EQ(LoadPicture("").whyNot, "it is not there");
    EXPECT_EQ(LoadPicture(folder.Path()).whyNot, "it is a folder");
    EXPECT_EQ(LoadPicture(folder.File("pipe.png")).whyNot, NoPicture) << "and waits for no writer";
    EXPECT_EQ(LoadPicture("/dev/zero").whyNot, NoPicture);
    EXPECT_EQ(PixelsClaimed(folder.File("pipe.png")), 0);
}

TEST(LoadPicture, TakesAPathOfAnyLetters)
{
    const TempFolder folder;
    WritePpm(folder.File("B\xC3\xA4r \xE6\x97\xA5 [x] %1 #?.ppm"), Picture(2, 3));

    const LoadedPicture loaded = LoadPicture(folder.File("B\xC3\xA4r \xE6\x97\xA5 [x] %1 #?.ppm"));

    EXPECT_EQ(loaded.whyNot, "");
    EXPECT_EQ(loaded.picture.pixels, Picture(2, 3));
}

TEST(PictureEndings, AreSortedAndWithoutDrawings)
{
    const std::vector<std::string> endings = PictureEndings();

    EXPECT_TRUE(std::is_sorted(endings.begin(), endings.end()));
    EXPECT_THAT(endings,
        ::testing::IsSupersetOf(
            { "bmp", "gif", "ico", "jpeg", "jpg", "png", "pbm", "pgm", "ppm", "xbm", "xpm" }));
    EXPECT_THAT(endings, ::testing::Not(::testing::Contains("svg")));
    EXPECT_THAT(endings, ::testing::Not(::testing::Contains("pdf")));
}

TEST(PictureEndings, HaveTiffAndWebPWithThePackagesOfTheProject)
{
    EXPECT_THAT(PictureEndings(), ::testing::IsSupersetOf({ "tif", "tiff", "webp" }));
}

} // namespace

} // namespace vypx::test
