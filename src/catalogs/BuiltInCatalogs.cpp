#include "catalogs/BuiltInCatalogs.h"

#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/IniStore.h"

namespace vypx {

void HoldCatalogs(const std::string& folder)
{
    AppFolder = folder.empty() ? std::string("built-in") : folder;
    for (const BuiltInCatalog& shipped : ShippedCatalogs()) {
        const std::string path = AppFolder + BelowFolder(shipped.name);
        if (folder.empty()) {
            HoldIni(path, shipped.text);
            continue;
        }
        const auto bytes = platform::ReadWholeFile(path, MaxIniSize);
        if (bytes) // one that is missing is told by its reader
            HoldIni(path, { reinterpret_cast<const char*>(bytes->data()), bytes->size() });
    }
}

} // namespace vypx
