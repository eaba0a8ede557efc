#include "companion/BmpFile.h"
#include "screen/Screen.h"
#include "support/Files.h"

#include <sstream>

namespace vypx::test {

namespace {

/// Files that another program drags onto the window.
class DropsOnScreen : public ScreenFixture {
protected:
    DropsOnScreen()
    {
        EXPECT_EQ(Ask("open " VYPX_SHIPPED_DATA "/samples/first-set.prc"), "ok");
        EXPECT_EQ(Ask("select Palm Calendar (palmOne) (Large Icon)"), "ok");
    }

    /// A picture of that size.
    std::string PictureFile(const std::string& name, int width, int height)
    {
        WriteBytes(folder.File(name), EncodeBmp24(vypx::Picture(width, height)));
        return folder.File(name);
    }

    /// Another program begins to drag the files.
    void BeginDrag(std::vector<std::string> files)
    {
        // "123<tab>XdndFinished"; the program has made the atom known.
        const std::vector<std::string> atoms = screen.Run({ "xlsatoms", "-name", "XdndFinished" });
        EXPECT_EQ(atoms.size(), 1u);
        const std::string atom = atoms.empty() ? "" : std::to_string(std::stoul(atoms[0]));
        files.insert(files.begin(), { VYPX_DRAG_SOURCE, atom });
        source = screen.Start(files);
        Place from;
        std::string word;
        std::istringstream(source->ReadLine()) >> word >> from.x >> from.y;
        EXPECT_EQ(word, "ready");
        screen.MovePointer(from);
        screen.PressPointer();
    }

    /// Drags the files there and lets them go. Gives what the other program is told; it waits no
    /// longer than for that.
    std::string Drag(const std::vector<std::string>& files, const std::string& target)
    {
        const Place to = At(target);
        BeginDrag(files);
        int step = 0;
        const bool isThere = WaitUntil([&] { return Ask("hover") == target; },
            [&] {
                screen.MovePointer({ to.x + (++step & 1), to.y });
            },
            5);
        const std::string offer = isThere ? source->ReadLine() : "";
        EXPECT_EQ(offer, "taken") << target;
        screen.ReleasePointer();
        return isThere ? source->ReadLine() : "nothing was offered to " + target;
    }

    /// The same without a look at what the program is offered.
    std::string DragBlindly(const std::string& file, const std::string& target)
    {
        const Place to = At(target);
        BeginDrag({ file });
        for (int step = 0; step < 40; ++step) {
            screen.MovePointer({ to.x + (step & 1), to.y });
            Ask("hover");
        }
        screen.ReleasePointer();
        std::string last = source->ReadLine();
        while (last == "taken" || last == "refused")
            last = source->ReadLine();
        return last;
    }

    std::unique_ptr<Child> source;
};

TEST_F(DropsOnScreen, OnEachPartOfTheWindowTheFirstPictureGoesWhereTheUserSays)
{
    int width = 9;
    for (const char* target : { "MDIForm1", "Form1", "TreeView1", "frameKey", "frameLG", "frameSM",
             "frameTC_LG", "frameTC_SM" }) {
        const std::string size = std::to_string(++width) + " x 4 pixels";
        const std::string first = PictureFile("first.bmp", width, 4);
        const std::string second = PictureFile("second.bmp", 2, 2);

        EXPECT_EQ(Drag({ first }, target), "done copied") << target;
        EXPECT_TRUE(WaitForWindow("frmDropIconTarget")) << target;
        Click("cmdApplytoHighRes");
        EXPECT_TRUE(WaitForText("lbl_LGsize", size)) << target;
        EXPECT_TRUE(WaitForWindow("frmDropIconTarget", false)) << target;

        EXPECT_EQ(Drag({ first, second }, target), "done copied") << target;
        EXPECT_TRUE(WaitForWindow("frmDropIconTarget")) << target;
        Click("cmdApplytoLowRes");
        EXPECT_TRUE(WaitForText("lbl_SMsize", size)) << target;
        EXPECT_TRUE(WaitForWindow("frmDropIconTarget", false)) << target;
    }
}

TEST_F(DropsOnScreen, OnEachPanelsPictureTheFirstPictureGoesThere)
{
    int width = 9;
    for (const auto& [target, size] :
        { std::pair{ "picLG", "lbl_LGsize" }, std::pair{ "picLGfrm", "lbl_LGsize" },
            std::pair{ "picSM", "lbl_SMsize" }, std::pair{ "picSMfrm", "lbl_SMsize" } }) {
        const std::string second = PictureFile("second.bmp", 2, 2);

        EXPECT_EQ(Drag({ PictureFile("first.bmp", ++width, 10) }, target), "done copied");
        EXPECT_TRUE(WaitForText(size, std::to_string(width) + " x 10 pixels")) << target;

        EXPECT_EQ(Drag({ PictureFile("first.bmp", ++width, 10), second }, target), "done copied");
        EXPECT_TRUE(WaitForText(size, std::to_string(width) + " x 10 pixels")) << target;
    }
    EXPECT_FALSE(IsVisible("frmDropIconTarget"));
}

TEST_F(DropsOnScreen, TheOtherProgramGoesOnWhileTheQuestionStands)
{
    Ask("changed");
    const std::string path = folder.File("other.prc");
    WriteBytes(path, ReadBytes(VYPX_TEST_DATA "/iconsets/chain.prc"));

    EXPECT_EQ(Drag({ path }, "TreeView1"), "done copied");

    EXPECT_EQ(source->ReadLine(), "finished") << "before anybody has answered";
    EXPECT_TRUE(WaitUntil([this] {
        return Ask("box")
            == "The current iconset has been modified.|Are you sure you want to load a different "
               "iconset?";
    }));
    // The box gets the keys a moment after it came up.
    EXPECT_TRUE(WaitUntil([this] { return Ask("root") == "chain"; },
        [this] {
            screen.Run({ "xdotool", "key", "Return" });
        }));
    EXPECT_EQ(Ask("box"), "");
}

TEST_F(DropsOnScreen, WhileAWindowDisablesTheFrameNothingIsTaken)
{
    EXPECT_EQ(Drag({ PictureFile("large.bmp", 100, 80) }, "picLGfrm"), "done copied");
    EXPECT_TRUE(WaitForWindow("frmCrop"));
    const std::string small = PictureFile("small.bmp", 4, 4);

    EXPECT_EQ(DragBlindly(small, "frameKey"), "done refused");

    EXPECT_TRUE(IsVisible("frmCrop"));
    EXPECT_FALSE(IsVisible("frmDropIconTarget"));
    EXPECT_TRUE(WaitUntil([this] { return !IsVisible("frmCrop"); },
        [this] {
            screen.Run({ "xdotool", "key", "Escape" });
        }));
    EXPECT_EQ(DragBlindly(small, "frameKey"), "done copied") << "afterwards it is taken";
    EXPECT_TRUE(WaitForWindow("frmDropIconTarget"));
}

} // namespace
} // namespace vypx::test
