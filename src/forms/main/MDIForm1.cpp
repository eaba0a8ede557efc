#include "forms/main/MDIForm1.h"

#include "forms/common/Look.h"
#include "forms/main/Form1.h"
#include "forms/main/Menus.h"
#include "ui_MDIForm1.h"

#include <QCloseEvent>
#include <QIcon>
#include <QMdiSubWindow>
#include <algorithm>

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
    MakeMenus(*m_ui->menuBar);
    m_form = new Form1(*this, ask);
    // A title and nothing more: buttons in there would end the program or hide all that there is.
    m_child = m_ui->mdiArea->addSubWindow(
        m_form, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    m_child->setAttribute(Qt::WA_DeleteOnClose, false); // a close means exit, which wants the form
    m_child->setWindowIcon(windowIcon());
    m_child->setSystemMenu(nullptr); // nor the keys of its menu, Ctrl+W and its like
    m_ui->mdiArea->viewport()->installEventFilter(this);
    m_form->installEventFilter(this);
    installEventFilter(this);
}

/// The form is as high as the area, or as it must be; to its right there is room for the side
/// windows.
void MDIForm1::FitForm()
{
    const QSize least = m_child->minimumSizeHint().expandedTo(m_child->minimumSize());
    const int below = m_ui->mdiArea->viewport()->height() - m_child->y();
    const int width = std::max(m_child->width(), least.width());
    const QSize size(width, std::max(least.height(), below));
    if (m_child->size() != size)
        m_child->resize(size);
}

bool MDIForm1::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this && event->type() == QEvent::Drop)
        m_ui->mdiArea->setBackground(ScreenColour(ChromeColour));
    const bool changesRoom = watched == m_ui->mdiArea->viewport()
        ? event->type() == QEvent::Resize || event->type() == QEvent::Show
        : watched == m_form
            && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show);
    if (changesRoom)
        FitForm();
    return QMainWindow::eventFilter(watched, event);
}

MDIForm1::~MDIForm1() = default;

void MDIForm1::Start(const QString& programFolder, const QString& userFolder)
{
    m_form->StartUp(programFolder, userFolder);
}

void MDIForm1::closeEvent(QCloseEvent* event) { event->setAccepted(m_form->MayClose()); }

} // namespace vypx
