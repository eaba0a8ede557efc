#include "OutsideFixture.h"

#include "document/IconStats.h"

#include <QCheckBox>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using testing::ElementsAre;

using OutsideTemplates = FromOutside<Documents>;

TEST_F(OutsideTemplates, ATemplateComesWithEverySlotEmpty)
{
    Take(Set("t.vpt"));

    EXPECT_TRUE(WaitUntilOpen("t.vpt"));
    EXPECT_EQ(StatTotal, 1);
    EXPECT_EQ(StatHighRes + StatLowRes, 0);
    EXPECT_TRUE(LoadedAsTemplate);
    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(OutsideTemplates, ATemplateAsksForTheDepthFirst)
{
    PromptColorDepth = true;
    Take(Set("t.vpt"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasWindow("frmSelectCDepth"); }));
    EXPECT_FALSE(FileLoaded);
    EXPECT_FALSE(Taker().IsFree()); // that window is about this file

    Click("cmdDoneCDepth");

    EXPECT_TRUE(WaitUntilOpen("t.vpt"));
    EXPECT_TRUE(LoadedAsTemplate);
    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(OutsideTemplates, ATemplateWhoseDepthIsGivenUpIsForgotten)
{
    PromptColorDepth = true;
    Take(Set("t.vpt"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasWindow("frmSelectCDepth"); }));

    Find<QDialog>("frmSelectCDepth").close();

    EXPECT_TRUE(Taker().IsFree());
    ask.CancelDialog();
    PromptColorDepth = false;
    Entry("mnuLoadTemplate").trigger(); // which asks as ever
    EXPECT_EQ(ask.opened.size(), 1u);
}

TEST_F(OutsideTemplates, OpenInsteadOfTheTemplateAsksForAFile)
{
    PromptColorDepth = true;
    Take(Set("t.vpt"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return HasWindow("frmSelectCDepth"); }));

    Entry("mnuOpen").trigger();
    ask.Choose(Set("mine.prc"));
    Click("cmdDoneCDepth");

    EXPECT_TRUE(IsOpen("mine.prc"));
    EXPECT_FALSE(LoadedAsTemplate);
}

/// A template was taken, and the depth window stands for it.
class OutsideTemplateAmidItsDepth : public OutsideTemplates {
protected:
    OutsideTemplateAmidItsDepth()
    {
        Watch();
        PromptColorDepth = true;
    }
    void TakeTemplate()
    {
        EXPECT_TRUE(Take(Set("t.vpt")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return AsksForDepth(); }));
    }
    bool AsksForDepth()
    {
        const auto* const window = frame->findChild<QDialog*>("frmSelectCDepth");
        return window && window->isVisible();
    }
    void ExpectGivenBack()
    {
        EXPECT_THAT(givenBack, ElementsAre(QString::fromStdString(program.File("t.vpt"))));
    }
};

TEST_F(OutsideTemplateAmidItsDepth, ANewIconsetThatIsNamedMeanwhileGivesItBack)
{
    PromptColorDepth = false;
    Entry("mnuNew").trigger();
    PromptColorDepth = true;
    TakeTemplate();

    Find<QLineEdit>("txtNewIconsetDBName").setText("Mine");
    Click("cmdDoneName");

    ExpectGivenBack();
    EXPECT_FALSE(AsksForDepth());
    RunEvents();
    EXPECT_EQ(DatabaseName, "Mine");
    EXPECT_TRUE(ask.opened.empty());
}

TEST_F(OutsideTemplateAmidItsDepth, OneWithoutANameToo)
{
    PromptColorDepth = false;
    Entry("mnuNew").trigger();
    PromptColorDepth = true;
    TakeTemplate();

    Click("cmdDoneName");

    ExpectGivenBack();
    EXPECT_FALSE(AsksForDepth());
}

TEST_F(OutsideTemplateAmidItsDepth, ADroppedIconsetGivesItBack)
{
    TakeTemplate();

    DroppedFile = true;
    DroppedFileName = Set("dropped.prc").toStdString();
    frame->Form().ChkDragFile();

    EXPECT_TRUE(IsOpen("dropped.prc"));
    ExpectGivenBack();
    EXPECT_FALSE(AsksForDepth());
}

TEST_F(OutsideTemplateAmidItsDepth, ExitGivesItBack)
{
    TakeTemplate();

    Entry("mnuExit").trigger();

    ExpectGivenBack();
    EXPECT_FALSE(AsksForDepth());
}

TEST_F(OutsideTemplateAmidItsDepth, NewGivesItBackAndGoesItsOwnWay)
{
    bool wasFree = true;
    QObject::connect(
        &Taker(), &FileTaker::GivenBack, [&](const OutsideFile&) { wasFree = Taker().IsFree(); });
    TakeTemplate();

    Entry("mnuNew").trigger();
    Click("cmdDoneCDepth");
    Find<QLineEdit>("txtNewIconsetDBName").setText("Mine");
    Click("cmdDoneName");

    ExpectGivenBack();
    EXPECT_FALSE(wasFree);
    EXPECT_EQ(DatabaseName, "Mine");
}

TEST_F(OutsideTemplateAmidItsDepth, OpenGivesItBack)
{
    TakeTemplate();

    Entry("mnuOpen").trigger();

    ExpectGivenBack();
    EXPECT_TRUE(AsksForDepth()); // for the file that is to be chosen
}

TEST_F(OutsideTemplateAmidItsDepth, ClosingThatWindowGivesNothingBack)
{
    TakeTemplate();

    Find<QDialog>("frmSelectCDepth").close();
    RunEvents();

    EXPECT_TRUE(givenBack.empty());
    EXPECT_TRUE(Taker().IsFree());
}

TEST_F(OutsideTemplateAmidItsDepth, OnceItIsOpenItIsNotGivenBack)
{
    TakeTemplate();

    Click("cmdDoneCDepth");
    EXPECT_TRUE(IsOpen("t.vpt"));
    Entry("mnuExit").trigger();

    EXPECT_TRUE(givenBack.empty());
}

} // namespace
} // namespace vypx::test
