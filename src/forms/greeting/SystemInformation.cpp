#include "forms/greeting/SystemInformation.h"

#include "document/Catalogs.h"
#include "document/SettingsFile.h"
#include "document/WorkingFolder.h"
#include "forms/common/ProgramName.h"
#include "forms/common/Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QStringList>
#include <QSysInfo>

namespace vypx {

namespace {

struct Fact {
    const char* name;
    QString value; ///< empty: not known
};

QString Folder(const QString& path) { return QDir::toNativeSeparators(path); }

QString Folder(const std::string& path) { return Folder(PathText(path)); }

/// Row 0 of a table is none.
template <typename Table>
QString Count(const Table& table)
{
    return QString::number(table.empty() ? 0 : table.size() - 1) + " entries";
}

QString FreeSpace(const std::string& folder)
{
    const QStorageInfo disk(PathText(folder));
    return disk.isValid() ? QLocale::c().formattedDataSize(disk.bytesAvailable()) : QString();
}

/// Each screen's size in pixels of its own and the scale at which it shows the program.
QString Screens()
{
    QStringList screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QSize pixels = screen->size() * screen->devicePixelRatio();
        screens << QString("%1 x %2 at %3 %, %4 dpi")
                       .arg(pixels.width())
                       .arg(pixels.height())
                       .arg(screen->devicePixelRatio() * 100)
                       .arg(screen->logicalDotsPerInch());
    }
    return screens.join("; ");
}

} // namespace

QString SystemInformation()
{
    const Fact facts[] = {
        { ProgramTitle, VersionNumber() },
        { "Qt", qVersion() },
        { "System", QSysInfo::prettyProductName() },
        { "Kernel", QSysInfo::kernelType() + " " + QSysInfo::kernelVersion() },
        { "Processor", QSysInfo::currentCpuArchitecture() },
        { "Window system", QGuiApplication::platformName() },
        { "Screen", Screens() },
        { "Program folder", Folder(QCoreApplication::applicationDirPath()) },
        { "Data folder", Folder(AppFolder) },
        { "Working folder", Folder(WorkFolder()) },
        { "Settings file", Folder(SettingsFile()) },
        { "User folder",
            Folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)) },
        { "AppList.dat", Count(AppTable) },
        { "PalmApp.dat", Count(PalmTable) },
        { "VY_Icons.dat", Count(VYTable) },
        { "Free space", FreeSpace(AppFolder) },
    };
    QStringList lines;
    for (const Fact& fact : facts)
        if (!fact.value.trimmed().isEmpty())
            lines << QString("%1: %2").arg(fact.name, fact.value);
    return lines.join("\n");
}

} // namespace vypx
