#pragma once

#include <string>

/// The program's settings, read directly by every room. They begin with the defaults of a first
/// run. Texts of folders are UTF-8.
namespace vypx {

inline bool RememberPreviewColor = false;
inline int Rsave = 0, Gsave = 0, Bsave = 255; ///< the panels' back colour that was kept, 0 to 255
inline bool AutoCreateLowRes = true;
inline bool StartupSearch = false;
inline std::string DefaultColorDepth = "16-Bit"; ///< "4-Bit", "8-Bit" or "16-Bit"
inline bool PromptColorDepth = true;
inline bool UsePackbits = false;
inline std::string VersionString = "3.20";
inline bool ShowSplash = true;
inline bool HighResOnly = false, LowResOnly = false; ///< at most one of them is true
inline bool WarnOverwrite = true;
inline bool KeepUnknown = true;
inline bool CreateBackup = true;
inline bool PreviewWinVisible = true, StatWinVisible = true, ShareWinVisible = true;
inline int PreviewWinX = 0, PreviewWinY = 100;         ///< twips
inline int StatWinX = 0, StatWinY = 100;               ///< twips
inline int ShareWinX = 0, ShareWinY = 100;             ///< twips
inline int MainWinWidth = 14000, MainWinHeight = 9800; ///< twips
inline bool UseLastDirs = true;
inline std::string LastDirIconsetLoad, LastDirIconsetSave, LastDirImageLoad, LastDirImageSave;
inline std::string PalmUserID;

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
