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

TEST_F(Titles, AnIconsetWithoutAnyNameIsUntitled)
{
    Entry("mnuNew").trigger();
    Click("cmdDoneName");

    EXPECT_EQ(Title(), "Untitled - VY Pixelworks");
}

TEST_F(Titles, BothPanelsStandLevel)
{
    const auto& form = Find<QWidget>("Form1");
    const std::pair<const char*, const char*> twins[] = { { "picLGfrm", "picSMfrm" },
        { "cmdImportLG", "cmdImportSM" }, { "cmdUndoLG", "cmdUndoSM" } };
    for (const auto& [high, low] : twins) {
        const QRect left = Find<QWidget>(high).rect(), right = Find<QWidget>(low).rect();
        EXPECT_EQ(Find<QWidget>(high).mapTo(&form, left.topLeft()).y(),
            Find<QWidget>(low).mapTo(&form, right.topLeft()).y())
            << high;
        EXPECT_EQ(left.height(), right.height()) << high;
    }
}

TEST_F(Titles, TheFormsDoorsLeadToItsParts)
{
    OpenAlpha();
    SelectAlpha();
    Form1& form = frame->Form();

    form.RemoveSelected();
    EXPECT_EQ(IconTable[0].IconState, 0);
    form.RebuildTree();
    EXPECT_TRUE(NodeTexts().empty());
    ask.Answer(QMessageBox::Cancel);
    form.mnuCloseIconset_Click();
    EXPECT_TRUE(FileLoaded);
    ask.Answer(QMessageBox::Ok);
    form.ClearDeletedIcons();
    EXPECT_EQ(IconTable[0].IconLabel, "");
    ask.Answer(QMessageBox::Ok);
    form.mnuSaveAs_Click();
    EXPECT_EQ(Messages().last(), "Can't save. The iconset doesn't contain any icons.");
    ask.Answer(QMessageBox::Cancel);
    form.mnuNew_Click();
    ask.CancelDialog();
    form.mnuOpen_Click();
    EXPECT_FALSE(IconsetChanged);
    form.mnuExit_Click();
    EXPECT_FALSE(frame->isVisible());
}

} // namespace
} // namespace vypx::test
