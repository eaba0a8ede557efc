#include "screen/DesktopFixture.h"

#include "document/Product.h"
#include "support/Files.h"
#include "support/Iconsets.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <regex>

namespace vypx::test {

namespace {

const std::string BusName(ApplicationId);
const std::string CopyPrefix = BusName + ".Copy";

std::string BusPath()
{
    std::string path = "/" + BusName;
    std::replace(path.begin(), path.end(), '.', '/');
    return path;
}

/// The words between apostrophes.
std::vector<std::string> Quoted(const std::string& text)
{
    std::vector<std::string> words;
    for (std::size_t at = 0; (at = text.find('\'', at)) != std::string::npos;) {
        const std::size_t end = text.find('\'', at + 1);
        words.push_back(text.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    return words;
}

pid_t ProcessOf(const std::string& copy)
{
    return static_cast<pid_t>(std::stol(copy.substr(CopyPrefix.size())));
}

} // namespace

DesktopFixture::DesktopFixture()
{
    std::signal(SIGPIPE, SIG_IGN);
    namespace fs = std::filesystem;
    const fs::path built(VYPX_PROGRAM);
    fs::create_directories(File("run"));
    fs::permissions(File("run"), fs::perms::owner_all);
    fs::create_directories(File("program"));
    fs::create_directories(File("home/.config/VY Pixelworks"));
    for (const char* const name :
        { "vy-pixelworks", "libVYPX.so", "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        fs::copy_file(built.parent_path() / name, File(std::string("program/") + name));
    WriteText(File("home/.config/VY Pixelworks/VY Pixelworks.conf"),
        "[Options]\nShow%20Tips%20at%20Startup=0\n");
    WriteSettings("");
}

DesktopFixture::~DesktopFixture()
{
    if (!m_bus)
        return;
    for (const std::string& copy : Copies()) {
        Continue(copy);
        Crash(copy);
    }
}

void DesktopFixture::WriteSettings(const std::string& text)
{
    WriteText(File("program/VYPX.ini"),
        (text.find("[Splash Screen]") != std::string::npos
                ? ""
                : "[Splash Screen]\nShow splash screen at startup=False\n")
            + std::string("[Main Window Size]\nWidth=9000\nHeight=7000\n"
                          "[Default Color Depth]\nPrompt on New or File Open=False\n")
            + text);
}

void DesktopFixture::StartBus()
{
    std::filesystem::create_directories(File("services"));
    WriteText(File("services/" + BusName + ".service"),
        std::regex_replace(ReadText(VYPX_SERVICE_FILE), std::regex("Exec=.*"),
            "Exec=" + File("program/vy-pixelworks")));
    WriteText(File("bus.conf"),
        "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\" "
        "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">"
        "<busconfig><type>session</type><listen>unix:path="
            + File("bus") + "</listen><servicedir>" + File("services")
            + "</servicedir><policy context=\"default\"><allow send_destination=\"*\"/><allow "
              "receive_sender=\"*\"/>"
              "<allow own=\"*\"/></policy></busconfig>");
    m_bus = screen.Start(InSession(
        { "sh", "-c", "exec dbus-daemon --config-file=\"$0\" --print-address=1 --nofork 2>\"$1\"",
            File("bus.conf"), File("bus.log") }));
    m_address = m_bus->ReadLine();
    ASSERT_NE(m_address, "") << "no bus";
}

std::vector<std::string> DesktopFixture::InSession(std::vector<std::string> command) const
{
    std::vector<std::string> all{ "/usr/bin/env", "-u", "DBUS_STARTER_BUS_TYPE",
        "HOME=" + File("home"), "XDG_CONFIG_HOME=" + File("home/.config"),
        "XDG_DATA_HOME=" + File("home/share"), "XDG_CACHE_HOME=" + File("home/cache"),
        "XDG_RUNTIME_DIR=" + File("run"), "DBUS_SESSION_BUS_ADDRESS=" + m_address };
    all.insert(all.end(), command.begin(), command.end());
    return all;
}

std::unique_ptr<Child> DesktopFixture::StartCopy(const std::vector<std::string>& environment)
{
    std::vector<std::string> command{ "env" };
    command.insert(command.end(), environment.begin(), environment.end());
    command.insert(command.end(),
        { "sh", "-c", "exec \"$0\" 2>>\"$1\"", File("program/vy-pixelworks"), File("errors") });
    return screen.Start(InSession(command));
}

std::vector<std::string> DesktopFixture::EnvironmentOf(const std::string& copy)
{
    std::ifstream text("/proc/" + std::to_string(ProcessOf(copy)) + "/environ");
    std::vector<std::string> all;
    for (std::string variable; std::getline(text, variable, '\0');)
        all.push_back(variable);
    return all;
}

std::unique_ptr<Child> DesktopFixture::Listen(const std::string& method) const
{
    auto listener = screen.Start(InSession({ "dbus-monitor", "--session", "member=" + method }));
    listener->ReadLine(); // it says that it listens
    return listener;
}

void DesktopFixture::WaitForCall(const Child& listener, const std::string& method)
{
    std::string line;
    do
        line = listener.ReadLine();
    while (!line.empty() && line.find("member=" + method) == std::string::npos);
    ASSERT_NE(line, "") << "the bus has ended";
}

std::vector<std::string> DesktopFixture::Copies() const
{
    std::vector<std::string> copies;
    for (const std::string& line : screen.Run(InSession(
             { "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path",
                 "/org/freedesktop/DBus", "--method", "org.freedesktop.DBus.ListNames" })))
        for (const std::string& name : Quoted(line))
            if (name.starts_with(CopyPrefix))
                copies.push_back(name);
    std::sort(copies.begin(), copies.end());
    return copies;
}

std::vector<std::string> DesktopFixture::WaitForCopies(std::size_t count)
{
    std::vector<std::string> copies;
    EXPECT_TRUE(WaitUntil([&] { return (copies = Copies()).size() == count; }, {}, 30))
        << copies.size() << " copies instead of " << count;
    return copies;
}

void DesktopFixture::Crash(const std::string& copy) { ::kill(ProcessOf(copy), SIGKILL); }

void DesktopFixture::Stop(const std::string& copy) { ::kill(ProcessOf(copy), SIGSTOP); }

void DesktopFixture::Continue(const std::string& copy) { ::kill(ProcessOf(copy), SIGCONT); }

std::vector<std::string> DesktopFixture::ClientCall(const std::string& method,
    const std::vector<std::string>& arguments, const std::string& name) const
{
    std::vector<std::string> command{ "gdbus", "call", "--session", "--timeout", "40", "--dest",
        name.empty() ? BusName : name, "--object-path", BusPath(), "--method", method };
    command.insert(command.end(), arguments.begin(), arguments.end());
    return OneLine(InSession(command));
}

std::vector<std::string> DesktopFixture::OneLine(std::vector<std::string> client)
{
    client.insert(client.begin(),
        { "sh", "-c", "answer=$(\"$@\" 2>&1) && printf '%s\\n' \"$answer\" || echo error", "sh" });
    return client;
}

std::string DesktopFixture::AnswerOf(const std::vector<std::string>& client) const
{
    std::string answer;
    for (const std::string& line : screen.Run(client))
        answer = line;
    return answer;
}

std::string DesktopFixture::Send(
    const std::string& method, const std::vector<std::string>& arguments) const
{
    std::vector<std::string> command{ "dbus-send", "--session", "--print-reply",
        "--dest=" + BusName, BusPath(), method };
    command.insert(command.end(), arguments.begin(), arguments.end());
    return AnswerOf(OneLine(InSession(command)));
}

std::string DesktopFixture::Call(const std::string& method,
    const std::vector<std::string>& arguments, const std::string& name) const
{
    return AnswerOf(ClientCall(method, arguments, name));
}

std::string DesktopFixture::Activate() const
{
    return Call("org.freedesktop.Application.Activate", { "{}" });
}

std::vector<std::string> DesktopFixture::Uris(const std::vector<std::string>& files)
{
    std::string list;
    for (const std::string& file : files)
        list += std::string(list.empty() ? "'" : ", '")
            + (file.find(':') == std::string::npos ? "file://" : "") + file + "'";
    return { "[" + list + "]", "{}" };
}

std::string DesktopFixture::Open(const std::vector<std::string>& files) const
{
    return Call("org.freedesktop.Application.Open", Uris(files));
}

std::unique_ptr<Child> DesktopFixture::BeginOpen(const std::vector<std::string>& files) const
{
    return screen.Start(ClientCall("org.freedesktop.Application.Open", Uris(files), {}));
}

bool DesktopFixture::IsFree(const std::string& copy) const
{
    return Call(BusName + ".Copy.IsFree", {}, copy) == "(true,)";
}

std::string DesktopFixture::Owner() const
{
    const auto processOf = [&](const std::string& name) {
        std::string number;
        for (const std::string& line : screen.Run(InSession({ "gdbus", "call", "--session",
                 "--dest", "org.freedesktop.DBus", "--object-path", "/org/freedesktop/DBus",
                 "--method", "org.freedesktop.DBus.GetConnectionUnixProcessID", name })))
            std::copy_if(line.begin() + static_cast<std::ptrdiff_t>(line.find(' ') + 1), line.end(),
                std::back_inserter(number), [](char c) { return c >= '0' && c <= '9'; });
        return number;
    };
    return CopyPrefix + processOf(BusName);
}

std::size_t DesktopFixture::Windows(const std::string& title) const
{
    return screen
        .Run({ "xdotool", "search", "--all", "--onlyvisible", "--name", "^" + title + "$" })
        .size();
}

bool DesktopFixture::WaitForWindow(const std::string& title, std::size_t count) const
{
    return WaitUntil([&] { return Windows(title) == count; }, {}, 30);
}

std::string DesktopFixture::Set(const std::string& name) const
{
    const Iconset set{ .name = "Set",
        .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) },
            { .type = "tAIB", .id = 3500, .data = LowRecord(8) } } };
    WriteBytes(File(name), set.File());
    return File(name);
}

} // namespace vypx::test
