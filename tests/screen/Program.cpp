// screen_program FOLDER tip: the program in FOLDER on a real screen, with a tip at its start; with
// another word without. Writes "ready" when it idles, then
// answers each line of its standard input with one line:
//
//   open PATH      opens an iconset without a dialog
//   select LABEL   clicks the node
//   changed        the document counts as changed from now on
//   at NAME        "X Y": a place on the screen where NAME is what is pointed at
//   text NAME      of a label or a window's title
//   visible NAME   "yes" or "no"
//   enabled NAME   "yes" or "no"
//   stored SLOT    path of the working file on show, SLOT is LG or SM
//   clipboard      "ours" or "not ours"
//   under NAME     "yes" where the pointer is on it
//   hover          the control that was last offered what is dragged
//   box            text of the box that stands; its lines are apart by "|"
//   root           text of the tree's root; empty while there is none
//   quit           ends

#include "document/Document.h"
#include "forms/common/Ask.h"
#include "forms/common/UserStore.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <iostream>
#include <map>
#include <unistd.h>

namespace {

using namespace vypx;

class Driver : public QObject {
public:
    explicit Driver(MDIForm1& frame)
        : m_frame(frame)
        , m_input(STDIN_FILENO, QSocketNotifier::Read)
    {
        qApp->installEventFilter(this);
        connect(&m_input, &QSocketNotifier::activated, this, &Driver::Read);
    }

private:
    void Read()
    {
        char bytes[4096];
        const ssize_t count = ::read(STDIN_FILENO, bytes, sizeof bytes);
        if (count <= 0) {
            m_input.setEnabled(false);
            QApplication::exit(0);
            return;
        }
        m_read.append(bytes, static_cast<qsizetype>(count));
        for (qsizetype end = 0; (end = m_read.indexOf('\n')) >= 0;) {
            const QString line = QString::fromUtf8(m_read.left(end));
            m_read.remove(0, end + 1);
            std::cout << Answer(line.section(' ', 0, 0), line.section(' ', 1)).toStdString()
                      << std::endl;
        }
    }

    QString Answer(const QString& command, const QString& what)
    {
        const std::map<QString, std::function<QString()>> answers{
            { "open", [&] { return Open(what); } },
            { "select", [&] { return Select(what); } },
            { "changed", [&] { return IconsetChanged = true, QString("ok"); } },
            { "at", [&] { return At(Find(what)); } },
            { "text", [&] { return Text(Find(what)); } },
            { "visible", [&] { return QString(IsVisible(Find(what)) ? "yes" : "no"); } },
            { "under", [&] { return QString(IsUnderPointer(Find(what)) ? "yes" : "no"); } },
            { "enabled", [&] { return QString(Find(what)->isEnabled() ? "yes" : "no"); } },
            { "stored", [&] { return Stored(what); } },
            { "clipboard",
                [&] { return QString(Clipboard().ownsClipboard() ? "ours" : "not ours"); } },
            { "hover", [&] { return m_hover; } },
            { "box", [&] { return BoxText(); } },
            { "root", [&] { return Tree().Root() ? Tree().Root()->text(0) : QString(); } },
            { "quit", [&] { return QApplication::exit(0), QString("ok"); } },
        };
        const auto found = answers.find(command);
        return found == answers.end() ? "what?" : found->second();
    }

    IconTreeView& Tree() const { return *m_frame.findChild<IconTreeView*>("TreeView1"); }

    QString Open(const QString& path)
    {
        DroppedFile = true;
        DroppedFileName = path.toStdString();
        m_frame.Form().LoadFile();
        DroppedFile = false;
        return FileLoaded ? "ok" : "not opened";
    }

    QString Select(const QString& label)
    {
        Tree().setCurrentItem(Tree().NodeOf(label));
        return SelectedNode == label.toStdString() ? "ok" : "not selected";
    }

    static QString Stored(const QString& slot)
    {
        return QString::fromStdString(slot == "LG" ? HighResPath : LowResPath);
    }

    static const QClipboard& Clipboard() { return *QGuiApplication::clipboard(); }

    static QWidget* Find(const QString& name)
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == name)
                return window;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* const control = window->findChild<QWidget*>(name))
                return control;
        return nullptr;
    }

    static bool IsVisible(const QWidget* control) { return control && control->isVisible(); }

    static bool IsUnderPointer(const QWidget* control) { return control && control->underMouse(); }

    static QString Text(const QWidget* control)
    {
        if (const auto* const label = qobject_cast<const QLabel*>(control))
            return label->text();
        return control ? control->windowTitle() : QString();
    }

    static QString BoxText()
    {
        const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return box ? box->text().replace('\n', '|') : QString();
    }

    /// A place of the control itself, away from its edges, or, where it takes drops, from all parts
    /// that take them by themselves.
    static QString At(QWidget* control)
    {
        constexpr int Step = 2, Around = 2; // pixels
        if (!IsVisible(control))
            return "nowhere";
        for (int y = Around; y < control->height() - Around; y += Step)
            for (int x = Around; x < control->width() - Around; x += Step)
                if (IsOf(*control, { x - Around, y - Around })
                    && IsOf(*control, { x + Around, y + Around })) {
                    const QPoint place = control->mapToGlobal(QPoint(x, y));
                    return QString("%1 %2").arg(place.x()).arg(place.y());
                }
        return "covered";
    }

    static bool IsOf(QWidget& control, const QPoint& place)
    {
        QWidget* part = control.window()->childAt(control.mapTo(control.window(), place));
        if (!part)
            part = control.window();
        if (control.acceptDrops())
            while (part && !part->acceptDrops())
                part = part->parentWidget();
        return part == &control
            || (part && control.isAncestorOf(part)
                && part->objectName() == "qt_scrollarea_viewport");
    }

    /// Notes who is offered what is dragged; a viewport counts as the control around it.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isOffer =
            event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
        if (isOffer && watched->isWidgetType())
            m_hover = watched->objectName() == "qt_scrollarea_viewport"
                ? watched->parent()->objectName()
                : watched->objectName();
        if (event->type() == QEvent::DragLeave || event->type() == QEvent::Drop)
            m_hover.clear();
        return false;
    }

    MDIForm1& m_frame;
    QSocketNotifier m_input;
    QByteArray m_read;
    QString m_hover;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder + "/user");
    SaveShowTipsAtStartup(QString(argv[2]) == "tip");
    ScreenAsk ask;
    MDIForm1 frame(ask);
    frame.Start(folder, {});
    frame.move(0, 0);
    PromptColorDepth = false;
    const Driver driver(frame);
    QTimer::singleShot(0, [] { std::cout << "ready" << std::endl; });
    return QApplication::exec();
}
