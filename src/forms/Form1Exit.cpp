#include "document/WorkingFolder.h"
#include "forms/Form1.h"

#include <QApplication>
#include <QCloseEvent>

namespace vypx {

/// On purpose: there is no question about unsaved changes.
void Form1::ExitProgram()
{
    if (m_exited)
        return;
    m_exited = true;
    m_copies.Leave();
    DeleteWorkingFiles({ ".bak", ".bmp", ".bin" });
    for (QWidget* window : QApplication::topLevelWidgets())
        window->close();
}

bool Form1::MayClose()
{
    if (m_loading) {
        m_closeAfterLoad = true;
        return false;
    }
    ExitProgram();
    return true;
}

void Form1::closeEvent(QCloseEvent* event) { event->setAccepted(MayClose()); }

} // namespace vypx
