#pragma once

#include "processes/Child.h"
#include "support/TempFolder.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace vypx::test {

/// Pixels from the screen's top left corner.
struct Place {
    int x = 0, y = 0;
};

/// Polls until `holds` is true; false when that takes longer than `seconds`. `between` runs after
/// each look in vain.
bool WaitUntil(const std::function<bool()>& holds, const std::function<void()>& between = {},
    int seconds = 15);

/// A screen of its own, 1280 x 900 pixels, with a window manager.
class Screen {
public:
    Screen();

    /// A program that runs on the screen.
    std::unique_ptr<Child> Start(std::vector<std::string> command) const;
    /// Runs a tool to its end and gives what it wrote, line by line.
    std::vector<std::string> Run(std::vector<std::string> command) const;

    void MovePointer(Place to) const;
    void PressPointer() const;
    void ReleasePointer() const;
    /// Where the pointer is.
    void Click() const;
    /// Presses and releases a key by its name for X.
    void Key(const std::string& key) const;

private:
    std::vector<std::string> OnScreen(std::vector<std::string> command) const;

    Child m_server;
    std::string m_display;
    std::unique_ptr<Child> m_windowManager;
};

/// The program, started in a fresh folder on a screen of its own. What its user sees and does is
/// asked of it and told to it line by line (Program.cpp).
class ScreenFixture : public ::testing::Test {
protected:
    /// What the program shows before its main window can be used.
    enum class Greets { Nothing, SplashAndTip };

    explicit ScreenFixture(Greets greets = Greets::Nothing);

    /// The answer to one command.
    std::string Ask(const std::string& command);
    /// Where a control can be pointed at.
    Place At(const std::string& control);
    /// Clicks a control once the pointer is on it: a window may still be on its way to its place.
    void Click(const std::string& control);
    bool IsVisible(const std::string& window) { return Ask("visible " + window) == "yes"; }
    bool WaitForText(const std::string& control, const std::string& text);
    bool WaitForWindow(const std::string& window, bool visible = true);

    TempFolder folder; ///< the program's
    Screen screen;
    std::unique_ptr<Child> program;
};

} // namespace vypx::test
