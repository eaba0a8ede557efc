#pragma once

#include "screen/Screen.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace vypx::test {

/// What a client is answered that is answered nothing.
inline const std::string Done = "()";

/// The title of a copy without a file, and of one with it.
inline const std::string Empty = "VY Pixelworks";
inline std::string TitleOf(const std::string& file) { return file + " - " + Empty; }

/// The real program, in as many copies as it likes, on a screen and a session bus of their own,
/// with a home of their own. No bus of this machine is touched.
class DesktopFixture : public ::testing::Test {
protected:
    DesktopFixture();
    ~DesktopFixture() override;

    /// Before a copy is started: what stands in the settings file.
    void WriteSettings(const std::string& text);
    /// A session bus that starts the program by its service file, the one that is installed.
    void StartBus();
    /// Where copies look for a bus. They find none before StartBus.
    void UseAddress(const std::string& address) { m_address = address; }

    /// A copy as a user starts it. What it writes to its standard error goes to File("errors").
    /// `environment`: what is added ("A=1").
    std::unique_ptr<Child> StartCopy(const std::vector<std::string>& environment = {});
    /// Waits for the copy to be on the bus as one of `count`; gives the names of all.
    std::vector<std::string> WaitForCopies(std::size_t count);
    std::vector<std::string> Copies() const;
    /// Ends the copy of that name as a crash would.
    static void Crash(const std::string& copy);
    static void Stop(const std::string& copy);
    static void Continue(const std::string& copy);
    /// What the copy was started with ("A=1").
    static std::vector<std::string> EnvironmentOf(const std::string& copy);
    /// Listens to the calls of that method from now on, and waits for the next one.
    std::unique_ptr<Child> Listen(const std::string& method) const;
    static void WaitForCall(const Child& listener, const std::string& method);

    /// What a client of the bus is answered, on one line; "error" where it is an error.
    std::string Call(const std::string& method, const std::vector<std::string>& arguments,
        const std::string& name = {}) const;
    /// The same, with arguments of whatever type: "int32:7".
    std::string Send(const std::string& method, const std::vector<std::string>& arguments) const;
    std::string Activate() const;
    std::string Open(const std::vector<std::string>& files) const;
    /// The same without waiting for the answer.
    std::unique_ptr<Child> BeginOpen(const std::vector<std::string>& files) const;
    bool IsFree(const std::string& copy) const;
    /// The name of the copy that hears what is sent to the main name.
    std::string Owner() const;

    /// How many windows are in sight with that title.
    std::size_t Windows(const std::string& title) const;
    bool WaitForWindow(const std::string& title, std::size_t count = 1) const;
    /// A file that can be opened.
    std::string Set(const std::string& name) const;
    std::string File(const std::string& name) const { return m_folder.File(name); }

    Screen screen;

private:
    std::vector<std::string> InSession(std::vector<std::string> command) const;
    std::string AnswerOf(const std::vector<std::string>& client) const;
    static std::vector<std::string> OneLine(std::vector<std::string> client);
    std::vector<std::string> ClientCall(const std::string& method,
        const std::vector<std::string>& arguments, const std::string& name) const;
    static std::vector<std::string> Uris(const std::vector<std::string>& files);

    TempFolder m_folder;
    std::string m_address = "unix:path=/nowhere";
    std::unique_ptr<Child> m_bus;
};

} // namespace vypx::test
