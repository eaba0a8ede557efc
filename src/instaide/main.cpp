// A program of 32 bits between the editor, of 64, and the library of the Palm Install Tool, of 32:
// takes one request from its input, calls the library that stands beside it, replies on its output.
// Exit code 0: it replied; 1: there was no call, or nobody to reply to.

#include "install/InstAideTalk.h"
#include "platform/WindowsApi.h"

namespace vypx {

namespace {

using PltInstallFile = int(WINAPI*)(char* user, char* file);

std::wstring WideFrom(UINT page, const std::string& text)
{
    const int size = static_cast<int>(text.size());
    const int count = ::MultiByteToWideChar(page, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(count), L'\0');
    ::MultiByteToWideChar(page, 0, text.data(), size, wide.data(), count);
    return wide;
}

/// Empty where the page lacks a character. UTF-8, which may be the system's page, lacks none and
/// takes no question about it.
std::optional<std::string> BytesFrom(UINT page, const std::wstring& wide)
{
    const bool holdsAll = page == CP_UTF8;
    const DWORD flags = holdsAll ? 0 : WC_NO_BEST_FIT_CHARS;
    BOOL lacks = FALSE;
    BOOL* const asked = holdsAll ? nullptr : &lacks;
    const int size = static_cast<int>(wide.size());
    const int count =
        ::WideCharToMultiByte(page, flags, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(count), '\0');
    ::WideCharToMultiByte(page, flags, wide.data(), size, bytes.data(), count, nullptr, asked);
    if (lacks || (count == 0 && !wide.empty()))
        return std::nullopt;
    return bytes;
}

/// The library in this program's own folder, and nowhere else; null where it can't be loaded.
PltInstallFile FindLibrary()
{
    std::wstring path(32768, L'\0'); // the longest that there is
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    path.erase(path.find_last_of(L'\\') + 1);
    const HMODULE library = ::LoadLibraryW((path + L"InstAide.dll").c_str());
    if (!library)
        return nullptr;
    for (const char* name : { "PltInstallFile", "_PltInstallFile@8" })
        if (const FARPROC found = ::GetProcAddress(library, name))
            return reinterpret_cast<PltInstallFile>(reinterpret_cast<void*>(found));
    return nullptr;
}

std::string ReadInput()
{
    const HANDLE input = ::GetStdHandle(STD_INPUT_HANDLE);
    std::string all;
    char bytes[4096];
    DWORD count = 0;
    while (all.size() <= MostInstAideBytes
        && ::ReadFile(input, bytes, sizeof bytes, &count, nullptr) && count > 0)
        all.append(bytes, count);
    return all;
}

bool WriteOutput(std::string_view bytes)
{
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr)
            || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

int Run()
{
    // Nobody sees a box of this process, which would keep it up.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
    const PltInstallFile install = FindLibrary();
    if (!install)
        return 1;
    const UINT page = ::GetACP();
    const std::optional<std::string> reply = AnswerInstAide(ReadInput(),
        {
            .toCodePage =
                [page](
                    const std::string& text) { return BytesFrom(page, WideFrom(CP_UTF8, text)); },
            .fromCodePage =
                [page](const std::string& bytes) {
                    return BytesFrom(CP_UTF8, WideFrom(page, bytes)).value_or("");
                },
            .install = [install](char* user,
                           char* file) { return static_cast<std::uint32_t>(install(user, file)); },
        });
    return reply && WriteOutput(*reply) ? 0 : 1;
}

} // namespace
} // namespace vypx

int main() { return vypx::Run(); }
