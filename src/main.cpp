#include "document/Product.h"
#include "forms/common/Ask.h"
#include "forms/common/FolderFailureText.h"
#include "forms/common/ProgramName.h"
#include "forms/common/Text.h"
#include "forms/desktop/Desktop.h"
#include "forms/main/Form1.h"
#include "forms/main/MDIForm1.h"

#include <QApplication>
#include <QStandardPaths>
#include <filesystem>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("vy-pixelworks");
    QApplication::setDesktopFileName(vypx::FromLatin1(vypx::ApplicationId));
    // No display name: Qt would put it behind the captions of windows.
    QApplication::setApplicationVersion(vypx::VersionNumber());

    vypx::ScreenAsk ask;
    try {
        vypx::MDIForm1 frame(ask);
        vypx::Desktop desktop(frame.Form().FilesFromOutside());
        frame.Start(QApplication::applicationDirPath(),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
        // It may have been left amid the search of its start.
        const int code = frame.isHidden() ? 0 : QApplication::exec();
        desktop.Finish();
        return code;
    } catch (const std::filesystem::filesystem_error& error) {
        ask.Show(
            nullptr, { .text = vypx::FolderFailureText(error), .icon = QMessageBox::Critical });
        return 1;
    }
}
