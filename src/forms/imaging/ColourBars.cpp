#include "forms/imaging/ColourBars.h"

#include "ui_ColourBars.h"

#include <QPainter>
#include <QScopedValueRollback>

namespace vypx {

ColourBars::ColourBars(QWidget* parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ColourBars>())
{
    m_ui->setupUi(this);
    m_columns = { Column{ m_ui->VScrollRed, m_ui->TextRed, &Rgb::red },
        Column{ m_ui->VScrollGrn, m_ui->TextGrn, &Rgb::green },
        Column{ m_ui->VScrollBlue, m_ui->TextBlue, &Rgb::blue } };
    for (const Column& column : m_columns) {
        column.bar->installEventFilter(this);
        Connect(column);
    }
    connect(m_ui->chkBackGray, &QCheckBox::toggled, this, &ColourBars::chkBackGray_Click);
    SetColour({});
}

ColourBars::~ColourBars() = default;

/// A bar that doesn't track its thumb tells a drag and its end apart.
void ColourBars::Connect(const Column& column)
{
    connect(column.bar, &QScrollBar::valueChanged, this,
        [this, &column](int value) { VScroll_Change(column, value); });
    connect(column.bar, &QScrollBar::sliderMoved, this,
        [this, &column](int position) { VScroll_Scroll(column, position); });
    connect(column.text, &QLineEdit::textChanged, this, [this, &column] { Text_Change(column); });
}

void ColourBars::SetColour(const Rgb& colour)
{
    m_colour = colour;
    MoveBars();
    WriteTexts();
}

void ColourBars::VScroll_Change(const Column& column, int value)
{
    if (m_isFilling)
        return;
    m_colour.*column.component = value;
    const bool isRed = &column == &m_columns[0];
    if (m_ui->chkBackGray->isChecked()) {
        m_colour = { value, value, value };
        MoveBars();
        WriteTexts();
    } else if (isRed && m_redChange == RedChange::WritesItsText) {
        WriteText(column);
    } else {
        WriteTexts();
    }
    emit ColourChanged(m_colour);
}

/// On purpose: a locked grey is none while the red thumb is dragged; the others follow at its end.
void ColourBars::VScroll_Scroll(const Column& column, int position)
{
    m_colour.*column.component = position;
    WriteTexts();
    emit ColourChanged(m_colour);
}

void ColourBars::Text_Change(const Column& column)
{
    if (m_isFilling)
        return;
    const std::optional<int> value = column.text->Value();
    if (!value) {
        const QScopedValueRollback filling(m_isFilling, true);
        column.text->setText("0");
        column.text->selectAll(); // the next digit takes its place
    }
    column.bar->setValue(value.value_or(0));
}

void ColourBars::chkBackGray_Click(bool locked)
{
    m_ui->VScrollGrn->setEnabled(!locked);
    m_ui->VScrollBlue->setEnabled(!locked);
    const int red = m_ui->VScrollRed->value();
    const Rgb grey{ red, red, red };
    if (!locked || m_colour == grey)
        return;
    SetColour(grey);
    emit ColourChanged(m_colour);
}

void ColourBars::MoveBars()
{
    const QScopedValueRollback filling(m_isFilling, true);
    for (const Column& column : m_columns)
        column.bar->setValue(m_colour.*column.component);
}

void ColourBars::WriteText(const Column& column)
{
    const QScopedValueRollback filling(m_isFilling, true);
    column.text->SetValue(m_colour.*column.component);
}

void ColourBars::WriteTexts()
{
    for (const Column& column : m_columns)
        WriteText(column);
}

/// No style marks the scroll bar that has the focus.
void ColourBars::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    for (const Column& column : m_columns)
        if (column.bar->hasFocus())
            painter.drawRect(column.bar->geometry().adjusted(-2, -2, 1, 1));
}

bool ColourBars::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

} // namespace vypx
