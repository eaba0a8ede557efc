#include "forms/greeting/frmSystemInfo.h"

#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "ui_frmSystemInfo.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

namespace vypx {

frmSystemInfo::frmSystemInfo(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmSystemInfo>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    connect(m_ui->cmdCopy, &QPushButton::clicked, this, &frmSystemInfo::cmdCopy_Click);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmSystemInfo::close);
    m_ui->txtSystemInfo->setFocus();
}

frmSystemInfo::~frmSystemInfo() = default;

void frmSystemInfo::ShowText(const QString& text) { m_ui->txtSystemInfo->setPlainText(text); }

void frmSystemInfo::cmdCopy_Click()
{
    QGuiApplication::clipboard()->setText(m_ui->txtSystemInfo->toPlainText());
}

void frmSystemInfo::keyPressEvent(QKeyEvent* event)
{
    if (!HeldKeys::OfProgram().IsHeldEnd(*event))
        QDialog::keyPressEvent(event);
}

} // namespace vypx
