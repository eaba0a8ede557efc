#include "cli/Findings.h"

#include "cli/ReadIconset.h"

namespace vypx {

void Findings::Add(std::string_view place, std::string_view text)
{
    std::string line = (Printable(place) += ": ") += Printable(text);
    if (m_told.insert(line).second)
        m_lines.push_back(std::move(line));
}

} // namespace vypx
