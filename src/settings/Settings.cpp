#include "settings/Settings.h"

namespace vypx {

void SetDefaultSettings()
{
    RememberPreviewColor = false;
    Rsave = 0;
    Gsave = 0;
    Bsave = 255;
    AutoCreateLowRes = true;
    StartupSearch = false;
    DefaultColorDepth = ColorDepth::Bits16;
    PromptColorDepth = true;
    UsePackbits = false;
    VersionString = "3.20";
    ShowSplash = true;
    HighResOnly = false;
    LowResOnly = false;
    WarnOverwrite = true;
    KeepUnknown = true;
    CreateBackup = true;
    PreviewWinVisible = StatWinVisible = ShareWinVisible = true;
    PreviewWinX = StatWinX = ShareWinX = 0;
    PreviewWinY = StatWinY = ShareWinY = 100;
    MainWinWidth = 14000;
    MainWinHeight = 9800;
    UseLastDirs = true;
    for (std::string* text : { &LastDirIconsetLoad, &LastDirIconsetSave, &LastDirImageLoad,
             &LastDirImageSave, &PalmUserID, &PalmDesktopFolder, &PalmSyncFolder })
        text->clear();
}

} // namespace vypx
