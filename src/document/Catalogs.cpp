#include "document/Catalogs.h"

namespace vypx {

void ResetCatalogs()
{
    AppTable.assign(1, {});
    PalmTable.assign(1, {});
    VYTable.assign(1, {});
}

} // namespace vypx
