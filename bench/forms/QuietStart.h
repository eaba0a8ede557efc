#pragma once

#include "forms/main/MDIForm1.h"
#include "support/Files.h"
#include "support/TempFolder.h"

namespace vypx {

/// Starts the program in a fresh folder with nothing that greets its user, its windows as at any
/// later start. Main.cpp keeps the tip away.
inline void StartQuietly(MDIForm1& frame, const test::TempFolder& folder)
{
    test::WriteText(folder.File("VYPX.ini"),
        "[Splash Screen]\nShow splash screen at startup=False\n"
        "[Main Window Size]\nWidth=14000\nHeight=9800\n");
    frame.Start(QString::fromStdString(folder.Path()), {});
}

} // namespace vypx
