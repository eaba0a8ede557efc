#include "forms/common/SideForm.h"

#include "forms/common/Look.h"

#include <QCloseEvent>
#include <QLayout>

namespace vypx {

SideForm::SideForm(Size size)
    : QMdiSubWindow(nullptr,
        Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
            | Qt::WindowStaysOnTopHint)
    , m_size(size)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setSystemMenu(nullptr); // its keys, Ctrl+W and its like, are the main form's
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

void SideForm::closeEvent(QCloseEvent* event)
{
    QMdiSubWindow::closeEvent(event);
    if (event->isAccepted())
        emit Closed();
}

} // namespace vypx
