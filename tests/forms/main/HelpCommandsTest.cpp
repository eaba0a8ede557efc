#include "AddIconFixture.h"

#include "document/HelpContext.h"
#include "forms/help/HelpPage.h"
#include "forms/help/frmHelp.h"

#include <QApplication>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace vypx::test {

namespace {

class HelpKey : public AddIconFixture {
protected:
    static frmHelp* Help()
    {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* const help = qobject_cast<frmHelp*>(window))
                return help;
        return nullptr;
    }
    static bool IsHelpOpen() { return Help() && Help()->isVisible(); }
    /// Empty: the help is not open.
    static QString Topic()
    {
        if (!IsHelpOpen())
            return {};
        const auto* const page = static_cast<HelpPage*>(Help()->findChild<QTextBrowser*>());
        const QString anchor = page->source().fragment();
        return anchor.isEmpty() ? page->Page() : page->Page() + '#' + anchor;
    }
    /// A click that a box would keep from the help.
    static void ClickAsTheScreenWould(const QString& button)
    {
        const auto* const part = Help()->findChild<QPushButton*>(button);
        QTest::mouseClick(
            Help()->windowHandle(), Qt::LeftButton, {}, part->mapTo(Help(), part->rect().center()));
    }
    static QString TopicOfF1(QWidget& focus)
    {
        QTest::keyClick(&focus, Qt::Key_F1);
        const QString topic = Topic();
        if (Help())
            Help()->close();
        return topic;
    }
    QString TopicIn(const QString& window)
    {
        auto* const found = frame->findChild<QWidget*>(window);
        if (!found)
            return "no " + window;
        QWidget* const focus = found->focusWidget() ? found->focusWidget() : found;
        return TopicOfF1(*focus);
    }
    /// Runs once, while the box or dialog is up, and then closes that.
    template <typename Dialog>
    void WhenUp(std::function<void(Dialog&)> act)
    {
        auto* const poll = new QTimer(&m_timers);
        QObject::connect(poll, &QTimer::timeout, poll, [poll, act = std::move(act)] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            poll->stop();
            act(*dialog);
            dialog->close();
        });
        poll->start(5);
    }

private:
    QObject m_timers;
};

TEST_F(HelpKey, TheHelpEntryOpensTheTopicOfTheIconsetOrOfNone)
{
    Entry("mnuManual").trigger();
    EXPECT_EQ(Topic(), "main-window.html");

    IconsetChanged = false;
    Entry("mnuCloseIconset").trigger();
    Entry("mnuManual").trigger();
    EXPECT_EQ(Topic(), "start.html");
    EXPECT_EQ(HelpContext, 1040);
}

TEST_F(HelpKey, InTheMainFormItOpensTheTopicOfTheContextThatWasSetLast)
{
    EXPECT_EQ(TopicOfF1(Nodes()), "main-window.html") << "as at the start";
    EXPECT_EQ(TopicOfF1(*frame), "main-window.html");
    IconsetChanged = false;
    Entry("mnuCloseIconset").trigger();
    Entry("mnuManual").trigger();
    EXPECT_EQ(TopicOfF1(Nodes()), "start.html");

    ask.CancelDialog();
    Entry("mnuOpen").trigger();

    EXPECT_EQ(TopicOfF1(Nodes()), "main-window.html");
}

TEST_F(HelpKey, LoadTemplateSetsTheContextAndNewOnlyWhereItAsks)
{
    HelpContext = 1040;
    ask.CancelDialog();
    Entry("mnuLoadTemplate").trigger();
    EXPECT_EQ(HelpContext, 1030);

    HelpContext = 1040;
    IconsetChanged = false;
    Entry("mnuNew").trigger();
    EXPECT_EQ(HelpContext, 1040);
    QTest::mouseClick(&Find<QAbstractButton>("cmdCancelName"), Qt::LeftButton);

    IconsetChanged = true;
    int during = 0;
    ask.Answer(QMessageBox::Cancel, [&during] { during = HelpContext; });
    Entry("mnuNew").trigger();
    EXPECT_EQ(during, 1030);
}

TEST_F(HelpKey, EveryWindowHasItsTopic)
{
    Entry("mnuOptions").trigger();
    EXPECT_EQ(TopicIn("frmProgOptions"), "options.html");
    Entry("mnuShowPrevOpt").trigger();
    EXPECT_EQ(TopicIn("frmPreviewOpt"), "preview-options.html");
    Entry("mnuShowIconStats").trigger();
    EXPECT_EQ(TopicIn("frmIconStat"), "icon-stats.html");
    Entry("mnuShowShared").trigger();
    EXPECT_EQ(TopicIn("frmShareList"), "shared-icons.html");
    OpenAdd();
    EXPECT_EQ(TopicIn("frmAddIcon"), "add-icon.html");
    Press("cmdEditAppList");
    EXPECT_EQ(TopicIn("frmEditAppList"), "app-list.html");
    Find<QAbstractButton>("cmdManual").click();
    EXPECT_EQ(TopicIn("frmAddAppManual"), "add-app-manually.html");
    Find<QDialog>("frmEditAppList").close();
    DroppedFileName = PictureFile(10, 10, {}).toStdString();
    frame->Form().ChkDragFile();
    EXPECT_EQ(TopicIn("frmDropIconTarget"), "drop-target.html");
    Find<QDialog>("frmDropIconTarget").close();
    IconsetChanged = false;
    PromptColorDepth = true;
    Entry("mnuNew").trigger();
    EXPECT_EQ(TopicIn("frmSelectCDepth"), "color-depth.html");
    QTest::mouseClick(&Find<QAbstractButton>("cmdDoneCDepth"), Qt::LeftButton);
    EXPECT_EQ(TopicIn("frmNewIconset"), "new-iconset.html");
}

TEST_F(HelpKey, WindowsThatDisableTheMainFormHaveTheirsAndTheHelpCanBeUsed)
{
    Click("Alpha (Large Icon)");
    Import("cmdImportLG", PictureFile(300, 200, { 200, 100, 50 }));
    EXPECT_EQ(TopicIn("frmCrop"), "resize-image.html");
    Find<QAbstractButton>("cmdChangeBackColor").click();
    EXPECT_EQ(TopicIn("frmChangeBackColor"), "border-color.html");
    ASSERT_FALSE(frame->isEnabled() && frame->Form().isEnabled());
    QTest::keyClick(&Find<QDialog>("frmCrop"), Qt::Key_F1);
    EXPECT_TRUE(Help()->isEnabled());
    QTest::mouseClick(Help()->findChild<QPushButton*>("cmdHome"), Qt::LeftButton);
    EXPECT_EQ(Topic(), "start.html");
    QTest::keyClick(Help(), Qt::Key_Escape);
    EXPECT_FALSE(IsHelpOpen());

    EXPECT_EQ(TopicOfF1(*frame), "main-window.html") << "disabled as it is";
}

TEST_F(HelpKey, TheTransparentColourEditorHasItsTopic)
{
    Click("Alpha (Large Icon)");
    Press("cmdChangeTC_LG");

    EXPECT_EQ(TopicIn("frmChangeTC"), "transparent-color.html");
}

TEST_F(HelpKey, InTheHelpItselfItTellsAboutTheHelp)
{
    Entry("mnuManual").trigger();

    QTest::keyClick(Help()->findChild<QTextBrowser*>(), Qt::Key_F1);

    EXPECT_EQ(Topic(), "help-window.html");
}

TEST_F(HelpKey, OverTheHelpsOwnPrinterItOpensThePageBelow)
{
    QTest::keyClick(&Nodes(), Qt::Key_F1);
    WhenUp<QDialog>([](QDialog& printer) {
        QTest::keyClick(&printer, Qt::Key_F1);
        EXPECT_TRUE(Help()->isVisible());
        EXPECT_NE(Help()->windowHandle()->transientParent(), printer.windowHandle())
            << "each would stand above the other";
    });

    QTest::mouseClick(Help()->findChild<QPushButton*>("cmdPrint"), Qt::LeftButton);

    EXPECT_EQ(Topic(), "help-window.html");
}

TEST_F(HelpKey, TheHelpButtonOfTheCatalogsOpensTheirTopic)
{
    Press("cmdEditAppList");

    Press("cmdHelp");

    EXPECT_EQ(Topic(), "app-list.html");
}

TEST_F(HelpKey, AHeldKeyActsOnce)
{
    QTest::keyPress(&Nodes(), Qt::Key_F1);
    ASSERT_TRUE(IsHelpOpen());
    Help()->close();

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_F1, {}, {}, true);
    QApplication::sendEvent(&Nodes(), &repeat);

    EXPECT_FALSE(IsHelpOpen());
}

TEST_F(HelpKey, WithOtherKeysItIsNoHelpKey)
{
    for (const auto modifier : { Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier })
        QTest::keyClick(&Nodes(), Qt::Key_F1, modifier);

    EXPECT_FALSE(IsHelpOpen());
}

TEST_F(HelpKey, AnOpenMenuGoesAndItsPageComes)
{
    auto& menu = Find<QMenu>("mnuView");
    menu.popup({ 10, 10 });
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);

    QTest::keyClick(&menu, Qt::Key_F1);

    EXPECT_EQ(Topic(), "menu-view.html");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(HelpKey, InABoxItOpensTheMainFormsTopicAndTheBoxStaysUnderAHelpThatCanBeUsed)
{
    ScreenAsk screen;
    Press("cmdEditAppList");
    auto& editor = Find<QDialog>("frmEditAppList");
    bool boxStayed = false, helpWasUsed = false;
    QString topic;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, Qt::Key_F1);
        topic = Topic();
        ClickAsTheScreenWould("cmdHome");
        helpWasUsed = Topic() == "start.html";
        boxStayed = box.isVisible() && QApplication::activeModalWidget() == &box;
    });

    screen.Show(&editor, { .text = "Ask." });

    EXPECT_EQ(topic, "main-window.html");
    EXPECT_TRUE(helpWasUsed);
    EXPECT_TRUE(boxStayed);
    EXPECT_TRUE(IsHelpOpen()) << "it does not go with the box";
}

TEST_F(HelpKey, AHelpThatStoodOpenIsLetInBesideABoxByTheKey)
{
    ScreenAsk screen;
    Entry("mnuManual").trigger();
    QTest::mouseClick(Help()->findChild<QPushButton*>("cmdHome"), Qt::LeftButton);
    bool wasClosed = false;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_F1);
        EXPECT_EQ(Topic(), "main-window.html");
        QTest::keyClick(Help()->windowHandle(), Qt::Key_Escape);
        wasClosed = !IsHelpOpen();
        EXPECT_TRUE(box.isVisible());
    });

    screen.Show(frame.get(), { .text = "Ask." });

    EXPECT_TRUE(wasClosed);
}

TEST_F(HelpKey, InAFileDialogItOpensTheMainFormsTopic)
{
    ScreenAsk screen;
    QString topic;
    WhenUp<QFileDialog>([&](QFileDialog& dialog) { topic = TopicOfF1(dialog); });

    screen.OpenFile(frame.get(),
        { .title = "Open", .folder = PictureFile(2, 2, {}), .filters = { "All (*)" } });

    EXPECT_EQ(topic, "main-window.html");
}

TEST_F(HelpKey, TheHelpClosesWithTheProgram)
{
    Entry("mnuManual").trigger();
    ASSERT_TRUE(IsHelpOpen());
    IconsetChanged = false;

    Entry("mnuExit").trigger();

    EXPECT_FALSE(IsHelpOpen());
}

TEST_F(HelpKey, WhileAFileIsReadItDoesNothing)
{
    bool wasOpened = false;
    QTimer duringLoad;
    QObject::connect(&duringLoad, &QTimer::timeout, [&] {
        if (FileLoaded)
            return;
        QTest::keyClick(&Nodes(), Qt::Key_F1);
        wasOpened = wasOpened || IsHelpOpen();
        duringLoad.stop();
    });
    duringLoad.start(0);
    IconsetChanged = false;

    Open(QString::fromStdString(TestData("iconsets/owners.prc")));

    EXPECT_FALSE(duringLoad.isActive()) << "the load let no events run";
    EXPECT_FALSE(wasOpened);
}

} // namespace

} // namespace vypx::test
