#include "forms/main/frmDropIconTarget.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "forms/main/DropTable.h"
#include "ui_frmDropIconTarget.h"

#include <QPointer>
#include <utility>

namespace vypx {

frmDropIconTarget::frmDropIconTarget(const Panels& panels, Ask& ask, Import import, QWidget& form)
    : QDialog(&form)
    , m_ui(std::make_unique<Ui::frmDropIconTarget>())
    , m_ask(ask)
    , m_import(std::move(import))
    , m_disabled(std::make_unique<DisabledWindow>(*form.window()))
{
    m_ui->setupUi(this);
    setEnabled(true); // though what it belongs to is not
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(DialogPlace());
    m_ui->cmdApplytoHighRes->setEnabled(!panels[0]->isHidden());
    m_ui->cmdApplytoLowRes->setEnabled(!panels[1]->isHidden());
    connect(m_ui->cmdApplytoHighRes, &QPushButton::clicked, this,
        &frmDropIconTarget::cmdApplytoHighRes_Click);
    connect(m_ui->cmdApplytoLowRes, &QPushButton::clicked, this,
        &frmDropIconTarget::cmdApplytoLowRes_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmDropIconTarget::reject);
}

frmDropIconTarget::~frmDropIconTarget() = default;

void frmDropIconTarget::cmdApplytoHighRes_Click()
{
    if (StatTotal == 0)
        Apply(SlotLG, AddIconFirst);
    else
        Apply(SlotLG, DropLGEnabled ? std::string_view() : SelectValidIconFirst);
}

/// On purpose: whether there are icons at all is not looked at here.
void frmDropIconTarget::cmdApplytoLowRes_Click()
{
    Apply(SlotSM, DropSMEnabled ? std::string_view() : SelectValidIconFirst);
}

/// The desktop may close the window while it works or its box stands.
void frmDropIconTarget::Apply(const vypx::Slot& slot, std::string_view whyNot)
{
    const QPointer<frmDropIconTarget> window = this;
    const Import import = m_import;
    if (whyNot.empty())
        import(slot);
    else
        m_ask.Show(this, { .text = FromLatin1(whyNot) });
    if (window)
        accept();
}

/// Every way out: what it belongs to is enabled before this one goes, so that it gets the focus.
void frmDropIconTarget::done(int result)
{
    setEnabled(false); // a second press in a hurry would import without a file
    DroppedFile = false;
    m_disabled.reset();
    QDialog::done(result);
}

} // namespace vypx
