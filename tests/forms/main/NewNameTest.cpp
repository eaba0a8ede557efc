#include "DocumentFixture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace vypx::test {

namespace {

class NewName : public Documents { };

TEST_F(NewName, WhatAReaderEndsANameAtIsLeftOutOfAPasteAndTold)
{
    Entry("mnuNew").trigger();
    auto& edit = Find<QLineEdit>("txtNewIconsetDBName");
    QGuiApplication::clipboard()->setText(QString::fromUtf8("Caf\xC3\xA9\tSet"));

    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(edit.text().left(3), "Caf");
    EXPECT_FALSE(edit.text().contains(QChar(0xE9)));
    EXPECT_TRUE(Find<QLabel>("lblDropped").text().contains(QChar(0xE9)));

    Click("cmdDoneName");
    EXPECT_TRUE(DatabaseName.starts_with("Caf"));
    EXPECT_TRUE(DatabaseName.ends_with("Set"));
}

TEST_F(NewName, EveryCharacterThatAReaderKeepsCanBeTyped)
{
    Entry("mnuNew").trigger();
    auto& edit = Find<QLineEdit>("txtNewIconsetDBName");

    edit.insert("~A z 09_{|}");

    EXPECT_EQ(edit.text(), "~A z 09_{|}");
    EXPECT_EQ(Find<QLabel>("lblDropped").text(), "");
}

} // namespace
} // namespace vypx::test
