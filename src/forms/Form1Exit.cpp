#include "document/WorkingFolder.h"
#include "forms/Form1.h"

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
    m_copies.Leave();
    DeleteWorkingFiles({ ".bak", ".bmp", ".bin" });
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
