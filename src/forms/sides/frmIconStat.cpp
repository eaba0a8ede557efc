#include "forms/sides/frmIconStat.h"

#include "document/IconStats.h"
#include "ui_frmIconStat.h"

#include <algorithm>

namespace vypx {

namespace {

struct CounterRow {
    const int& counter;
    QLabel* Ui::frmIconStat::*label;
    const char* caption;
};

const CounterRow Counters[] = {
    { StatTotal, &Ui::frmIconStat::lblTotalIcons, "Total Icons =" },
    { StatLarge, &Ui::frmIconStat::lblTotalLarge, "Large Icons =" },
    { StatSmall, &Ui::frmIconStat::lblTotalSmall, "Small Icons =" },
    { StatHighRes, &Ui::frmIconStat::lblTotalHighRes, "High Res Images =" },
    { StatLowRes, &Ui::frmIconStat::lblTotalLowRes, "Low Res Images =" },
    { StatUnknown, &Ui::frmIconStat::lblTotalUnknown, "Unknown Icons =" },
};

QString CounterText(const CounterRow& row, int count)
{
    return QString("%1 %2").arg(row.caption).arg(count);
}

} // namespace

frmIconStat::frmIconStat()
    : SideForm(Size::Fixed)
    , m_ui(std::make_unique<Ui::frmIconStat>())
{
    constexpr int LongCount = 88888; // as wide as any that a file can have
    auto* const inside = new QWidget;
    inside->setObjectName("iconStatContents");
    m_ui->setupUi(inside);
    int width = 0;
    for (const CounterRow& row : Counters) {
        QLabel& label = *(m_ui.get()->*row.label);
        label.setText(CounterText(row, LongCount));
        width = std::max(width, label.sizeHint().width());
    }
    m_ui->lblTotalIcons->setMinimumWidth(width);
    Hold(inside, "frmIconStat");
    ShowCounters();
}

frmIconStat::~frmIconStat() = default;

void frmIconStat::ShowCounters()
{
    for (const CounterRow& row : Counters)
        (m_ui.get()->*row.label)->setText(CounterText(row, row.counter));
}

} // namespace vypx
