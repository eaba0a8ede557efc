#include "screen/Screen.h"
#include "support/Files.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;

/// Pictures go from and to other programs through the clipboard.
class ClipboardOnScreen : public ScreenFixture {
protected:
    ClipboardOnScreen()
    {
        EXPECT_EQ(Ask("open " VYPX_SHIPPED_DATA "/samples/first-set.prc"), "ok");
        EXPECT_EQ(Ask("select Palm Calendar (palmOne) (Large Icon)"), "ok");
    }

    /// What a shell command in the program's folder writes.
    std::vector<std::string> Shell(const std::string& command)
    {
        return screen.Run({ "/bin/sh", "-c", "cd '" + folder.Path() + "' && " + command });
    }
    /// Another program puts that file of the folder on the clipboard.
    void PutOnClipboard(const std::string& file, const std::string& type)
    {
        owner = screen.Start(
            { "xclip", "-quiet", "-selection", "clipboard", "-t", type, "-i", folder.File(file) });
        EXPECT_TRUE(WaitUntil([&] {
            const std::vector<std::string> types =
                Shell("xclip -selection clipboard -t TARGETS -o 2>&1");
            return std::find(types.begin(), types.end(), type) != types.end();
        })) << "xclip does not offer "
            << type;
    }
    void BeOwnedBy(const std::string& how)
    {
        owner = screen.Start({ VYPX_CLIPBOARD_OWNER, how });
        EXPECT_EQ(owner->ReadLine(), "ready");
    }
    /// The box gets the keys a moment after it came up.
    void CloseBox()
    {
        EXPECT_TRUE(WaitUntil([this] { return Ask("box").empty(); },
            [this] {
                screen.Run({ "xdotool", "key", "Return" });
            }));
    }
    /// Number of pixels that differ between two files, as ImageMagick counts them.
    std::string Difference(const std::string& one, const std::string& other)
    {
        const std::vector<std::string> lines =
            Shell("compare -metric AE '" + one + "' '" + other + "' null: 2>&1 </dev/null; echo");
        return lines.empty() ? "none" : lines[0];
    }

    std::unique_ptr<Child> owner;
};

TEST_F(ClipboardOnScreen, APngAndABmpOfAnotherProgramArePasted)
{
    Shell("convert -size 20x15 gradient:red-blue -depth 8 in.png");
    Shell("convert -size 14x9 gradient:green-white -depth 8 bmp3:in.bmp");

    PutOnClipboard("in.png", "image/png");
    Click("cmdPastePicLG");
    EXPECT_TRUE(WaitForText("lbl_LGsize", "20 x 15 pixels"));
    EXPECT_EQ(Difference("in.png", Ask("stored LG")), "0");

    PutOnClipboard("in.bmp", "image/bmp");
    Click("cmdPastePicSM");
    EXPECT_TRUE(WaitForText("lbl_SMsize", "14 x 9 pixels"));
    EXPECT_EQ(Difference("in.bmp", Ask("stored SM")), "0");
}

TEST_F(ClipboardOnScreen, AnotherProgramGetsTheStoredPixelsAsPngAndAsBmp)
{
    Shell("convert -size 20x15 plasma:red-blue -depth 8 in.png");
    PutOnClipboard("in.png", "image/png");
    Click("cmdPastePicLG");
    EXPECT_TRUE(WaitForText("lbl_LGsize", "20 x 15 pixels"));

    for (const auto& [button, slot] :
        { std::pair{ "cmdCopyClipLG", "stored LG" }, std::pair{ "cmdCopyClipSM", "stored SM" } }) {
        Click(button);
        EXPECT_TRUE(WaitUntil([this] { return Ask("clipboard") == "ours"; }));

        EXPECT_THAT(Shell("xclip -selection clipboard -t TARGETS -o"),
            ::testing::IsSupersetOf({ "image/png", "image/bmp" }));
        for (const std::string type : { "png", "bmp" }) {
            Shell("xclip -selection clipboard -t image/" + type + " -o >out." + type);
            EXPECT_EQ(Difference("out." + type, Ask(slot)), "0") << button << " " << type;
        }
        owner = screen.Start({ "xclip", "-quiet", "-selection", "clipboard", "-i", "/dev/null" });
        EXPECT_TRUE(WaitUntil([this] { return Ask("clipboard") == "not ours"; }));
    }
}

TEST_F(ClipboardOnScreen, ALargePictureOfAnotherProgramOpensTheCropWindow)
{
    Shell("convert -size 2000x1200 plasma:red-blue -depth 8 in.png"); // more than one transfer
    PutOnClipboard("in.png", "image/png");

    Click("cmdPastePicLG");

    EXPECT_TRUE(WaitForWindow("frmCrop"));
    EXPECT_EQ(Ask("box"), "");
}

TEST_F(ClipboardOnScreen, GarbageIsToldAndTheProgramGoesOn)
{
    WriteText(folder.File("garbage"), "\x89PNG no, this is none");
    PutOnClipboard("garbage", "image/png");
    const std::string before = Ask("text lbl_LGsize");

    Click("cmdPastePicLG");

    EXPECT_TRUE(WaitUntil([this] { return !Ask("box").empty(); }));
    EXPECT_EQ(Ask("box"),
        "The picture was not changed.|The clipboard's picture was not pasted: it is no picture "
        "that "
        "can be read here.");
    CloseBox();
    EXPECT_EQ(Ask("text lbl_LGsize"), before);
}

TEST_F(ClipboardOnScreen, AProgramThatAnswersSlowlyIsWaitedFor)
{
    BeOwnedBy("slow");

    Click("cmdPastePicLG");

    EXPECT_TRUE(WaitForText("lbl_LGsize", "9 x 6 pixels"));
    EXPECT_EQ(Ask("visible lblWorking"), "no");
}

TEST_F(ClipboardOnScreen, AProgramThatDiesWhenItIsAskedIsToldOf)
{
    BeOwnedBy("dies");
    const std::string before = Ask("text lbl_LGsize");

    Click("cmdPastePicLG");

    EXPECT_TRUE(WaitUntil([this] { return !Ask("box").empty(); }));
    EXPECT_THAT(Ask("box"), HasSubstr("the program that it comes from does not hand it over"));
    CloseBox();
    EXPECT_EQ(Ask("text lbl_LGsize"), before);
}

TEST_F(ClipboardOnScreen, AProgramThatHangsIsNotWaitedForForEver)
{
    const std::string before = Ask("text lbl_LGsize");
    BeOwnedBy("hangs");

    Click("cmdPastePicLG");

    EXPECT_TRUE(WaitUntil([this] { return !Ask("box").empty(); })) << "it goes on";
    EXPECT_THAT(Ask("box"), HasSubstr("does not answer"));
    CloseBox();
    EXPECT_EQ(Ask("visible lblWorking"), "no");
    EXPECT_EQ(Ask("text lbl_LGsize"), before);
    Shell("convert -size 20x15 gradient:red-blue in.png");
    PutOnClipboard("in.png", "image/png");
    Click("cmdPastePicLG");
    EXPECT_TRUE(WaitForText("lbl_LGsize", "20 x 15 pixels"));
}

TEST_F(ClipboardOnScreen, AHeldKeyPastesOnce)
{
    Shell("convert -size 20x15 gradient:red-blue -depth 8 in.png");
    const std::string stored = Ask("stored LG");
    Shell("cp '" + stored + "' before.bmp");
    PutOnClipboard("in.png", "image/png");
    Click("picLGfrm");

    screen.Run({ "xdotool", "keydown", "ctrl", "keydown", "v" });
    EXPECT_TRUE(WaitForText("lbl_LGsize", "20 x 15 pixels"));
    Shell("sleep 1.2"); // as long as a hand may rest on the key
    screen.Run({ "xdotool", "keyup", "v", "keyup", "ctrl" });

    EXPECT_EQ(Ask("text lbl_LGsize"), "20 x 15 pixels");
    EXPECT_EQ(Shell("cmp before.bmp '" + stored + ".bak' && echo same"),
        std::vector<std::string>{ "same" })
        << "undo goes back to the picture before";
}

TEST_F(ClipboardOnScreen, TheMenuComesByTheRightButtonAndByItsKeys)
{
    const auto key = [this](const char* name) { screen.Run({ "xdotool", "key", name }); };
    const auto opensBy = [&](const std::function<void()>& act) {
        act();
        const bool opens = WaitForWindow("mnuCopyPasteLG");
        key("Escape");
        EXPECT_TRUE(WaitForWindow("mnuCopyPasteLG", false));
        return opens;
    };

    EXPECT_TRUE(opensBy([&] {
        screen.MovePointer(At("picLG"));
        screen.Run({ "xdotool", "click", "3" });
    }));
    Click("picLGfrm");
    EXPECT_TRUE(opensBy([&] { key("Menu"); }));
    EXPECT_TRUE(opensBy([&] { key("shift+F10"); }));

    key("Menu");
    EXPECT_TRUE(WaitForWindow("mnuCopyPasteLG"));
    key("Down"); // Undo is greyed
    key("Return");
    EXPECT_TRUE(WaitUntil([this] { return Ask("clipboard") == "ours"; }));
}

} // namespace
} // namespace vypx::test
