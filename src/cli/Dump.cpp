#include "cli/Dump.h"

#include "cli/DocumentJson.h"
#include "document/Document.h"

#include <iostream>
#include <nlohmann/json.hpp>

namespace vypx {

int Dump(const OpenOptions& options)
{
    CollectedMessages messages;
    if (!OpenIconset(options, messages))
        return 2;
    std::cout << DocumentJson(messages.texts).dump(1) << '\n';
    return FileLoaded ? 0 : 1;
}

} // namespace vypx
