#include "IconsFixture.h"
#include "forms/main/FormKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace vypx::test {

namespace {

struct KeyAt : QKeyEvent {
    KeyAt(QEvent::Type type, quint64 milliseconds, bool marked = false)
        : QKeyEvent(type, Qt::Key_R, {}, "r", marked)
    {
        setTimestamp(milliseconds);
    }
};

TEST(HeldKey, APressAtTheMomentOfItsOwnReleaseIsARepeat)
{
    struct {
        quint64 released, pressed;
        bool isRepeat;
    } const cases[] = { { 1000, 1000, true }, { 1000, 1002, true }, { 1000, 1003, false },
        { 1000, 999, false } };
    for (const auto& one : cases) {
        HeldKey held;
        held.Released(KeyAt(QEvent::KeyRelease, one.released));

        EXPECT_EQ(held.IsRepeat(KeyAt(QEvent::KeyPress, one.pressed)), one.isRepeat) << one.pressed;
    }
}

TEST(HeldKey, AMarkedPressIsARepeatWhenever)
{
    EXPECT_TRUE(HeldKey().IsRepeat(KeyAt(QEvent::KeyPress, 5, true)));
    EXPECT_FALSE(HeldKey().IsRepeat(KeyAt(QEvent::KeyPress, 5)));
}

TEST(HeldKey, TheReleaseOfAnotherKeySaysNothing)
{
    HeldKey held;
    QKeyEvent other(QEvent::KeyRelease, Qt::Key_Q, {});
    other.setTimestamp(1000);
    held.Released(other);

    EXPECT_FALSE(held.IsRepeat(KeyAt(QEvent::KeyPress, 1001)));
}

class Keys : public IconsFixture {
protected:
    int StateOf(const std::string& label) { return *IconTable[*FindIconRow(label)].IconState; }
    void Send(QWidget& target, KeyAt&& event) { QCoreApplication::sendEvent(&target, &event); }
    QString Current() { return Nodes().currentItem()->text(0); }
    void WaitForTheSearchToEnd() { QTest::qWait(QApplication::keyboardInputInterval() + 20); }
};

TEST_F(Keys, AHeldKeyWhoseRepeatsAreNotMarkedMarksOnce)
{
    Click("Alpha (Large Icon)");
    Send(Nodes(), KeyAt(QEvent::KeyPress, 5000));
    for (quint64 time = 5030; time < 5300; time += 30) {
        Send(Nodes(), KeyAt(QEvent::KeyRelease, time));
        Send(Nodes(), KeyAt(QEvent::KeyPress, time + 1));
    }
    EXPECT_EQ(StateOf("Alpha (Large Icon)"), 0);

    Send(Nodes(), KeyAt(QEvent::KeyRelease, 5400));
    Send(Nodes(), KeyAt(QEvent::KeyPress, 5500));
    EXPECT_EQ(StateOf("Alpha (Large Icon)"), 1) << "a press of its own";
}

TEST_F(Keys, WithoutTheCommandTheKeyGoesNowhere)
{
    IconTable.push_back({ "Rose (Large Icon)", "tAIB9", "NEW", "NEW", 1, "APP" });
    frame->Form().RebuildTree();
    Nodes().setFocus();
    Nodes().setCurrentItem(Nodes().Root());
    ASSERT_FALSE(IsOn("cmdRemoveIcon"));

    QTest::keyClick(&Nodes(), Qt::Key_R);

    EXPECT_EQ(Current(), "Set") << "a search would go to Rose";
}

TEST_F(Keys, AmidASearchTheLetterBelongsToIt)
{
    IconTable.push_back({ "Bravo (Large Icon)", "tAIB9", "NEW", "NEW", 1, "APP" });
    frame->Form().RebuildTree();
    Nodes().setFocus();
    Click("Alpha (Large Icon)");
    WaitForTheSearchToEnd();

    QTest::keyClick(&Nodes(), Qt::Key_B);
    QTest::keyClick(&Nodes(), Qt::Key_R);

    EXPECT_EQ(Current(), "Bravo (Large Icon)");
    EXPECT_EQ(StateOf("Bravo (Large Icon)"), 1);
    EXPECT_EQ(StateOf("Alpha (Large Icon)"), 1);

    WaitForTheSearchToEnd();
    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_EQ(StateOf("Bravo (Large Icon)"), 0) << "a key of its own once more";
}

TEST_F(Keys, AMnemonicActsOnTheIconThatIsSelectedWhenItIsPressed)
{
    frame->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    Click("Alpha (Large Icon)");
    Nodes().setFocus();

    QTest::keyClick(&Nodes(), Qt::Key_R, Qt::AltModifier);
    QTest::keyClick(&Nodes(), Qt::Key_Down);
    QTest::qWait(150); // a button's own press by mnemonic lasts for 100

    EXPECT_EQ(StateOf("Alpha (Large Icon)"), 0);
    EXPECT_EQ(Current(), "Alpha (Small Icon)");
    EXPECT_EQ(StateOf("Alpha (Small Icon)"), 1);
}

TEST_F(Keys, AClickThatArrivesDuringAClickWaitsForItsEnd)
{
    std::string amid;
    QTimer::singleShot(0, frame.get(), [&] { // as the first click lets pending events run
        Nodes().setCurrentItem(Nodes().NodeOf("Beta (Large Icon)"));
        amid = SelectedNode;
    });

    Nodes().setCurrentItem(Nodes().NodeOf("Alpha (Large Icon)"));

    EXPECT_EQ(amid, "Alpha (Large Icon)");
    EXPECT_EQ(SelectedNode, "Beta (Large Icon)");
}

class Highlight : public IconsFixture {
protected:
    QStringList Selected()
    {
        QStringList texts;
        for (const QTreeWidgetItem* item : Nodes().selectedItems())
            texts << item->text(0);
        return texts;
    }
    QPoint PlaceOf(const QString& text)
    {
        return Nodes().visualItemRect(Nodes().NodeOf(text)).center();
    }
};

TEST_F(Highlight, AClickOnEmptyGroundLeavesIt)
{
    Click("Alpha (Large Icon)");

    QTest::mouseClick(Nodes().viewport(), Qt::LeftButton, {},
        Nodes().viewport()->rect().bottomLeft() + QPoint(5, -2));

    EXPECT_EQ(Selected(), QStringList("Alpha (Large Icon)"));
}

TEST_F(Highlight, ACtrlClickLeavesIt)
{
    Click("Alpha (Large Icon)");

    QTest::mouseClick(
        Nodes().viewport(), Qt::LeftButton, Qt::ControlModifier, PlaceOf("Alpha (Large Icon)"));

    EXPECT_EQ(Selected(), QStringList("Alpha (Large Icon)"));
}

TEST_F(Highlight, ADragLeavesIt)
{
    QWidget& ground = *Nodes().viewport();
    QTest::mousePress(&ground, Qt::LeftButton, {}, PlaceOf("Alpha (Large Icon)"));
    QMouseEvent move(QEvent::MouseMove, PlaceOf("Beta (Large Icon)"),
        ground.mapToGlobal(PlaceOf("Beta (Large Icon)")), Qt::NoButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&ground, &move);
    QTest::mouseRelease(&ground, Qt::LeftButton, {}, PlaceOf("Beta (Large Icon)"));

    EXPECT_EQ(Selected(), QStringList("Alpha (Large Icon)"));
    EXPECT_EQ(SelectedNode, "Alpha (Large Icon)");
}

TEST_F(Highlight, ClearDeletedAndCloseLeaveNoTextsInThePanels)
{
    const auto texts = [&] {
        QStringList shown;
        for (const char* label : { "lblLG_Size", "lbl_LGsize", "lblC_RGB_LG", "lblSM_Size",
                 "lbl_SMsize", "lblC_RGB_SM" })
            shown << Find<QLabel>(label).text();
        return shown.join("");
    };
    Click("Alpha (Large Icon)");
    ASSERT_FALSE(Find<QLabel>("lblLG_Size").text().isEmpty());
    QTest::keyClick(&Nodes(), Qt::Key_R);
    ask.Answer(QMessageBox::Ok);
    Find<QPushButton>("cmdClrDeleted").click();
    EXPECT_EQ(texts(), "");

    Click("Alpha (Small Icon)");
    ASSERT_NE(texts(), "");
    ask.Answer(QMessageBox::Ok);
    Entry("mnuCloseIconset").trigger();
    EXPECT_EQ(texts(), "");
}

} // namespace
} // namespace vypx::test
