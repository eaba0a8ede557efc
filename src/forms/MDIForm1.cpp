#include "forms/MDIForm1.h"

#include "forms/Form1.h"
#include "forms/Look.h"
#include "forms/Menus.h"
#include "ui_MDIForm1.h"

#include <QAction>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QIcon>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMimeData>

namespace vypx {

namespace {

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int size : { 16, 24, 32, 48, 64, 128, 256 })
        icon.addFile(QString(":/art/program%1.png").arg(size), QSize(size, size));
    return icon;
}

} // namespace

MDIForm1::MDIForm1(Ask& ask)
    : m_ui(std::make_unique<Ui::MDIForm1>())
{
    UseLightColours();
    m_ui->setupUi(this);
    setWindowIcon(ProgramIcon());
    setAcceptDrops(true);
    MakeMenus(*m_ui->menuBar, *this);
    m_form = new Form1(*this, ask);
    QMdiSubWindow* const child = m_ui->mdiArea->addSubWindow(m_form);
    child->setAttribute(Qt::WA_DeleteOnClose, false); // a close means exit, which wants the form
    child->setWindowIcon(windowIcon());
    // Ctrl+W and its like belong to the menu's Close Iconset: here they would leave the program.
    for (QAction* entry : child->systemMenu()->actions())
        entry->setShortcuts(QList<QKeySequence>());
}

MDIForm1::~MDIForm1() = default;

void MDIForm1::Start(const QString& programFolder, const QString& userFolder)
{
    m_form->StartUp(programFolder, userFolder);
}

void MDIForm1::closeEvent(QCloseEvent* event) { event->setAccepted(m_form->MayClose()); }

void MDIForm1::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MDIForm1::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    m_form->TakeDrop(*event->mimeData());
    m_ui->mdiArea->setBackground(ScreenColour(ChromeColour));
}

} // namespace vypx
