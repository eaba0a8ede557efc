#include "cli/Convert.h"

namespace vypx {

int Convert(const ConvertOptions& options)
{
    if (!OpenAndTell(options.open))
        return 2;
    return SaveIconset(options.save);
}

} // namespace vypx
