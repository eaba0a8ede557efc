#include "forms/catalogs/frmAddAppManual.h"

#include "catalogs/AddApplication.h"
#include "forms/catalogs/CatalogBoxes.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "ui_frmAddAppManual.h"

#include <QKeyEvent>

namespace vypx {

frmAddAppManual::frmAddAppManual(Ask& ask, QWidget& form)
    : QDialog(&form)
    , m_ui(std::make_unique<Ui::frmAddAppManual>())
    , m_ask(ask)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    for (QLineEdit* edit : { m_ui->txtAppName, m_ui->txtCreatorID, m_ui->txtTypeID })
        edit->setValidator(Latin1Validator(*edit));
    connect(m_ui->cmdAppApply, &QPushButton::clicked, this, &frmAddAppManual::cmdAppApply_Click);
    connect(m_ui->cmdAppManualCancel, &QPushButton::clicked, this, &frmAddAppManual::reject);
    m_ui->txtAppName->setFocus();
}

frmAddAppManual::~frmAddAppManual() = default;

void frmAddAppManual::ShowSearching(bool on) { m_ui->cmdAppApply->setEnabled(!on); }

void frmAddAppManual::cmdAppApply_Click()
{
    const ManualEntry typed{
        .name = ToLatin1(m_ui->txtAppName->text()),
        .creator = ToLatin1(m_ui->txtCreatorID->text()),
        .type = ToLatin1(m_ui->txtTypeID->text()),
    };
    const auto show = [this](const CatalogBox& box) { return ShowCatalogBox(m_ask, this, box); };
    if (!AddManual(typed, show))
        return;
    emit Added();
    accept();
}

void frmAddAppManual::keyPressEvent(QKeyEvent* event)
{
    if (!HeldKeys::OfProgram().IsHeldEnd(*event))
        QDialog::keyPressEvent(event);
}

} // namespace vypx
