#pragma once

#include "settings/ColorDepth.h"

#include <string>

/// The program's settings, read directly by every room. Texts of folders are UTF-8. Before the
/// settings file is read for the first time, every boolean is false.
namespace vypx {

inline bool RememberPreviewColor = false;
inline int Rsave = 0, Gsave = 0, Bsave = 255; ///< the panels' back colour that was kept, 0 to 255
inline bool AutoCreateLowRes = false;
inline bool StartupSearch = false;
inline bool PromptColorDepth = false;
inline bool UsePackbits = false;
inline std::string VersionString = "3.20";
inline bool ShowSplash = false;
inline bool HighResOnly = false, LowResOnly = false; ///< at most one of them is true
inline bool WarnOverwrite = false;
inline bool KeepUnknown = false;
inline bool CreateBackup = false;
inline bool PreviewWinVisible = false, StatWinVisible = false, ShareWinVisible = false;
inline int PreviewWinX = 0, PreviewWinY = 100;         ///< twips
inline int StatWinX = 0, StatWinY = 100;               ///< twips
inline int ShareWinX = 0, ShareWinY = 100;             ///< twips
inline int MainWinWidth = 14000, MainWinHeight = 9800; ///< twips
inline bool UseLastDirs = false;
inline std::string LastDirIconsetLoad, LastDirIconsetSave, LastDirImageLoad, LastDirImageSave;
inline std::string PalmUserID;
/// Where the automatic search looks on systems without the Palm Desktop; empty: nowhere.
inline std::string PalmDesktopFolder;
/// Sync folder of palm-sync, which "Save and Install" queues iconsets in; empty: none.
inline std::string PalmSyncFolder;

/// Puts every setting back to its default.
void SetDefaultSettings();

/// Twips (1/1440 inch) to the pixel at 96 dpi. The constant, not the screen's own density, so that
/// stored positions mean the same everywhere.
inline constexpr int TwipsPerPixel = 15;

/// Nearest whole number of pixels, halves upward.
constexpr int PixelsFromTwips(int twips)
{
    const int up = twips + TwipsPerPixel / 2;
    return up >= 0 ? up / TwipsPerPixel : -((-up + TwipsPerPixel - 1) / TwipsPerPixel);
}

} // namespace vypx
