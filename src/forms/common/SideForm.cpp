#include "forms/common/SideForm.h"

#include "forms/common/Look.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QLayout>
#include <QMenu>

namespace vypx {

SideForm::SideForm(Size size)
    : QMdiSubWindow(nullptr,
        Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
            | Qt::WindowStaysOnTopHint)
    , m_size(size)
    , m_menu(MakeMenu())
{
    setAttribute(Qt::WA_DeleteOnClose);
    setSystemMenu(nullptr); // its keys, Ctrl+W and its like, are the main form's
}

/// No bar: it would take as much room as some of these windows have. Alt+W opens the frame's menu
/// of the same name, with the same entry.
QMenu* SideForm::MakeMenu()
{
    auto* const menu = new QMenu("&Window", this);
    menu->setObjectName("mnuSideWindow");
    QAction* const entry = menu->addAction("&Arrange Windows");
    entry->setObjectName("mnuArrangeWindows");
    connect(entry, &QAction::triggered, this, &SideForm::ArrangeAsked);
    return menu;
}

void SideForm::Hold(QWidget* contents, const QString& name)
{
    setObjectName(name);
    PaintChrome(*contents);
    setWidget(contents);
    if (m_size == Size::Fixed)
        contents->layout()->setSizeConstraint(QLayout::SetFixedSize);
}

/// Only now its look is settled and can be measured.
void SideForm::showEvent(QShowEvent* event)
{
    QMdiSubWindow::showEvent(event);
    if (m_size == Size::Fixed)
        setFixedSize(sizeHint());
}

void SideForm::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    m_menu->popup(event->globalPos());
}

void SideForm::closeEvent(QCloseEvent* event)
{
    QMdiSubWindow::closeEvent(event);
    if (event->isAccepted())
        emit Closed();
}

} // namespace vypx
