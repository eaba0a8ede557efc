#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace vypx::test {

struct ToolRun {
    int exitCode = -1;
    std::string output; ///< standard output

    nlohmann::json Json() const { return nlohmann::json::parse(output); }
};

/// Runs pixelworks-cli with these arguments; its standard error is dropped.
ToolRun RunTool(const std::vector<std::string>& arguments);

} // namespace vypx::test
