#include "PicturesFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QSet>

namespace vypx::test {

namespace {

constexpr const char* Alpha = "Alpha (Large Icon)";

/// The menus that the panels' pictures show.
class PopUpTest : public PicturesFixture, public ::testing::WithParamInterface<const char*> {
protected:
    PopUpTest() { QGuiApplication::clipboard()->clear(); }
    ~PopUpTest() override { QGuiApplication::clipboard()->clear(); }

    QString Named(const QString& name) const { return name + GetParam(); }
    QMenu& Menu() { return Find<QMenu>(Named("mnuCopyPaste")); }
    QWidget& Box() { return Find<QWidget>("pic" + Named("") + "frm"); }
    QWidget& Picture() { return Find<QWidget>("pic" + Named("")); }
    void RightClick(QWidget& widget, const QPoint& place = { 1, 1 })
    {
        QTest::mouseClick(&widget, Qt::RightButton, {}, place);
    }
    bool Opens()
    {
        const bool isOpen = Menu().isVisible();
        Menu().close();
        return isOpen;
    }
};
INSTANTIATE_TEST_SUITE_P(Panels, PopUpTest, ::testing::Values("LG", "SM"),
    [](const auto& panel) { return std::string(panel.param); });

TEST_P(PopUpTest, TheRightButtonOpensItOverThePictureAndOverItsBox)
{
    Click(Alpha);

    RightClick(Picture(), { 0, 0 });
    EXPECT_TRUE(Opens());
    RightClick(Box());
    EXPECT_TRUE(Opens());
}

TEST_P(PopUpTest, ItComesWhenTheButtonIsReleasedAtThatPlace)
{
    QTest::mousePress(&Box(), Qt::RightButton, {}, { 5, 6 });
    EXPECT_FALSE(Menu().isVisible());

    QTest::mouseRelease(&Box(), Qt::RightButton, {}, { 15, 9 });

    EXPECT_TRUE(Menu().isVisible());
    EXPECT_EQ(Menu().pos(), Box().mapToGlobal(QPoint(15, 9)));
}

TEST_P(PopUpTest, AReleaseBesideTheBoxOpensNothing)
{
    QTest::mousePress(&Box(), Qt::RightButton, {}, { 5, 6 });
    QTest::mouseRelease(&Box(), Qt::RightButton, {}, { -3, 6 });

    EXPECT_FALSE(Opens());
}

TEST_P(PopUpTest, OtherButtonsAndOtherPlacesOpenNothing)
{
    QTest::mouseClick(&Box(), Qt::LeftButton);
    EXPECT_FALSE(Opens());
    QTest::mouseClick(&Box(), Qt::MiddleButton);
    EXPECT_FALSE(Opens());
    RightClick(Find<QWidget>("frame" + Named("")));
    EXPECT_FALSE(Opens());
    RightClick(Find<QWidget>(Named("cmdImport")));
    EXPECT_FALSE(Opens());
}

TEST_P(PopUpTest, OnlyThePanelsOwnMenuOpens)
{
    RightClick(Box());

    const QString other = QString(GetParam()) == "LG" ? "SM" : "LG";
    EXPECT_FALSE(Find<QMenu>("mnuCopyPaste" + other).isVisible());
}

TEST_P(PopUpTest, OverAnEmptyPanelItComesWithCopyGreyed)
{
    RightClick(Box());

    EXPECT_TRUE(Menu().isVisible());
    EXPECT_FALSE(CanUse(Named("mnuCopy")));
    EXPECT_FALSE(CanUse(Named("mnuPaste"))) << "no icon is selected";
    EXPECT_FALSE(CanUse(Named("mnuUndo_")));
}

TEST_P(PopUpTest, OverAPictureAllButUndoCanBeUsed)
{
    Click(Alpha);

    RightClick(Box());

    EXPECT_TRUE(CanUse(Named("mnuCopy")));
    EXPECT_TRUE(CanUse(Named("mnuPaste")));
    EXPECT_FALSE(CanUse(Named("mnuUndo_")));
}

TEST_P(PopUpTest, CopyFollowsThePictureFromOneOpeningToTheNext)
{
    Click(Alpha);
    Press(Named("cmdDel"));
    RightClick(Box());
    EXPECT_FALSE(CanUse(Named("mnuCopy")));
    EXPECT_TRUE(CanUse(Named("mnuPaste")));
    EXPECT_TRUE(CanUse(Named("mnuUndo_")));
    Menu().close();

    Press(Named("cmdUndo"));
    RightClick(Box());
    EXPECT_TRUE(CanUse(Named("mnuCopy")));
}

TEST_P(PopUpTest, ThePanelsFieldAloneDecidesOnCopy)
{
    Click(Alpha);
    (QString(GetParam()) == "LG" ? LGloaded : SMloaded) = false;

    RightClick(Box());

    EXPECT_FALSE(CanUse(Named("mnuCopy")));
}

TEST_P(PopUpTest, KeysOpenItWhereThePanelHasTheFocus)
{
    Click(Alpha);
    for (QWidget* focused : { &Box(), &Find<QWidget>(Named("cmdImport")) }) {
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_Menu);
        EXPECT_TRUE(CanUse(Named("mnuCopy")));
        EXPECT_TRUE(Opens());
        QTest::keyClick(focused, Qt::Key_F10, Qt::ShiftModifier);
        EXPECT_TRUE(Opens());
        QContextMenuEvent wish(QContextMenuEvent::Keyboard, { 1, 1 }, { 1, 1 });
        QCoreApplication::sendEvent(focused, &wish);
        EXPECT_TRUE(Opens());
    }
}

TEST_P(PopUpTest, ByAKeyItStandsOverThePicture)
{
    QTest::keyClick(&Box(), Qt::Key_Menu);

    EXPECT_TRUE(Box().rect().contains(Box().mapFromGlobal(Menu().pos())));
}

TEST_P(PopUpTest, AWishOfTheMouseOpensNothingBeforeTheRelease)
{
    QContextMenuEvent wish(QContextMenuEvent::Mouse, { 5, 5 }, Box().mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&Box(), &wish);

    EXPECT_FALSE(Opens());
}

TEST_P(PopUpTest, OtherKeysOpenNothing)
{
    for (const auto& [key, modifiers] : { std::pair(Qt::Key_F10, Qt::KeyboardModifiers()),
             std::pair(Qt::Key_F10, Qt::ShiftModifier | Qt::ControlModifier),
             std::pair(Qt::Key_F9, Qt::KeyboardModifiers(Qt::ShiftModifier)) }) {
        QTest::keyClick(&Box(), key, modifiers);
        EXPECT_FALSE(Opens()) << key;
    }
    QTest::keyClick(&Nodes(), Qt::Key_Menu);
    EXPECT_FALSE(Opens()) << "the tree has the focus";
}

TEST_P(PopUpTest, AKeyThatComesTwiceOpensItOnce)
{
    QTest::keyClick(&Box(), Qt::Key_Menu);
    const QPoint place = Menu().pos();
    int openings = 0;
    QObject::connect(&Menu(), &QMenu::aboutToShow, &Menu(), [&] { ++openings; });

    QContextMenuEvent wish(QContextMenuEvent::Keyboard, { 1, 1 }, { 1, 1 });
    QCoreApplication::sendEvent(&Box(), &wish);

    EXPECT_EQ(openings, 0);
    EXPECT_EQ(Menu().pos(), place);
}

TEST_P(PopUpTest, ItsEntriesCopyPasteAndUndo)
{
    Click(Alpha);
    const auto use = [&](const QString& name) {
        RightClick(Box());
        QTest::mouseClick(
            &Menu(), Qt::LeftButton, {}, Menu().actionGeometry(&Entry(Named(name))).center());
        EXPECT_FALSE(Menu().isVisible());
    };
    const QString size = Text("lbl_" + Named("") + "size");

    use("mnuCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(2, 1));
    QGuiApplication::clipboard()->setImage(QImage(3, 4, QImage::Format_RGB32));
    use("mnuPaste");
    EXPECT_EQ(Text("lbl_" + Named("") + "size"), "3 x 4 pixels");
    use("mnuUndo_");
    Click("Beta (Large Icon)");
    Click(Alpha);
    EXPECT_EQ(Text("lbl_" + Named("") + "size"), size);
}

TEST_P(PopUpTest, WhileADialogStandsNoneOpens)
{
    Click(Alpha);
    bool wasOpen = false;
    ask.Choose({}, [&] {
        RightClick(Box());
        QTest::keyClick(&Box(), Qt::Key_Menu);
        wasOpen = Menu().isVisible();
    });

    Press(Named("cmdImport"));

    EXPECT_FALSE(wasOpen);
}

TEST_P(PopUpTest, ThePictureIsReachedByTabAndShowsTheFocus)
{
    frame->activateWindow();
    QCoreApplication::processEvents();
    Nodes().setFocus();
    const QImage before = Box().grab().toImage();
    QSet<QString> reached;
    for (int i = 0; i < 40; ++i) {
        QTest::keyClick(frame->focusWidget(), Qt::Key_Tab);
        reached << frame->focusWidget()->objectName();
        if (frame->focusWidget() == &Box())
            break;
    }

    EXPECT_TRUE(reached.contains(Box().objectName()));
    EXPECT_NE(Box().grab().toImage(), before);
    Nodes().setFocus();
    EXPECT_EQ(Box().grab().toImage(), before);
}

TEST_P(PopUpTest, AClickGivesThePictureTheFocus)
{
    frame->activateWindow();
    QCoreApplication::processEvents();

    QTest::mouseClick(&Picture(), Qt::LeftButton);

    EXPECT_EQ(frame->focusWidget(), &Box());
}

} // namespace
} // namespace vypx::test
