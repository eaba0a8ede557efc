#include "AddIconFixture.h"

#include <functional>

namespace vypx::test {

namespace {

/// Documents come and go under the open window.
class AddIconDocuments : public AddIconFixture {
protected:
    QString AlphaFile()
    {
        return Written(Iconset{ .name = "Other",
                           .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 0) },
                               BothPictures(3500, true) } }
                           .File(),
            "other.prc");
    }
    void OpenOther()
    {
        IconsetChanged = false;
        Open(AlphaFile());
        ASSERT_TRUE(FileLoaded);
        ASSERT_EQ(DatabaseName, "Other");
    }
    void MakeNew()
    {
        IconsetChanged = false;
        Entry("mnuNew").trigger();
        Find<QLineEdit>("txtNewIconsetDBName").setText("Mine");
        Press("cmdDoneName");
    }
    void CloseDocument()
    {
        IconsetChanged = false;
        Entry("mnuCloseIconset").trigger();
    }
};

TEST_F(AddIconDocuments, AnotherDocumentEmptiesTheListAndFillsTheOtherAnew)
{
    const struct {
        std::function<void()> change;
        QStringList offered;
    } cases[] = {
        { [&] { OpenOther(); }, { "Beta", "Gamma", "Delta" } },
        { [&] { MakeNew(); }, { "Alpha", "Beta", "Gamma", "Delta" } },
        { [&] { CloseDocument(); }, { "Alpha", "Beta", "Gamma", "Delta" } },
    };
    OpenAdd();
    for (const auto& one : cases) {
        DoubleClick("Delta");
        ASSERT_EQ(Waiting().size(), 1);

        one.change();

        ASSERT_TRUE(IsOpen());
        EXPECT_EQ(Waiting(), QStringList());
        EXPECT_FALSE(CanApply());
        EXPECT_EQ(Offered(), one.offered);
    }
}

TEST_F(AddIconDocuments, AnotherDocumentClosesTheWindowForAnIcon)
{
    const std::function<void()> changes[] = { [&] { OpenOther(); }, [&] { MakeNew(); },
        [&] { CloseDocument(); } };
    for (const auto& change : changes) {
        if (!HasRow("Alpha (Large Icon)")) {
            OpenAdd();
            DoubleClick("Alpha");
            Apply();
        }
        OpenAssign("Alpha (Large Icon)");
        ASSERT_TRUE(IsOpen());

        change();

        EXPECT_FALSE(IsOpen());
        EXPECT_FALSE(AddIconAssignMode);
    }
}

TEST_F(AddIconDocuments, AnOpenThatIsCancelledKeepsWhatWaits)
{
    OpenAdd();
    DoubleClick("Gamma");
    IconsetChanged = false;
    ask.CancelDialog();

    Entry("mnuOpen").trigger();

    EXPECT_EQ(Waiting(), QStringList("Gamma (Large Icon)"));
    EXPECT_TRUE(CanApply());
}

TEST_F(AddIconDocuments, AFileThatIsBrokenLeavesNothingWaiting)
{
    OpenAdd();
    DoubleClick("Gamma");
    IconsetChanged = false;
    ask.AnswerFurther(QMessageBox::Ok);

    Open(Written(Bytes(200, 0x41), "broken.prc"));

    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Waiting(), QStringList());
    ASSERT_FALSE(FileLoaded);
    EXPECT_EQ(Offered(), QStringList({ "Alpha", "Beta", "Gamma", "Delta" }));
}

} // namespace
} // namespace vypx::test
