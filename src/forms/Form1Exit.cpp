#include "document/SettingsFile.h"
#include "document/WorkingFolder.h"
#include "forms/Form1.h"
#include "forms/frmProgOptions.h"
#include "forms/frmSelectCDepth.h"

#include <QApplication>
#include <QCloseEvent>

namespace vypx {

/// On purpose: there is no question about unsaved changes.
void Form1::ExitProgram()
{
    if (m_loading) {
        m_closeAfterLoad = true;
        return;
    }
    if (m_exited)
        return;
    m_exited = true;
    // What they take back or take over is to be saved.
    for (QDialog* window :
        { static_cast<QDialog*>(m_depthWindow), static_cast<QDialog*>(m_options) })
        if (window)
            window->close();
    // On purpose: the first copy never changes the count, and one that is not the last to leave
    // may hand its number to a later one.
    if (InstanceNumber >= 1)
        SaveRunCount(InstanceNumber - 1);
    SaveSettings();
    SettingsSaved = true;
    DeleteWorkingFiles({ ".bak", ".bmp", ".bin" });
    m_copies.Leave();
    for (QWidget* window : QApplication::topLevelWidgets())
        window->close();
}

bool Form1::MayClose()
{
    ExitProgram();
    return m_exited;
}

void Form1::closeEvent(QCloseEvent* event) { event->setAccepted(MayClose()); }

} // namespace vypx
