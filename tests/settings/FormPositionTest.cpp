#include "settings/Inifile.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

class FormPosition : public ::testing::Test {
protected:
    FormPosition() { ini.path(file); }

    TempFolder folder;
    std::string file = folder.File("test.ini");
    cInifile ini;
};

Placement OnAScreen()
{
    return { .left = 1000,
        .top = 2000,
        .width = 3000,
        .height = 4000,
        .screenWidth = 15000,
        .screenHeight = 12000 };
}

TEST_F(FormPosition, KeepsAWindowsPlace)
{
    ini.Section("Form");
    ini.key("mine");
    const Placement kept = OnAScreen();

    ini.SaveFormPosition(kept);

    EXPECT_EQ(ini.key(), "mine");
    EXPECT_EQ(ReadSystemText(file),
        "[Form]\nMaximised=0\nLeft=1000\nTop=2000\nWidth=3000\nHeight=4000\n");
    Placement other = OnAScreen();
    other.left = other.top = 60;
    other.width = other.height = 900;
    ini.LoadFormPosition(other, 100, 100);
    EXPECT_EQ(other, kept);
}

TEST_F(FormPosition, AMaximisedWindowKeepsThatOnlyAndAMinimisedOneNothing)
{
    ini.Section("Form");
    Placement window = OnAScreen();
    window.state = WindowState::Minimised;
    ini.SaveFormPosition(window);
    EXPECT_FALSE(std::filesystem::exists(file));

    window.state = WindowState::Maximised;
    ini.SaveFormPosition(window);
    EXPECT_EQ(ReadSystemText(file), "[Form]\nMaximised=1\n");

    Placement other = OnAScreen();
    ini.LoadFormPosition(other, 100, 100);
    EXPECT_EQ(other.state, WindowState::Maximised);
    EXPECT_EQ(other.left, 1000);
}

TEST_F(FormPosition, AWindowIsBroughtOntoItsScreen)
{
    WriteText(file, "[Form]\nLeft=-500\nTop=11000\nWidth=200\nHeight=4000\n");
    ini.Section("Form");
    ini.key("k");
    ini.Default("d");
    Placement window = OnAScreen();

    ini.LoadFormPosition(window, 900, 100);

    EXPECT_EQ(window.left, 60) << "4 pixels of 15 twips";
    EXPECT_EQ(window.width, 900);
    EXPECT_EQ(window.top, 12000 - 60 - 4000);
    EXPECT_EQ(window.height, 4000);
    EXPECT_EQ(ini.key() + ini.Default(), "kd");
}

TEST_F(FormPosition, AWindowWiderThanItsScreenIsCut)
{
    WriteText(file, "[Form]\nLeft=100\nTop=100\nWidth=90000\nHeight=500\n");
    ini.Section("Form");
    Placement window = OnAScreen();

    ini.LoadFormPosition(window, 100, 100);

    EXPECT_EQ(window.left, 60);
    EXPECT_EQ(window.width, 15000 - 60 - 60);
}

TEST_F(FormPosition, AScreenBelowTheLeastSizeLeavesTheWindowWhereItIs)
{
    WriteText(file, "[Form]\nLeft=100\nTop=100\nWidth=90000\nHeight=500\n");
    ini.Section("Form");
    Placement window = OnAScreen();

    ini.LoadFormPosition(window, 20000, 100);

    EXPECT_EQ(window, OnAScreen());
}

TEST_F(FormPosition, AMaximisedFormOfASizeThatIsNoNumberIsReadByTheFallbacks)
{
    WriteText(file, "[Form]\nLeft=x\nTop=\nWidth=1e99\nHeight=FAIL\nMaximised=1\n");
    ini.Section("Form");
    ini.key("k");
    ini.Default("d");
    Placement window = OnAScreen();
    const Placement before = window;

    ini.LoadFormPosition(window, 100, 100);

    EXPECT_EQ(window.width, before.width);
    EXPECT_EQ(window.height, before.height);
    EXPECT_EQ(window.state, WindowState::Maximised);
    EXPECT_EQ(ini.key() + ini.Default(), "kd");
}

TEST_F(FormPosition, AWindowThatIsHighEnoughButTooNarrowStaysToo)
{
    WriteText(file, "[Form]\nLeft=100\nTop=100\nWidth=500\nHeight=90000\n");
    ini.Section("Form");
    Placement window = OnAScreen();

    ini.LoadFormPosition(window, 100, 20000);

    EXPECT_EQ(window.left, OnAScreen().left);
    EXPECT_EQ(window.height, OnAScreen().height);
}

TEST_F(FormPosition, APlaceThatNoNumberTellsIsAFailure)
{
    WriteText(file, "[Form]\nLeft=100\nMaximised=1\n");
    ini.Section("Form");
    ini.key("Top");
    ini.Value("100");
    ASSERT_TRUE(ini.Success());
    ini.key("k");
    ini.Default("d");
    // The margin of four pixels is beyond 32 bits in one of the directions.
    for (std::int32_t Placement::*pixel :
        { &Placement::twipsPerPixelX, &Placement::twipsPerPixelY }) {
        Placement window = OnAScreen();
        window.*pixel = 1'000'000'000;
        const Placement before = window;

        ini.LoadFormPosition(window, 100, 100);

        EXPECT_EQ(window.left, before.left);
        EXPECT_EQ(window.top, before.top);
        EXPECT_EQ(window.width, before.width);
        EXPECT_EQ(window.state, WindowState::Normal);
        EXPECT_EQ(ini.LastReturnCode(), 0);
        EXPECT_EQ(ini.key() + ini.Default(), "kd");
    }
}

TEST_F(FormPosition, AWindowThatTouchesTheMarginsIsNotMoved)
{
    WriteText(file, "[Form]\nLeft=60\nTop=60\nWidth=14880\nHeight=11880\n");
    ini.Section("Form");
    Placement window = OnAScreen();

    ini.LoadFormPosition(window, 14880, 11880);

    EXPECT_EQ(window.left, 60);
    EXPECT_EQ(window.width, 15000 - 120);
    EXPECT_EQ(window.top, 60);
    EXPECT_EQ(window.height, 12000 - 120);
}

} // namespace
} // namespace vypx::test
