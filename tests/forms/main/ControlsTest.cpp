#include "CropFixture.h"

#include "forms/greeting/frmSplash.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSet>
#include <QTabBar>
#include <gmock/gmock.h>
#include <map>

namespace vypx::test {

namespace {

using ::testing::IsEmpty;

/// All windows of the program, and each control in them.
class Controls : public CropFixture {
public:
    void PressIn(const QString& window, const QString& button)
    {
        Find<QDialog>(window).findChild<QAbstractButton*>(button)->click();
    }
    /// What opens the windows of the program, a few at once.
    struct Scene {
        QStringList windows; ///< that stand then
        std::function<void()> open;
    };
    std::vector<Scene> Scenes()
    {
        return {
            { { "MDIForm1", "frmProgOptions", "frmAddIcon", "frmEditAppList", "frmAddAppManual" },
                [this] {
                    Entry("mnuOptions").trigger();
                    Press("cmdAddIcon");
                    Press("cmdEditAppList");
                    PressIn("frmEditAppList", "cmdManual");
                } },
            { { "frmSelectCDepth" },
                [this] {
                    PromptColorDepth = true;
                    IconsetChanged = false;
                    Entry("mnuNew").trigger();
                } },
            { { "frmNewIconset" }, [this] { PressIn("frmSelectCDepth", "cmdDoneCDepth"); } },
            { { "frmChangeTC" },
                [this] {
                    PressIn("frmNewIconset", "cmdCancelName");
                    Press("cmdChangeTC_LG");
                } },
            { { "frmDropIconTarget" },
                [this] {
                    Find<QDialog>("frmChangeTC").close();
                    DroppedFileName = PictureFile(8, 8, {}).toStdString();
                    frame->Form().ChkDragFile();
                } },
            { { "frmCrop", "frmChangeBackColor" },
                [this] {
                    Find<QDialog>("frmDropIconTarget").close();
                    OpenCrop(200, 200);
                    PressIn("frmCrop", "cmdChangeBackColor");
                } },
            { { "frmHelp" },
                [this] {
                    Find<QDialog>("frmCrop").close();
                    Entry("mnuManual").trigger();
                } },
            { { "frmTip", "frmAbout", "frmSystemInfo", "frmSplash" },
                [this] {
                    Entry("mnuTips").trigger();
                    Entry("mnuAbout").trigger();
                    PressIn("frmAbout", "cmdSysInfo");
                    (new frmSplash(frame->Form()))->show();
                } },
        };
    }
    /// Opens scene after scene and gives what `look` finds in them.
    QStringList InAllWindows(QStringList (*look)())
    {
        QStringList found;
        for (const Scene& scene : Scenes()) {
            scene.open();
            Settle();
            QStringList names;
            for (const QWidget* window : Windows())
                names << window->objectName();
            for (const QString& window : scene.windows)
                EXPECT_TRUE(names.contains(window)) << window.toStdString();
            found << look();
        }
        found.removeDuplicates();
        return found;
    }

    static QList<QWidget*> Windows()
    {
        QList<QWidget*> windows;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->windowType() != Qt::Popup
                && window->windowType() != Qt::ToolTip)
                windows << window;
        return windows;
    }

    /// What the user works with, without the parts that Qt makes such controls of.
    static bool IsControl(const QWidget& widget)
    {
        const bool isPart = widget.objectName().isEmpty() || widget.objectName().startsWith("qt_")
            || qobject_cast<const QAbstractItemView*>(widget.parentWidget())
            || qobject_cast<const QComboBox*>(widget.parentWidget())
            || qobject_cast<const QTabBar*>(widget.parentWidget());
        const bool isUsed = qobject_cast<const QAbstractButton*>(&widget)
            || qobject_cast<const QLineEdit*>(&widget)
            || qobject_cast<const QAbstractItemView*>(&widget)
            || qobject_cast<const QAbstractSlider*>(&widget)
            || qobject_cast<const QComboBox*>(&widget)
            || qobject_cast<const QPlainTextEdit*>(&widget);
        const QSet<QString> neverSeen{ "Listbuff", "listPRC", "ListBuffMain", "picDummy" };
        return !isPart && !neverSeen.contains(widget.objectName())
            && (isUsed || widget.focusPolicy() != Qt::NoFocus)
            && !qobject_cast<const QMdiSubWindow*>(&widget) && !qobject_cast<const QMenu*>(&widget)
            && !qobject_cast<const QMenuBar*>(&widget) && widget.objectName() != "mdiArea"
            && !widget.isWindow();
    }
    static QList<QWidget*> ControlsOf(const QWidget& window)
    {
        QList<QWidget*> controls;
        for (QWidget* widget : window.findChildren<QWidget*>())
            if (widget->window() == &window && IsControl(*widget))
                controls << widget;
        return controls;
    }
    static QString NameOf(QWidget& control)
    {
        QAccessibleInterface* const name = QAccessible::queryAccessibleInterface(&control);
        return name ? name->text(QAccessible::Name).trimmed() : QString();
    }
    static bool IsExplained(const QWidget& control)
    {
        const auto* const button = qobject_cast<const QAbstractButton*>(&control);
        if (!control.toolTip().isEmpty() || (button && !button->text().isEmpty()))
            return true;
        // Nodes, links and tabs tell by themselves; a tool tip would stand before them.
        if (QSet<QString>{ "TreeView1", "txtPage", "tabs" }.contains(control.objectName()))
            return true;
        const QList<QLabel*> labels = control.window()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const QLabel* label) { return label->buddy() == &control; });
    }

    /// What is wrong with the controls of all windows that stand.
    static QStringList Faults()
    {
        QStringList faults;
        for (const QWidget* window : Windows())
            for (QWidget* control : ControlsOf(*window)) {
                const QString name = window->objectName() + "." + control->objectName();
                if (!IsExplained(*control))
                    faults << name + ": neither tool tip nor label";
                if (NameOf(*control).isEmpty())
                    faults << name + ": no accessible name";
                const bool isReached = (control->focusPolicy() & Qt::TabFocus) != 0;
                // Of a group of options Tab reaches the one that is chosen, arrows the others.
                const bool isOption = qobject_cast<const QRadioButton*>(control);
                if (!isReached && !isOption && window->objectName() != "frmSplash")
                    faults << name + ": not in the tab order";
            }
        return faults;
    }
    static std::string Text(const QStringList& lines) { return lines.join("\n").toStdString(); }
};

/// The letters of captions, each with those that have it: of one window or one menu.
class Letters {
public:
    void Add(const QString& caption)
    {
        const qsizetype mark = caption.indexOf('&');
        if (mark >= 0 && mark + 1 < caption.size() && caption[mark + 1] != '&')
            m_captions[caption[mark + 1].toUpper()] << caption;
    }
    /// Captions that share their letter, but for letters that only told captions have.
    QStringList Clashes(const QSet<QString>& told) const
    {
        QStringList clashes;
        for (const auto& [letter, captions] : m_captions) {
            const auto isOurs = [&](const QString& caption) { return !told.contains(caption); };
            if (captions.size() > 1 && std::any_of(captions.begin(), captions.end(), isOurs))
                clashes << captions.join(" / ");
        }
        return clashes;
    }

private:
    std::map<QChar, QStringList> m_captions;
};

/// Captions that were not ours to choose and have a letter in common with another one.
const QSet<QString> Told{ "&Export Template", "&Exit" };

/// Of each window, with the titles of its menu bar, and of each menu.
QStringList Clashes()
{
    QStringList clashes;
    for (const QWidget* window : Controls::Windows()) {
        Letters letters;
        for (const auto* button : window->findChildren<QAbstractButton*>())
            if (button->window() == window)
                letters.Add(button->text());
        for (const auto* label : window->findChildren<QLabel*>())
            if (label->window() == window && label->buddy())
                letters.Add(label->text());
        for (const auto* bar : window->findChildren<QMenuBar*>())
            for (const QAction* title : bar->actions())
                letters.Add(title->text());
        for (const QString& clash : letters.Clashes(Told))
            clashes << window->objectName() + ": " + clash;
        for (const auto* menu : window->findChildren<QMenu*>()) {
            Letters ofMenu;
            for (const QAction* entry : menu->actions())
                ofMenu.Add(entry->text());
            for (const QString& clash : ofMenu.Clashes(Told))
                clashes << menu->objectName() + ": " + clash;
        }
    }
    return clashes;
}

TEST_F(Controls, AreExplainedNamedAndReachedByTab)
{
    EXPECT_THAT(Text(InAllWindows(Faults)), IsEmpty());
}

TEST_F(Controls, WithCaptionsOfOurOwnHaveALetterOfTheirOwn)
{
    EXPECT_THAT(Text(InAllWindows(Clashes)), IsEmpty());
}

} // namespace
} // namespace vypx::test
