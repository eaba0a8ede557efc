#include "forms/sides/SharedList.h"

#include "forms/common/HeldKeys.h"
#include "forms/common/Text.h"
#include "settings/Settings.h"

#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <utility>

namespace vypx {

namespace {

/// Makes every item as wide as the list's extent.
class ExtentDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    int extent = 0; // pixels

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return { extent, QStyledItemDelegate::sizeHint(option, index).height() };
    }
};

} // namespace

SharedList::SharedList(QWidget* parent)
    : QListWidget(parent)
{
    HeldKeys::OfProgram(); // from now on, so that it knows what is held
    setItemDelegate(new ExtentDelegate(this));
    setTextElideMode(Qt::ElideNone);
    setUniformItemSizes(true);
    // By value: what is done for it may delete the item.
    connect(this, &QListWidget::itemClicked, this,
        [this](const QListWidgetItem* item) { emit Chosen(item->text()); });
}

void SharedList::Clear() { clear(); }

void SharedList::Add(std::string_view text) { addItem(FromLatin1(text)); }

std::int32_t SharedList::TextWidth(std::string_view text) const
{
    return parentWidget()->fontMetrics().horizontalAdvance(FromLatin1(text)) * TwipsPerPixel;
}

int SharedList::ScrollBarWidth() const { return style()->pixelMetric(QStyle::PM_ScrollBarExtent); }

void SharedList::SetHorizontalExtent(int pixels)
{
    static_cast<ExtentDelegate*>(itemDelegate())->extent = pixels;
    scheduleDelayedItemsLayout();
}

/// Once for all texts that come in one go: for each of them the whole list would be laid out.
void SharedList::ScrollToEnd()
{
    m_scrollsToEnd = true;
    scheduleDelayedItemsLayout();
}

void SharedList::doItemsLayout()
{
    QListWidget::doItemsLayout();
    if (std::exchange(m_scrollsToEnd, false))
        scrollToBottom();
}

QSize SharedList::sizeHint() const
{
    constexpr int Letters = 32, Lines = 6;
    return { fontMetrics().averageCharWidth() * Letters, fontMetrics().lineSpacing() * Lines };
}

void SharedList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QListWidget::keyPressEvent(event);
        return;
    }
    const QListWidgetItem* const item = currentItem();
    if (item && !HeldKeys::OfProgram().IsRepeat(*event))
        emit Chosen(item->text());
}

/// Its first click has done all. The second would choose what stands there by then: often the
/// label where the user came from.
void SharedList::mouseDoubleClickEvent(QMouseEvent*) { }

} // namespace vypx
