#include "forms/common/DropTarget.h"

#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

namespace vypx {

namespace {

/// Sees the widget's events before the widget, whose own class may refuse files.
class DropFilter : public QObject {
public:
    DropFilter(QWidget& target, TakeFiles take)
        : QObject(&target)
        , m_take(std::move(take))
    {
        target.setAcceptDrops(true);
        target.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return false;
        auto& drop = static_cast<QDropEvent&>(*event);
        if (!drop.mimeData()->hasUrls())
            return false;
        drop.acceptProposedAction();
        if (type == QEvent::Drop)
            m_take(*drop.mimeData());
        return true;
    }

private:
    TakeFiles m_take;
};

} // namespace

void TakeDrops(QWidget& target, TakeFiles take) { new DropFilter(target, std::move(take)); }

} // namespace vypx
