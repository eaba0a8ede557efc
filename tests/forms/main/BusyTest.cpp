#include "WindowFixture.h"

#include <QDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>

namespace vypx::test {

namespace {

/// What a load keeps out while it runs. The load is caught in the middle by a box that it shows.
class Busy : public WindowFixture {
protected:
    /// The chain of its one picture breaks, which a box tells amid the load.
    QString WithABox()
    {
        Resource broken = Picture(3501);
        PutU16(broken.data, 10, 0x4000);
        return Written(Iconset{ .name = "Box", .resources = { broken } }.File(), "box.prc");
    }

    /// Opens the same icon without a fault and selects it, so that its button can be used.
    void SelectTheIcon()
    {
        Open(Written(Iconset{ .resources = { Picture(3501) } }.File()));
        ClickTheIcon();
        ASSERT_TRUE(Find<QPushButton>("cmdRemoveIcon").isEnabled());
    }

    void ClickTheIcon()
    {
        QTest::mouseClick(Nodes().viewport(), Qt::LeftButton, {},
            Nodes().visualItemRect(Nodes().NodeOf("tAIB3501 () ")).center());
    }
};

TEST_F(Busy, AClickOnAButtonDoesNothing)
{
    Start();
    SelectTheIcon();
    ask.Answer(QMessageBox::Ok,
        [&] { QTest::mouseClick(&Find<QPushButton>("cmdRemoveIcon"), Qt::LeftButton); });

    Open(WithABox());

    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
    EXPECT_EQ(IconTable.at(0).IconState, 1);
    ClickTheIcon();
    QTest::mouseClick(&Find<QPushButton>("cmdRemoveIcon"), Qt::LeftButton);
    EXPECT_EQ(IconTable.at(0).IconState, 0) << "after the load it works again";
}

TEST_F(Busy, TheRemoveKeyDoesNothing)
{
    Start();
    SelectTheIcon();
    ask.Answer(QMessageBox::Ok, [&] { QTest::keyClick(&Find<QWidget>("Form1"), Qt::Key_R); });

    Open(WithABox());

    EXPECT_EQ(IconTable.at(0).IconState, 1);
    ClickTheIcon();
    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_EQ(IconTable.at(0).IconState, 0) << "after the load it works again";
}

TEST_F(Busy, TheMenuBarOpensNoMenu)
{
    Start();
    QMenuBar& bar = Find<QMenuBar>("menuBar");
    const QPoint file = bar.actionGeometry(bar.actions().first()).center();
    QWidget* opened = nullptr;
    ask.Answer(QMessageBox::Ok, [&] {
        QTest::mouseClick(&bar, Qt::LeftButton, {}, file);
        opened = QApplication::activePopupWidget();
    });

    Open(WithABox());

    EXPECT_EQ(opened, nullptr);
}

TEST_F(Busy, AShortcutDoesNothing)
{
    Start();
    frame->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    const auto asksForAName = [&] {
        return frame->findChild<QDialog*>("frmNewIconset") != nullptr;
    };
    ask.Answer(
        QMessageBox::Ok, [&] { QTest::keyClick(frame.get(), Qt::Key_N, Qt::ControlModifier); });

    Open(WithABox());

    EXPECT_FALSE(asksForAName());
    QTest::keyClick(frame.get(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(asksForAName()) << "after the load it works again";
}

TEST_F(Busy, AnExitThatWaitedDeletesWorkingFilesAndAsksNothing)
{
    Start();
    WriteText(WorkPath("a.bmp.bak"), "x");
    bool stood = false;
    ask.Answer(QMessageBox::Ok, [&] {
        frame->close();
        stood = FileExists(WorkPath("a.bmp.bak"));
    });

    Open(WithABox());

    EXPECT_TRUE(stood) << "not before the load has ended";
    EXPECT_FALSE(FileExists(WorkPath("*.b*")));
    EXPECT_EQ(ask.shown.size(), 1u);
}

/// The same with the real box on the screen, which must be answered in spite of the load.
class BusyWithARealBox : public Busy {
protected:
    BusyWithARealBox()
    {
        WriteSettings("[Splash Screen]\nShow splash screen at startup=False\n");
        frame = std::make_unique<MDIForm1>(screen);
        frame->Start(QString::fromStdString(program.Path()), {});
    }

    /// Loads, and runs `act` when the box is up; closes the box if `act` did not.
    void LoadAnd(const std::function<void(QMessageBox&)>& act)
    {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            poll.stop();
            act(*box);
            box->close();
        });
        poll.start(5);
        DroppedFile = true;
        DroppedFileName = WithABox().toStdString();
        frame->Form().LoadFile();
    }

    ScreenAsk screen;
};

TEST_F(BusyWithARealBox, ItsButtonTakesTheClick)
{
    QString text;
    bool answered = false;

    LoadAnd([&](QMessageBox& box) {
        text = box.text();
        QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        answered = !box.isVisible();
    });

    EXPECT_TRUE(answered);
    EXPECT_EQ(text, "Error parsing file following tAIB3501.");
    EXPECT_TRUE(FileLoaded);
}

TEST_F(BusyWithARealBox, ReturnAnswersIt)
{
    bool answered = false;

    LoadAnd([&](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Return);
        answered = !box.isVisible();
    });

    EXPECT_TRUE(answered);
}

TEST_F(BusyWithARealBox, TheWindowBehindItTakesNoDrops)
{
    bool form = true, outer = true;

    LoadAnd([&](QMessageBox&) {
        form = TakesFiles(Find<QWidget>("frameLG"));
        outer = TakesFiles(*frame);
    });

    EXPECT_FALSE(form);
    EXPECT_FALSE(outer);
    EXPECT_TRUE(TakesFiles(*frame)) << "after the load it does";
}

} // namespace
} // namespace vypx::test
