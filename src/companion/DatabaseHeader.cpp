#include "companion/DatabaseHeader.h"

#include "companion/PalmDatabase.h"

#include <algorithm>

namespace vypx {

std::string NameInField(ByteView field)
{
    const std::span<const std::uint8_t> bytes = field.Span();
    return { bytes.begin(), std::find_if_not(bytes.begin(), bytes.end(), CanStandInName) };
}

} // namespace vypx
