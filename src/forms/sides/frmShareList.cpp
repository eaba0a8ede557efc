#include "forms/sides/frmShareList.h"

#include "ui_frmShareList.h"

namespace vypx {

frmShareList::frmShareList()
    : SideForm(Size::Free)
    , m_ui(std::make_unique<Ui::frmShareList>())
{
    auto* const inside = new QWidget;
    inside->setObjectName("shareListContents");
    m_ui->setupUi(inside);
    Hold(inside, "frmShareList");
    connect(m_ui->listShared, &SharedList::Chosen, this, &frmShareList::Chosen);
}

frmShareList::~frmShareList() = default;

ListBox& frmShareList::List() { return *m_ui->listShared; }

} // namespace vypx
