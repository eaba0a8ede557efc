#include "forms/main/frmNewIconset.h"

#include "forms/common/Look.h"
#include "forms/common/NameValidator.h"
#include "forms/common/Text.h"
#include "ui_frmNewIconset.h"

#include <QKeyEvent>

namespace vypx {

frmNewIconset::frmNewIconset(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmNewIconset>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(DialogPlace());
    m_ui->lblDropped->setVisible(false);
    auto* const validator = new NameValidator(m_ui->txtNewIconsetDBName);
    m_ui->txtNewIconsetDBName->setValidator(validator);
    connect(validator, &NameValidator::Dropped, this, [this](const QString& characters) {
        m_ui->lblDropped->setText(DroppedCharactersText(characters));
        m_ui->lblDropped->setVisible(true);
    });
    m_ui->txtNewIconsetDBName->installEventFilter(this);
    connect(m_ui->cmdDoneName, &QPushButton::clicked, this, &frmNewIconset::cmdDoneName_Click);
    connect(m_ui->cmdCancelName, &QPushButton::clicked, this, &QDialog::close);
    m_ui->txtNewIconsetDBName->setFocus();
}

frmNewIconset::~frmNewIconset() = default;

void frmNewIconset::cmdDoneName_Click()
{
    m_isDone = true;
    hide();
    emit Done(m_ui->txtNewIconsetDBName->text());
    close();
}

void frmNewIconset::reject()
{
    QDialog::reject();
    if (!m_isDone)
        emit GivenUp();
}

/// Into an empty box no character below "A" can be typed, Enter no more than a digit; it can be
/// pasted. Escape, Tab and the shortcuts keep what they are for.
bool frmNewIconset::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && m_ui->txtNewIconsetDBName->text().isEmpty()) {
        const auto& pressed = static_cast<QKeyEvent&>(*event);
        constexpr ushort FirstPrintable = 32, FirstLetter = 65;
        const ushort letter = pressed.text().isEmpty() ? FirstLetter : pressed.text()[0].unicode();
        if (pressed.key() == Qt::Key_Return || pressed.key() == Qt::Key_Enter
            || (letter >= FirstPrintable && letter < FirstLetter))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace vypx
