#include "DocumentFixture.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>

namespace vypx::test {

namespace {

class Titles : public Documents {
protected:
    QString Title() { return frame->windowTitle(); }
    QMdiSubWindow& Child()
    {
        return *qobject_cast<QMdiSubWindow*>(Find<QWidget>("Form1").parentWidget());
    }
};

TEST_F(Titles, TheFrameNamesTheFileAndMarksChanges)
{
    EXPECT_EQ(Title(), "VY Pixelworks");

    OpenAlpha("first-set.prc");
    EXPECT_EQ(Title(), "first-set.prc - VY Pixelworks");

    SelectAlpha();
    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_EQ(Title(), "first-set.prc* - VY Pixelworks");

    QTest::keyClick(&Nodes(), Qt::Key_R);
    ask.SaveTo(QString::fromStdString(program.File("second.prc")));
    Entry("mnuSaveAs").trigger();
    EXPECT_EQ(Title(), "second.prc - VY Pixelworks");

    Entry("mnuCloseIconset").trigger();
    EXPECT_EQ(Title(), "VY Pixelworks");
}

TEST_F(Titles, ANewIconsetGoesByItsDatabaseName)
{
    MakeNew("Garden");

    EXPECT_EQ(Title(), "Garden - VY Pixelworks");
}

TEST_F(Titles, ACancelledFileDialogTakesTheMarkAway)
{
    OpenAlpha("first-set.prc");
    SelectAlpha();
    QTest::keyClick(&Nodes(), Qt::Key_R);
    ask.CancelDialog(); // nothing is asked: no icon that stays has a picture

    Entry("mnuOpen").trigger();

    EXPECT_EQ(Title(), "first-set.prc - VY Pixelworks");
}

TEST_F(Titles, TheFormInsideCanNeitherBeClosedNorMinimised)
{
    const Qt::WindowFlags flags = Child().windowFlags();

    EXPECT_FALSE(flags & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(flags & Qt::WindowMinMaxButtonsHint);
    EXPECT_FALSE(flags & Qt::WindowSystemMenuHint);
    EXPECT_TRUE(flags & Qt::WindowTitleHint);
}

TEST_F(Titles, TheFormFillsTheHeightOfTheFrameAndShrinksTo470Pixels)
{
    const auto& area = Find<QMdiArea>("mdiArea");
    for (const int height : { 900, 620 }) {
        frame->resize(1000, height);
        QCoreApplication::processEvents();
        EXPECT_EQ(Child().geometry().bottom(), area.viewport()->rect().bottom()) << height;
    }
    EXPECT_LE(Child().minimumSizeHint().height(), 470);
    EXPECT_LE(Find<QWidget>("Form1").minimumSizeHint().height(), 470);
}

} // namespace
} // namespace vypx::test
