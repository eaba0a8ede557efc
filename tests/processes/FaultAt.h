#pragma once

#include <string>
#include <vector>

namespace vypx::test {

/// What the environment of a child has to hold for its `at`-th operation on files whose path holds
/// `word` to be at fault, in the ways of tests/faults; 0: none is. The file `count` gets how many
/// there were.
inline std::vector<std::string> FaultAt(
    const std::string& word, const std::string& kind, int at, const std::string& count = {})
{
    return { "LD_PRELOAD=" VYPX_FAULTS, "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0",
        "FAULT_PATH=" + word, "FAULT_KIND=" + kind, "FAULT_AT=" + std::to_string(at),
        "FAULT_COUNT=" + count };
}

/// Whether the process dies of faults of that kind.
inline bool Kills(const std::string& kind)
{
    return kind == "before" || kind == "within" || kind == "after";
}

} // namespace vypx::test
