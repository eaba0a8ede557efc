#include "screen/Screen.h"

#include "support/Files.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <sstream>
#include <thread>

namespace vypx::test {

bool WaitUntil(
    const std::function<bool()>& holds, const std::function<void()>& between, int seconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!holds()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        if (between)
            between();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
}

Screen::Screen()
    : m_server({ "/usr/bin/env", "Xvfb", "-displayfd", "1", "-screen", "0", "1280x900x24",
        "-nolisten", "tcp", "-noreset" })
    , m_display(m_server.ReadLine())
{
    EXPECT_NE(m_display, "") << "no screen";
    m_windowManager = Start({ "openbox" });
    // A window that is mapped while the window manager is still starting is never managed by it.
    EXPECT_TRUE(WaitUntil([this] {
        const auto lines = Run({ "xprop", "-root", "_NET_SUPPORTING_WM_CHECK" });
        return !lines.empty() && lines[0].find("window id") != std::string::npos;
    })) << "no window manager";
}

std::vector<std::string> Screen::OnScreen(std::vector<std::string> command) const
{
    std::vector<std::string> all{ "/usr/bin/env", "-u", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM=xcb",
        "DISPLAY=:" + m_display };
    all.insert(all.end(), command.begin(), command.end());
    return all;
}

std::unique_ptr<Child> Screen::Start(std::vector<std::string> command) const
{
    return std::make_unique<Child>(OnScreen(std::move(command)));
}

std::vector<std::string> Screen::Run(std::vector<std::string> command) const
{
    Child tool(OnScreen(std::move(command)));
    std::vector<std::string> lines;
    for (std::string line = tool.ReadLine(); !line.empty(); line = tool.ReadLine())
        lines.push_back(line);
    tool.Wait();
    return lines;
}

void Screen::MovePointer(Place to) const
{
    Run({ "xdotool", "mousemove", std::to_string(to.x), std::to_string(to.y) });
}

void Screen::PressPointer() const { Run({ "xdotool", "mousedown", "1" }); }

void Screen::ReleasePointer() const { Run({ "xdotool", "mouseup", "1" }); }

void Screen::Click() const { Run({ "xdotool", "click", "1" }); }

void Screen::Key(const std::string& key) const { Run({ "xdotool", "key", key }); }

ScreenFixture::ScreenFixture(Greets greets)
{
    const bool isGreeted = greets == Greets::SplashAndTip;
    std::signal(SIGPIPE, SIG_IGN); // a program that has died fails its test and not all of them
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        std::filesystem::copy_file(std::string(VYPX_SHIPPED_DATA) + "/" + name, folder.File(name));
    WriteText(folder.File("VYPX.ini"),
        std::string("[Splash Screen]\nShow splash screen at startup=")
            + (isGreeted ? "True" : "False") + "\n[Main Window Size]\nWidth=14000\nHeight=9800\n");
    program = screen.Start({ VYPX_SCREEN_PROGRAM, folder.Path(), isGreeted ? "tip" : "no tip" });
    EXPECT_EQ(program->ReadLine(), "ready");
}

std::string ScreenFixture::Ask(const std::string& command)
{
    program->Say(command);
    return program->ReadLine();
}

Place ScreenFixture::At(const std::string& control)
{
    Place place;
    std::istringstream answer(Ask("at " + control));
    EXPECT_TRUE(answer >> place.x >> place.y) << control << " can't be pointed at";
    return place;
}

void ScreenFixture::Click(const std::string& control)
{
    EXPECT_TRUE(WaitUntil(
        [&] { return Ask("under " + control) == "yes"; }, [&] { screen.MovePointer(At(control)); }))
        << control;
    screen.Click();
}

bool ScreenFixture::WaitForText(const std::string& control, const std::string& text)
{
    return WaitUntil([&] { return Ask("text " + control) == text; });
}

bool ScreenFixture::WaitForWindow(const std::string& window, bool visible)
{
    return WaitUntil([&] { return IsVisible(window) == visible; });
}

} // namespace vypx::test
