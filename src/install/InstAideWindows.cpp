#ifdef _WIN32

#include "install/InstAideTalk.h"
#include "install/InstAideWay.h"
#include "platform/Platform.h"
#include "platform/WindowsApi.h"

#include <algorithm>

namespace vypx {

namespace {

constexpr ULONGLONG Patience = 30'000; // milliseconds that the helper has for everything
constexpr DWORD Pause = 10;            // milliseconds between two looks at it

class Handle {
public:
    Handle() = default;
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { Close(); }

    operator HANDLE() const { return m_handle; }
    HANDLE* Place() { return &m_handle; }
    void Close()
    {
        if (m_handle)
            ::CloseHandle(m_handle);
        m_handle = nullptr;
    }

private:
    HANDLE m_handle = nullptr;
};

/// What a new process inherits: these two handles, whatever else is open here meanwhile.
class TwoHandles {
public:
    TwoHandles(HANDLE input, HANDLE output)
        : m_handles{ input, output }
    {
        SIZE_T size = 0;
        ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        m_room.resize(size);
        m_isMade = ::InitializeProcThreadAttributeList(List(), 1, 0, &size) != 0;
        m_isSet = m_isMade
            && ::SetHandleInformation(input, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT)
            && ::SetHandleInformation(output, HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT)
            && ::UpdateProcThreadAttribute(List(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, m_handles,
                sizeof m_handles, nullptr, nullptr);
    }
    TwoHandles(const TwoHandles&) = delete;
    TwoHandles& operator=(const TwoHandles&) = delete;
    ~TwoHandles()
    {
        if (m_isMade)
            ::DeleteProcThreadAttributeList(List());
    }

    bool IsSet() const { return m_isSet; }
    LPPROC_THREAD_ATTRIBUTE_LIST List()
    {
        return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(m_room.data());
    }

private:
    HANDLE m_handles[2];
    std::vector<std::uint8_t> m_room;
    bool m_isMade = false, m_isSet = false;
};

/// The helper while it runs, with our ends of two pipes. No call waits for it.
class Helper {
public:
    explicit Helper(const std::filesystem::path& program)
    {
        Handle input, output; // its ends
        if (!::CreatePipe(input.Place(), m_toHelper.Place(), nullptr, MostInstAideBytes)
            || !::CreatePipe(m_fromHelper.Place(), output.Place(), nullptr, MostInstAideBytes))
            return;
        DWORD mode = PIPE_READMODE_BYTE | PIPE_NOWAIT;
        if (!::SetNamedPipeHandleState(m_toHelper, &mode, nullptr, nullptr))
            return;
        TwoHandles inherited(input, output);
        if (!inherited.IsSet())
            return;
        STARTUPINFOEXW start{};
        start.StartupInfo.cb = sizeof start;
        start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
        start.StartupInfo.hStdInput = input;
        start.StartupInfo.hStdOutput = output;
        start.lpAttributeList = inherited.List();
        std::wstring line = L'"' + program.native() + L'"'; // which no file name can hold
        PROCESS_INFORMATION made{};
        if (!::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                CREATE_NO_WINDOW | EXTENDED_STARTUPINFO_PRESENT, nullptr,
                program.parent_path().c_str(), &start.StartupInfo, &made))
            return;
        ::CloseHandle(made.hThread);
        *m_process.Place() = made.hProcess;
    }
    /// One that has not come to its end by now never will.
    ~Helper()
    {
        if (m_process && !HasEnded(0)) {
            ::TerminateProcess(m_process, 1);
            HasEnded(INFINITE);
        }
    }
    Helper(const Helper&) = delete;
    Helper& operator=(const Helper&) = delete;

    bool IsStarted() const { return m_process != nullptr; }
    bool HasEnded(DWORD patience) const
    {
        return ::WaitForSingleObject(m_process, patience) != WAIT_TIMEOUT;
    }

    /// As much as the pipe takes now; behind the last byte the helper's input ends.
    void Write(std::string_view& rest)
    {
        constexpr std::size_t Piece = 512; // a pipe without room for all of it may take none
        DWORD written = 0;
        do {
            const auto count = static_cast<DWORD>(std::min(rest.size(), Piece));
            if (!::WriteFile(m_toHelper, rest.data(), count, &written, nullptr))
                return;
            rest.remove_prefix(written);
        } while (written > 0 && !rest.empty());
        if (rest.empty())
            m_toHelper.Close();
    }

    /// What has come. A reply that is too long stays too long.
    void Read(std::string& reply)
    {
        DWORD ready = 0;
        while (reply.size() <= MostInstAideBytes
            && ::PeekNamedPipe(m_fromHelper, nullptr, 0, nullptr, &ready, nullptr) && ready > 0) {
            char bytes[4096];
            DWORD count = 0;
            if (!::ReadFile(m_fromHelper, bytes, sizeof bytes, &count, nullptr) || count == 0)
                return;
            reply.append(bytes, count);
        }
    }

private:
    Handle m_toHelper, m_fromHelper, m_process;
};

std::string TalkToHelper(const std::filesystem::path& program, const std::string& request)
{
    std::string reply;
    Helper helper(program);
    if (!helper.IsStarted())
        return reply;
    std::string_view rest = request;
    const ULONGLONG begin = ::GetTickCount64();
    bool hasEnded = false;
    while (!hasEnded && ::GetTickCount64() - begin < Patience) {
        if (!rest.empty())
            helper.Write(rest);
        hasEnded = helper.HasEnded(Pause);
        helper.Read(reply); // behind the question, so that nothing that it said last is missed
    }
    return reply;
}

} // namespace

std::unique_ptr<InstallWay> MakeInstAideWay(const std::string& programFolder)
{
    const std::filesystem::path folder = platform::NativePath(programFolder);
    std::error_code error;
    if (!std::filesystem::is_regular_file(folder / "InstAide.dll", error))
        return nullptr;
    const std::filesystem::path program = folder / "vypx-instaide.exe";
    return MakeInstAideWay(
        [program](const std::string& request) { return TalkToHelper(program, request); });
}

} // namespace vypx

#endif
