#pragma once

#include "document/WorkingFolder.h"

#include <optional>
#include <string>
#include <vector>

/// The settings in `VYPX.ini` of AppFolder. Booleans are the words "True" and "False".
namespace vypx {

/// `VYPX.ini` in that folder.
std::string SettingsFile(const std::string& folder = AppFolder);

/// Marks the file as the program's, so that it exists from now on; sections `Program`, key `Name`.
/// False when it can't be written.
bool InitializeIni();

/// Reads every setting into its variable; a missing key gives its default. A boolean that is
/// neither word leaves its variable as it was. Returns the keys ("Section: Key") of numbers that
/// are none or out of -32768 to 32767; their variables take the defaults.
std::vector<std::string> ReadSettings();

/// Whether the file says where any side window stands or how large the main one is. False at a
/// first start.
bool HasWindowPlaces();

/// Where a side window stands when settings are saved.
struct SideWindow {
    bool isLoaded = false;
    int left = 0, top = 0; ///< twips; only of a window that is loaded
};

/// What SaveIni takes from the windows. A side window that is not given keeps its keys as they
/// stand.
struct WindowsToSave {
    int mainWidth = 0, mainHeight = 0; ///< twips
    std::optional<SideWindow> preview, stats, shares;
};

/// No more saving: the settings were written at the exit.
inline bool SettingsSaved = false;

/// Writes every setting back, all at once; nothing when SettingsSaved is set. Of HighResOnly and
/// LowResOnly at most one stays set. False when the file can't be written.
bool SaveIni(const WindowsToSave& windows);

} // namespace vypx
