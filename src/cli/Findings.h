#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace vypx {

/// What is wrong with a file, as lines `place: text`. Places are words: header, list, iTbl1000,
/// tAIB3500, load, save and the like.
class Findings {
public:
    /// Both are Latin-1 and may hold any bytes; control characters come out as `\x1B`. What was
    /// found before is not told again.
    void Add(std::string_view place, std::string_view text);
    /// In the order in which they were found, in UTF-8.
    const std::vector<std::string>& Lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
    std::unordered_set<std::string> m_told;
};

} // namespace vypx
