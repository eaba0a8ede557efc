#include "forms/common/DropTarget.h"

#include "forms/common/ThisMachine.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <optional>

namespace vypx {

namespace {

/// Path of the file; empty where it is none of this machine.
QString LocalFileOf(QUrl url)
{
    if (IsThisMachine(url.host()))
        url.setHost({});
#ifndef Q_OS_WIN // where the files of a named machine are at hand
    if (!url.host().isEmpty())
        return {};
#endif
    return url.isLocalFile() ? url.toLocalFile() : QString();
}

/// Asks the other program, which may be slow.
DraggedData ReadDrag(const QMimeData& data)
{
    DraggedData dragged;
    for (const QUrl& url : data.urls())
        if (const QString file = LocalFileOf(url); !file.isEmpty())
            dragged.files << file;
    dragged.file = dragged.files.value(0);
    dragged.isPicture = dragged.files.isEmpty() && data.hasImage();
    return dragged;
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
        if (type == QEvent::DragLeave || type == QEvent::DragEnter)
            m_dragged.reset();
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return false;
        auto& drop = static_cast<QDropEvent&>(*event);
        const bool isMeant = IsForTarget(drop.position().toPoint()) && m_handler.isReady();
        if (isMeant && (type != QEvent::DragMove || !m_dragged)) // not at each of its steps
            m_dragged = ReadDrag(*drop.mimeData());
        if (!isMeant || !m_handler.takes(*m_dragged)) {
            drop.ignore();
            return true;
        }
        drop.setDropAction(Qt::CopyAction); // a move could have the other program delete the file
        drop.accept();
        if (type == QEvent::Drop)
            QTimer::singleShot(0, this, [this, data = *m_dragged] { m_handler.take(data); });
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
    std::optional<DraggedData> m_dragged; // what is over the widget
};

} // namespace

void TakeDrops(QWidget& target, DropHandler handler) { new DropFilter(target, std::move(handler)); }

} // namespace vypx
