#include "document/RunCount.h"

#include "document/SettingsFile.h"
#include "settings/Inifile.h"

namespace vypx {

namespace {

/// No machine runs more copies; a higher count was written by something else.
constexpr int MostCopies = 1'000'000;

cInifile RunCountCell(const std::string& folder)
{
    cInifile ini;
    ini.path(SettingsFile(folder));
    ini.Section("Instance Count");
    ini.key("Run Count");
    ini.Default("0");
    return ini;
}

} // namespace

int ReadRunCount(const std::string& folder)
{
    const int count = cInifile::CLngDefault(RunCountCell(folder).Value(), 0);
    return count >= 0 && count < MostCopies ? count : 0;
}

bool WriteRunCount(int count, const std::string& folder)
{
    cInifile ini = RunCountCell(folder);
    ini.Value(std::to_string(count));
    return ini.Success();
}

} // namespace vypx
