#include "forms/common/Ask.h"
#include "forms/common/FolderFailureText.h"
#include "forms/common/ProgramName.h"
#include "forms/main/MDIForm1.h"

#include <QApplication>
#include <QStandardPaths>
#include <filesystem>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("vy-pixelworks");
    // No display name: Qt would put it behind the captions of windows.
    QApplication::setApplicationVersion(vypx::VersionNumber());

    vypx::ScreenAsk ask;
    try {
        vypx::MDIForm1 frame(ask);
        frame.Start(QApplication::applicationDirPath(),
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
        // It may have been left amid the search of its start.
        return frame.isHidden() ? 0 : QApplication::exec();
    } catch (const std::filesystem::filesystem_error& error) {
        ask.Show(
            nullptr, { .text = vypx::FolderFailureText(error), .icon = QMessageBox::Critical });
        return 1;
    }
}
