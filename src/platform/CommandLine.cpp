#include "platform/CommandLine.h"

#ifdef _WIN32
#include "platform/WideText.h"
#include "platform/WindowsApi.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>
#endif

namespace vypx::platform {

#ifdef _WIN32

std::vector<std::string> Arguments(int, char**)
{
    std::vector<std::string> arguments;
    int count = 0;
    LPWSTR* const all = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; all && i < count; ++i)
        arguments.push_back(Utf8FromWide(std::wstring_view(all[i])));
    ::LocalFree(all);
    return arguments;
}

void KeepLineEnds()
{
    for (std::FILE* const file : { stdout, stderr })
        ::_setmode(::_fileno(file), _O_BINARY);
}

#else

std::vector<std::string> Arguments(int argc, char** argv)
{
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

void KeepLineEnds() { }

#endif

} // namespace vypx::platform
