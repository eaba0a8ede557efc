#include "forms/help/HelpPage.h"
#include "forms/help/frmHelp.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QSet>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

class HelpWindow : public ::testing::Test {
protected:
    HelpWindow()
    {
        help.Open("start.html");
        help.BringUp(nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&help));
    }

    template <typename T>
    T& Part(const QString& name)
    {
        T* const found = help.findChild<T*>(name);
        if (!found)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }
    HelpPage& Page() { return static_cast<HelpPage&>(Part<QTextBrowser>("txtPage")); }
    QTreeWidget& Contents() { return Part<QTreeWidget>("treeContents"); }
    QString Chosen() { return Contents().currentItem() ? Contents().currentItem()->text(0) : ""; }
    bool IsOn(const QString& name) { return Part<QWidget>(name).isEnabled(); }
    void Press(const QString& name)
    {
        QTest::mouseClick(&Part<QAbstractButton>(name), Qt::LeftButton);
    }
    void Key(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&target, key, modifiers);
    }
    void ShowTab(Qt::Key letter) { Key(help, letter, Qt::AltModifier); }
    void Type(const QString& edit, const QString& text)
    {
        auto& line = Part<QLineEdit>(edit);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }
    QStringList Entries(const QString& list)
    {
        QStringList texts;
        for (int row = 0; row < Part<QListWidget>(list).count(); ++row)
            texts << Part<QListWidget>(list).item(row)->text();
        return texts;
    }
    QStringList Marked()
    {
        QStringList texts;
        for (const auto& mark : Page().extraSelections())
            texts << mark.cursor.selectedText().toLower();
        return texts;
    }
    void ClickLink(const QString& target)
    {
        for (QTextBlock block = Page().document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().anchorHref() == target) {
                    QTextCursor place(Page().document());
                    place.setPosition(part.fragment().position() + 1);
                    Page().setTextCursor(place);
                    QTest::mouseClick(
                        Page().viewport(), Qt::LeftButton, {}, Page().cursorRect(place).center());
                    return;
                }
        FAIL() << "no link to " << target.toStdString();
    }

    frmHelp help{ HelpTopics::OfProgram() };
};

TEST_F(HelpWindow, IsAWindowOfItsOwnThatFitsTheScreen)
{
    EXPECT_EQ(help.objectName(), "frmHelp");
    EXPECT_EQ(help.windowTitle(), "VY Pixelworks Help");
    EXPECT_TRUE(help.isWindow());
    EXPECT_FALSE(help.isModal());
    EXPECT_FALSE(help.testAttribute(Qt::WA_QuitOnClose));
    EXPECT_EQ(
        help.size(), QSize(900, 640).boundedTo(help.screen()->availableSize() - QSize(20, 60)));
}

TEST_F(HelpWindow, EveryPageOfTheContentsOpensWithItsTitleAndAllItsPictures)
{
    ShowTab(Qt::Key_C);
    Contents().expandAll();
    Contents().setFocus();
    Contents().setCurrentItem(Contents().topLevelItem(0));
    QSet<QString> pages;
    const QTreeWidgetItem* before = nullptr;
    while (Contents().currentItem() != before) {
        before = Contents().currentItem();
        EXPECT_FALSE(Page().documentTitle().isEmpty()) << Chosen().toStdString();
        EXPECT_GT(Page().toPlainText().size(), 100) << Chosen().toStdString();
        pages.insert(Page().Page());
        Key(Contents(), Qt::Key_Down);
    }
    EXPECT_EQ(pages.size(), HelpTopics::OfProgram().Pages().size());
}

TEST_F(HelpWindow, EveryLinkOfEveryPageLeadsToAPageAndAPlaceThatAreThere)
{
    const QStringList pages = HelpTopics::OfProgram().Pages();
    for (const QString& page : pages) {
        Page().Open(page);
        QStringList targets;
        for (QTextBlock block = Page().document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (const QString href = part.fragment().charFormat().anchorHref(); !href.isEmpty())
                    targets << href;
        for (const QString& target : targets) {
            const QString name = WithoutAnchor(target);
            EXPECT_TRUE(name.isEmpty() || name.contains(':') || pages.contains(name))
                << page.toStdString() << " to " << target.toStdString();
        }
    }
}

TEST_F(HelpWindow, AnAnchorIsScrolledTo)
{
    Page().Open("tool.html");
    ASSERT_EQ(Page().verticalScrollBar()->value(), 0);

    Page().Open("tool.html#import");

    EXPECT_GT(Page().verticalScrollBar()->value(), 0);
    EXPECT_EQ(Page().Page(), "tool.html");
}

TEST_F(HelpWindow, PicturesAreNoWiderThanThePage)
{
    help.resize(600, 500);
    QCoreApplication::processEvents();
    Page().Open("main-window.html");

    int pictures = 0;
    for (QTextBlock block = Page().document()->begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().isImageFormat()) {
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                EXPECT_LT(format.width(), Page().viewport()->width());
                EXPECT_GT(format.height(), 50);
                ++pictures;
            }
    EXPECT_EQ(pictures, 1);
    EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0);
}

TEST_F(HelpWindow, LinksAreFollowedAndTheWayBackAndForwardIsKept)
{
    EXPECT_FALSE(IsOn("cmdBack"));
    EXPECT_FALSE(IsOn("cmdForward"));
    ClickLink("first-steps.html");
    ASSERT_EQ(Page().Page(), "first-steps.html");
    EXPECT_EQ(Chosen().toStdString(), "First steps");

    Press("cmdBack");
    EXPECT_EQ(Page().Page(), "start.html");
    EXPECT_EQ(Chosen().toStdString(), "VY Pixelworks");
    EXPECT_FALSE(IsOn("cmdBack"));

    Press("cmdForward");
    EXPECT_EQ(Page().Page(), "first-steps.html");

    Key(Page(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Page().Page(), "start.html");
    Key(Page(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Page().Page(), "first-steps.html");

    Press("cmdHome");
    EXPECT_EQ(Page().Page(), "start.html");
}

TEST_F(HelpWindow, AClickInTheContentsOpensThePage)
{
    ShowTab(Qt::Key_C);
    auto* const recipes = Contents().topLevelItem(2);
    ASSERT_EQ(recipes->text(0), "Recipes");

    QTest::mouseClick(
        Contents().viewport(), Qt::LeftButton, {}, Contents().visualItemRect(recipes).center());

    EXPECT_EQ(Page().Page(), "recipes.html");
}

TEST_F(HelpWindow, TheIndexIsNarrowedByWhatIsTypedAndEnterOpensItsFirstWord)
{
    ShowTab(Qt::Key_I);
    const auto all = Entries("listIndex").size();
    EXPECT_GE(all, 150);

    Type("txtIndex", "antialias");
    EXPECT_EQ(Entries("listIndex"), QStringList("Antialiasing"));

    Key(Part<QWidget>("txtIndex"), Qt::Key_Return);
    EXPECT_EQ(Page().Page(), "recipe-fringe.html");

    Part<QLineEdit>("txtIndex").selectAll();
    Key(Part<QWidget>("txtIndex"), Qt::Key_Delete);
    EXPECT_EQ(Entries("listIndex").size(), all);
}

TEST_F(HelpWindow, TheArrowLeadsFromTheEditIntoTheIndex)
{
    ShowTab(Qt::Key_I);
    Type("txtIndex", "emulator");
    Key(Part<QWidget>("txtIndex"), Qt::Key_Down);
    ASSERT_TRUE(Part<QWidget>("listIndex").hasFocus());

    Key(Part<QWidget>("listIndex"), Qt::Key_Return);

    EXPECT_EQ(Page().Page(), "recipe-handheld.html");
}

TEST_F(HelpWindow, EveryWordOfTheIndexOpensItsPage)
{
    ShowTab(Qt::Key_I);
    auto& list = Part<QListWidget>("listIndex");
    for (int row = 0; row < list.count(); ++row) {
        list.setCurrentRow(row);
        Key(list, Qt::Key_Return);
        EXPECT_EQ(Page().Page(), WithoutAnchor(HelpTopics::OfProgram().Words()[row].page));
    }
}

TEST_F(HelpWindow, ASearchListsThePagesAndMarksTheWordsOnTheOpenedOne)
{
    Key(help, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(Part<QWidget>("txtSearch").hasFocus());

    QTest::keyClicks(&Part<QLineEdit>("txtSearch"), "fringe");
    EXPECT_EQ(Entries("listSearch").value(0), "My icon has a fringe");
    Key(Part<QWidget>("txtSearch"), Qt::Key_Return);

    EXPECT_EQ(Page().Page(), "recipe-fringe.html");
    ASSERT_FALSE(Marked().isEmpty());
    for (const QString& mark : Marked())
        EXPECT_EQ(mark, "fringe");
    Press("cmdHome");
    EXPECT_TRUE(Marked().isEmpty());
}

TEST_F(HelpWindow, ASearchThatFindsNothingSaysSo)
{
    Key(help, Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(Part<QLabel>("lblNothing").isVisible());

    Type("txtSearch", "xylophone");
    EXPECT_TRUE(Part<QLabel>("lblNothing").isVisible());
    Key(Part<QWidget>("txtSearch"), Qt::Key_Return);
    EXPECT_EQ(Page().Page(), "start.html");

    Type("txtSearch", "icon");
    EXPECT_FALSE(Part<QLabel>("lblNothing").isVisible());
}

TEST_F(HelpWindow, EscapeClosesIt)
{
    Key(Page(), Qt::Key_Escape);

    EXPECT_FALSE(help.isVisible());
}

TEST_F(HelpWindow, PrintAsksForAPrinterFirst)
{
    bool wasAsked = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog && dialog->inherits("QPrintDialog")) {
            wasAsked = true;
            dialog->close();
        }
    });
    poll.start(5);

    Key(help, Qt::Key_P, Qt::ControlModifier);

    EXPECT_TRUE(wasAsked);
    EXPECT_EQ(Page().Page(), "start.html");
}

TEST_F(HelpWindow, EveryControlHasANameAndAPlaceInTheTabOrder)
{
    QSet<QString> letters;
    for (const auto* button : help.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
    }
    for (const QString name : { "treeContents", "listIndex", "listSearch", "txtPage", "tabs" })
        EXPECT_FALSE(Part<QWidget>(name).accessibleName().isEmpty()) << name.toStdString();
    QStringList captions;
    for (const auto* button : help.findChildren<QPushButton*>())
        captions << button->text();
    for (const auto* label : help.findChildren<QLabel*>())
        captions << label->text();
    for (int i = 0; i < Part<QTabWidget>("tabs").count(); ++i)
        captions << Part<QTabWidget>("tabs").tabText(i);
    for (const QString& caption : captions)
        if (const auto at = caption.indexOf('&'); at >= 0) {
            EXPECT_FALSE(letters.contains(caption[at + 1].toLower())) << caption.toStdString();
            letters.insert(caption[at + 1].toLower());
        }
    EXPECT_EQ(letters.size(), 10);
}

} // namespace

} // namespace vypx::test
