// drag_source ATOM FILE...: a small window in the lower right corner of the screen. Pressed, it
// drags the files. Writes "ready X Y" when it can be pressed, "taken" or "refused" whenever what it
// is over changes its mind, "done" with the answer when the drag has ended, and "finished" when a
// message of the type ATOM (the number of XdndFinished) says that the drop was served.

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QUrl>
#include <QWidget>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <utility>

namespace {

/// Tells of the message by which the other program lets go of what was dropped.
class FinishWatcher : public QAbstractNativeEventFilter {
public:
    explicit FinishWatcher(std::uint32_t finished)
        : m_finished(finished)
    {
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override
    {
        // An event of X: its kind is the first byte, a client message's type the 32 bits at 8.
        constexpr std::uint8_t ClientMessage = 33;
        const auto* const event = static_cast<const std::uint8_t*>(message);
        std::uint32_t type = 0;
        std::memcpy(&type, event + 8, sizeof type);
        if ((event[0] & 0x7F) == ClientMessage && type == m_finished)
            std::cout << "finished" << std::endl;
        return false;
    }

private:
    std::uint32_t m_finished;
};

class Source : public QWidget {
public:
    explicit Source(const QStringList& files)
        : QWidget(nullptr, Qt::X11BypassWindowManagerHint | Qt::WindowStaysOnTopHint)
        , m_files(files)
    {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        setGeometry(screen.right() - 49, screen.bottom() - 49, 50, 50);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (std::exchange(m_isTold, true))
            return;
        const QPoint middle = geometry().center();
        std::cout << "ready " << middle.x() << ' ' << middle.y() << std::endl;
    }

    void mousePressEvent(QMouseEvent*) override
    {
        QList<QUrl> urls;
        for (const QString& file : m_files)
            urls << QUrl::fromLocalFile(file);
        auto* const list = new QMimeData;
        list->setUrls(urls);
        auto* const drag = new QDrag(this);
        drag->setMimeData(list);
        connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
            std::cout << (action == Qt::IgnoreAction ? "refused" : "taken") << std::endl;
        });
        const Qt::DropAction answer = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
        std::cout << "done "
                  << (answer == Qt::CopyAction          ? "copied"
                             : answer == Qt::MoveAction ? "moved"
                                                        : "refused")
                  << std::endl;
    }

private:
    QStringList m_files;
    bool m_isTold = false;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    FinishWatcher watcher(arguments.value(1).toUInt());
    application.installNativeEventFilter(&watcher);
    Source source(arguments.mid(2));
    source.show();
    return QApplication::exec();
}
