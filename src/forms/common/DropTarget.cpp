#include "forms/common/DropTarget.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <algorithm>

namespace vypx {

namespace {

DraggedData ReadDrag(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    const auto local =
        std::find_if(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
    if (local != urls.end())
        return { .file = local->toLocalFile() };
    return { .isPicture = data.hasImage() };
}

/// Sees the widget's events before the widget, whose own class may refuse files.
class DropFilter : public QObject {
public:
    DropFilter(QWidget& target, DropHandler handler)
        : QObject(&target)
        , m_target(target)
        , m_handler(std::move(handler))
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
        const DraggedData data = ReadDrag(*drop.mimeData());
        if (!IsForTarget(drop.position().toPoint()) || !m_handler.takes(data)) {
            drop.ignore();
            return true;
        }
        drop.setDropAction(Qt::CopyAction); // a move could have the other program delete the file
        drop.accept();
        if (type == QEvent::Drop)
            QTimer::singleShot(0, this, [this, data] { m_handler.take(data); });
        return true;
    }

private:
    /// What is refused below a part that takes drops comes to the widget, which holds the part.
    bool IsForTarget(const QPoint& position) const
    {
        const QWidget* part = m_target.childAt(position);
        while (part && part != &m_target && !part->acceptDrops())
            part = part->parentWidget();
        return !part || part == &m_target;
    }

    QWidget& m_target;
    DropHandler m_handler;
};

} // namespace

void TakeDrops(QWidget& target, DropHandler handler) { new DropFilter(target, std::move(handler)); }

} // namespace vypx
