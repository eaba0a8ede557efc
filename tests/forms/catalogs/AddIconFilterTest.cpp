#include "AddIconFixture.h"

namespace vypx::test {

namespace {

class AddIconFilter : public AddIconFixture {
protected:
    QString Shown() { return Part<QLabel>("lblShown").text(); }
};

TEST_F(AddIconFilter, NarrowsTheListAsItIsTyped)
{
    OpenAdd();
    EXPECT_EQ(Shown(), "2 of 2 shown");

    Filter("mM");
    EXPECT_EQ(Offered(), QStringList("Gamma"));
    EXPECT_EQ(Shown(), "1 of 2 shown");
    Filter("x");
    EXPECT_EQ(Offered(), QStringList());
    EXPECT_EQ(Shown(), "0 of 2 shown");
    Filter("");
    EXPECT_EQ(Offered(), QStringList({ "Gamma", "Delta" }));
}

TEST_F(AddIconFilter, WhatItHidesIsNoLongerSelected)
{
    OpenAdd();
    Pick("Gamma");
    Pick("Delta", Qt::ControlModifier);

    Filter("delta");
    EXPECT_EQ(SelectedOf(List()), QStringList("Delta"));
    Push("cmdAddtoList");
    Filter("");

    EXPECT_EQ(Waiting(), QStringList("Delta (Large Icon)"));
    EXPECT_EQ(SelectedOf(List()), QStringList());
}

TEST_F(AddIconFilter, WhatItHidesIsNotAssigned)
{
    OpenAssign(Orphan);
    Pick("Gamma");
    Filter("delta");
    ask.Answer(QMessageBox::Ok);

    Apply();

    EXPECT_EQ(ask.shown.back().text, "Error adding icon.");
    EXPECT_TRUE(HasRow(Orphan));
}

TEST_F(AddIconFilter, StaysWhileTheListIsFilledAnew)
{
    OpenAdd();
    Filter("a");
    Choose("optPalm");
    EXPECT_EQ(Offered(), QStringList({ "Palm Clock", "Palm Mail" }));
    Filter("mail");
    Choose("optSmallIcon");
    EXPECT_EQ(Offered(), QStringList("Palm Mail"));

    DoubleClick("Palm Mail");
    EXPECT_EQ(Offered(), QStringList());
    DoubleClick(Added(), "Palm Mail (Small Icon)");
    EXPECT_EQ(Offered(), QStringList("Palm Mail"));
}

TEST_F(AddIconFilter, EnterAddsTheOnlyEntryThatIsShown)
{
    OpenAdd();
    Filter("a");
    Key("txtFilter", Qt::Key_Return);
    EXPECT_EQ(Waiting(), QStringList()) << "there are two";

    Filter("gam");
    Key("txtFilter", Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(Waiting(), QStringList("Gamma (Large Icon)"));
    Key("txtFilter", Qt::Key_Return);
    EXPECT_EQ(Waiting().size(), 1) << "there is none";

    QTest::keyClicks(&Part("txtFilter"), "del");
    EXPECT_EQ(Offered(), QStringList("Delta")) << "the next name takes the place of the last";
}

TEST_F(AddIconFilter, EnterNeverAssigns)
{
    for (const char* icon : { Orphan, "Beta (Large Icon)" }) {
        OpenAssign(icon);
        Filter("gam");
        Pick("Gamma");
        for (const char* part : { "txtFilter", "ComboAppListIcon" })
            for (const int key : { Qt::Key_Return, Qt::Key_Enter })
                Key(part, key);
        EXPECT_TRUE(IsOpen());
        EXPECT_TRUE(HasRow(icon));
    }
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(AddIconFilter, AHeldEnterAddsOneEntry)
{
    OpenAdd();
    List().setFocus();
    Pick("Gamma");

    Key("ComboAppListIcon", Qt::Key_Return);
    for (int i = 0; i < 3; ++i)
        Repeat("ComboAppListIcon", Qt::Key_Return);
    EXPECT_EQ(Waiting(), QStringList("Gamma (Large Icon)"));

    Key("ComboAppListIcon", Qt::Key_Return);
    EXPECT_EQ(Waiting(), QStringList({ "Gamma (Large Icon)", "Delta (Large Icon)" }))
        << "the keys go on where the entry was";
}

TEST_F(AddIconFilter, EnterPressesNoButton)
{
    OpenAdd();
    DoubleClick("Gamma");

    for (const char* part : { "ListAddedIcons", "cmdApplyNewIcon", "cmdCancelNewIcon",
             "cmdAddtoList", "cmdRmvIcon", "optPalm", "chkBothSizes" })
        Key(part, Qt::Key_Return);

    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Waiting(), QStringList("Gamma (Large Icon)"));
    EXPECT_FALSE(HasRow("Gamma (Large Icon)"));
}

TEST_F(AddIconFilter, CtrlEnterAppliesFromAnywhereOnce)
{
    for (const char* part : { "txtFilter", "ComboAppListIcon", "ListAddedIcons", "optApp" }) {
        OpenAdd();
        Key(part, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(IsOpen()) << "the button is disabled";
        Choose("optSmallIcon");
        const QString name = Offered().first();
        DoubleClick(name);

        Repeat(part, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_TRUE(IsOpen()) << part;
        Key(part, Qt::Key_Return, Qt::ControlModifier);
        EXPECT_FALSE(IsOpen()) << part;
        EXPECT_TRUE(HasRow((name + " (Small Icon)").toStdString())) << part;
        AppTable.push_back({ std::string("App ") + part, "appl", "none", "" });
    }
}

TEST_F(AddIconFilter, CtrlEnterAssigns)
{
    OpenAssign(Orphan);
    Pick("Gamma");

    Key("txtFilter", Qt::Key_Return, Qt::ControlModifier);

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(HasRow("Gamma (Large Icon)"));
}

TEST_F(AddIconFilter, EscapeCancelsOnce)
{
    OpenAdd();
    Filter("gam");

    Repeat("txtFilter", Qt::Key_Escape);
    EXPECT_TRUE(IsOpen()) << "held since the window before";
    Key("txtFilter", Qt::Key_Escape);

    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(IconTable.size(), 4u);
}

TEST_F(AddIconFilter, TheArrowKeyLeadsIntoTheList)
{
    OpenAdd();
    Filter("a");

    Key("txtFilter", Qt::Key_Down);
    Key("ComboAppListIcon", Qt::Key_Down);
    Key("ComboAppListIcon", Qt::Key_Return);

    EXPECT_EQ(Waiting(), QStringList("Delta (Large Icon)"));
}

TEST_F(AddIconFilter, LettersOfItMarkNoIcon)
{
    Click("Alpha (Large Icon)");
    OpenAdd();

    Filter("r");

    EXPECT_EQ(IconTable[0].IconState, 1);
}

TEST_F(AddIconFilter, AThousandEntriesCanBeAddedAtOnce)
{
    AppTable.assign(1, {});
    for (int i = 0; i < 1000; ++i)
        AppTable.push_back({ "App " + std::to_string(i), "appl", "none", "" });
    OpenAdd();
    ASSERT_EQ(Offered().size(), 1000);
    EXPECT_EQ(Offered()[10], "App 10") << "in the catalog's order";

    Filter("9");
    EXPECT_EQ(Shown(), "271 of 1000 shown");
    Key("ComboAppListIcon", Qt::Key_A, Qt::ControlModifier);
    Key("ComboAppListIcon", Qt::Key_Return);
    EXPECT_EQ(Waiting().size(), 271);
    Filter("");
    EXPECT_EQ(Offered().size(), 729);
    Apply();

    EXPECT_EQ(IconTable.size(), 4u + 271u);
    EXPECT_EQ(NodeTexts().size(), 4 + 271);
    EXPECT_EQ(SelectedNow(), "App 999 (Large Icon)");
}

} // namespace
} // namespace vypx::test
