#include "IconsFixture.h"

#include <QLineEdit>

namespace vypx::test {

namespace {

/// The root's text is edited to this.
class Renaming : public IconsFixture {
protected:
    void Rename(const QString& text)
    {
        Click("Set");
        QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
        auto& edit = Find<QLineEdit>("txtLabelEdit");
        edit.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&edit, Qt::Key_Delete);
        else
            QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status(2) != "Palm Database Name = Set"; }));
    }
};

TEST_F(Renaming, ChangesTheRootTheNameAndTheStatusBar)
{
    Rename("Renamed r");

    EXPECT_EQ(Nodes().Root()->text(0), "Renamed r");
    EXPECT_EQ(DatabaseName, "Renamed r");
    EXPECT_EQ(Status(2), "Palm Database Name = Renamed r");
    EXPECT_EQ(Parent, "Set");
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(Renaming, ASaveTakesANameThatIsStillBeingTyped)
{
    WarnOverwrite = false;
    Click("Set");
    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    Find<QLineEdit>("txtLabelEdit").setText("Typed");

    Entry("mnuSave").trigger();

    EXPECT_EQ(DatabaseName, "Typed");
    EXPECT_EQ(ReadText(FileName).substr(0, 6), std::string("Typed\0", 6));
    EXPECT_EQ(Nodes().Root()->text(0), "Typed");
}

TEST_F(Renaming, AfterAClearTheRootHasItsOldTextAgain)
{
    Rename("Renamed");
    Click("Alpha (Large Icon)");
    QTest::keyClick(&Nodes(), Qt::Key_R);
    ask.Answer(QMessageBox::Ok);

    QTest::mouseClick(&Find<QPushButton>("cmdClrDeleted"), Qt::LeftButton);

    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(DatabaseName, "Renamed");
}

TEST_F(Renaming, OnPurposeAnEmptyNameStandsInTheStatusBarButNotInTheTree)
{
    Rename("");

    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(DatabaseName, "");
    EXPECT_EQ(Status(2), "Palm Database Name = ");
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(Renaming, OnPurposeANameThatIsTooLongIsRefusedByTheTreeOnly)
{
    ask.Answer(QMessageBox::Ok);

    Rename("ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");

    EXPECT_TRUE(QTest::qWaitFor([&] { return !ask.shown.empty(); }));
    EXPECT_EQ(Messages(), QStringList("Maximum name length is 31 characters."));
    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(DatabaseName, "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");
}

TEST_F(Renaming, ATooLongNameThatIsStillBeingTypedIsToldBeforeTheSaveGoesOn)
{
    Click("Set");
    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    Find<QLineEdit>("txtLabelEdit").setText("ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");
    ask.Answer(QMessageBox::Ok);
    ask.Answer(QMessageBox::No);

    Entry("mnuSave").trigger();
    QCoreApplication::processEvents();

    EXPECT_EQ(Messages(),
        (QStringList{ "Maximum name length is 31 characters.",
            "About to overwrite the existing file.\nAre you sure?" }));
}

TEST_F(Renaming, AcceptsA31CharacterName)
{
    Rename("ABCDEFGHIJKLMNOPQRSTUVWXYZ01234");

    EXPECT_EQ(Nodes().Root()->text(0), "ABCDEFGHIJKLMNOPQRSTUVWXYZ01234");
}

TEST_F(Renaming, WhatAReaderEndsANameAtIsLeftOutAndTold)
{
    Click("Set");
    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    auto& edit = Find<QLineEdit>("txtLabelEdit");
    edit.clear();

    edit.insert(QString::fromUtf8("Caf\xC3\xA9 au \xE2\x82\xAC lait")); // as a paste brings it
    EXPECT_EQ(edit.text(), "Caf au  lait");
    EXPECT_EQ(Find<QLabel>("lblNote").text(),
        QString::fromUtf8("The name on the handheld can't hold: \xC3\xA9, \xE2\x82\xAC"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(DatabaseName, "Caf au  lait");

    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    EXPECT_FALSE(Find<QLabel>("lblNote").isVisible()) << "the next rename begins without it";
}

TEST_F(Renaming, EscapeLeavesEverythingAsItWas)
{
    Click("Set");
    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    auto& edit = Find<QLineEdit>("txtLabelEdit");
    QTest::keyClicks(&edit, "zzz");
    QTest::keyClick(&edit, Qt::Key_Escape);
    QCoreApplication::processEvents();

    EXPECT_EQ(DatabaseName, "Set");
    EXPECT_EQ(Nodes().Root()->text(0), "Set");
}

} // namespace
} // namespace vypx::test
