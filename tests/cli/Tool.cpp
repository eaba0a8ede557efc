#include "Tool.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>

namespace vypx::test {

namespace {

std::string Quoted(const std::string& argument)
{
    std::string quoted = "'";
    for (const char letter : argument)
        quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    return quoted + "'";
}

} // namespace

ToolRun RunTool(const std::vector<std::string>& arguments, const std::string& environment)
{
    std::string command =
        (environment.empty() ? "" : "exec env " + environment + " ") + Quoted(VYPX_CLI);
    for (const std::string& argument : arguments)
        command += " " + Quoted(argument);
    const TempFolder folder;
    FILE* const pipe = popen((command + " 2>" + Quoted(folder.File("errors"))).c_str(), "r");
    EXPECT_NE(pipe, nullptr);
    if (!pipe)
        return {};

    ToolRun run;
    std::array<char, 4096> part{};
    for (std::size_t got = 0; (got = fread(part.data(), 1, part.size(), pipe)) > 0;)
        run.output.append(part.data(), got);
    const int status = pclose(pipe);
    run.errors = ReadText(folder.File("errors"));
    run.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

} // namespace vypx::test
