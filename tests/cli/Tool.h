#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace vypx::test {

struct ToolRun {
    int exitCode = -1;
    std::string output; ///< standard output
    std::string errors; ///< standard error

    nlohmann::json Json() const { return nlohmann::json::parse(output); }
};

/// Runs pixelworks-cli with these arguments. `environment` stands before it on the shell's line
/// ("A=1 B=2"). A run that was killed has -1 as its exit code.
ToolRun RunTool(const std::vector<std::string>& arguments, const std::string& environment = {});

} // namespace vypx::test
