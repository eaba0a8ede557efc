// drag_source FILE...: a small window in the lower right corner of the screen. Pressed, it drags
// the files. Writes "ready X Y" when it can be pressed, "taken" or "refused" whenever what it is
// over changes its mind, and "done" with the answer when the drag has ended.

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QScreen>
#include <QUrl>
#include <QWidget>
#include <iostream>

namespace {

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
    Source source(QApplication::arguments().mid(1));
    source.show();
    return QApplication::exec();
}
