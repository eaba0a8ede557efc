#include "forms/settings/InstallWayText.h"

#include "forms/common/Text.h"
#include "install/InstallWay.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

#include <QCoreApplication>

namespace vypx {

namespace {

QString Words(const char* text) { return QCoreApplication::translate("InstallWayText", text); }

/// What would set a way up.
QString NoWay([[maybe_unused]] const InstallPlaces& places)
{
    if constexpr (HasPalmSync)
        return Words("Save and Install has no way to the handheld yet: name the sync folder of "
                     "palm-sync above, or start J-Pilot once.");
    else
        return Words("Save and Install has no way to the handheld yet: put InstAide.dll into %1.")
            .arg(PathText(places.programFolder));
}

bool IsMissing(const std::string& folder)
{
    std::error_code error;
    return !folder.empty() && !std::filesystem::is_directory(platform::NativePath(folder), error);
}

} // namespace

QString InstallWayText(const std::string& palmSyncFolder)
{
    InstallPlaces places = PlacesForInstall();
    places.palmSyncFolder = palmSyncFolder;
    const std::unique_ptr<InstallWay> way = ChooseInstallWay(places);
    const QString uses = palmSyncFolder == PalmSyncFolder
        ? Words("Save and Install uses %1.")
        : Words("Save and Install will use %1 once this window is closed.");
    const QString told = way ? uses.arg(PathText(way->Description())) : NoWay(places);
    if (HasPalmSync && IsMissing(palmSyncFolder))
        return Words("There is no such palm-sync folder.") + ' ' + told;
    return told;
}

} // namespace vypx
