#include "forms/main/Commands.h"

#include "forms/main/Menus.h"

#include <QMenuBar>
#include <QPushButton>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <stdexcept>

namespace vypx::test {

namespace {

/// The menus, and a bare control for every other command.
class CommandsTest : public ::testing::Test {
protected:
    CommandsTest()
    {
        MakeMenus(bar);
        MakePopUp("LG", form);
        MakePopUp("SM", form);
        for (const CommandRow& row : CommandRows())
            if (!frame.findChild<QAction*>(row.name) && !form.findChild<QAction*>(row.name))
                (new QPushButton(&form))->setObjectName(row.name);
    }

    QWidget frame, form;
    QMenuBar& bar = *new QMenuBar(&frame);
};

TEST_F(CommandsTest, TheTableHasEveryCommandAtItsPlaceAndNoNameTwice)
{
    std::set<std::string> names;
    std::size_t place = 0;
    for (const CommandRow& row : CommandRows()) {
        EXPECT_EQ(static_cast<std::size_t>(row.command), place++) << row.name;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
    EXPECT_EQ(place, static_cast<std::size_t>(Command::MenuPasteSM) + 1);
}

TEST_F(CommandsTest, WhatNeedsNothingIsEnabledFromTheBeginning)
{
    Commands commands(frame, form);

    EXPECT_TRUE(commands.IsEnabled(Command::New));
    EXPECT_FALSE(commands.IsEnabled(Command::Save));
    EXPECT_FALSE(commands.IsEnabled(Command::RemoveIcon));
    EXPECT_EQ(commands.Button(Command::RemoveIcon)->text(), "&Remove Selected");
}

TEST_F(CommandsTest, ADocumentEnablesWhatNeedsOneAndNothingElse)
{
    Commands commands(frame, form);

    commands.Enable(When::Document, true);
    EXPECT_TRUE(commands.IsEnabled(Command::Save));
    EXPECT_TRUE(commands.IsEnabled(Command::CloseIconset));
    EXPECT_FALSE(commands.IsEnabled(Command::RemoveIcon));

    commands.Enable(When::Document, false);
    EXPECT_FALSE(commands.IsEnabled(Command::Save));
    EXPECT_TRUE(commands.IsEnabled(Command::Open));
}

TEST_F(CommandsTest, AHeldCommandIsLetGoAsItWasAskedLast)
{
    Commands commands(frame, form);
    commands.Hold({ Command::Open, Command::CloseIconset, Command::RemoveIcon }, true);
    for (const Command held : { Command::Open, Command::CloseIconset, Command::RemoveIcon })
        EXPECT_FALSE(commands.IsEnabled(held));
    commands.Enable({ Command::CloseIconset, Command::RemoveIcon }, true);
    EXPECT_FALSE(commands.IsEnabled(Command::CloseIconset)) << "whatever a step says";
    commands.Enable(Command::RemoveIcon, false);

    commands.Hold({ Command::Open, Command::CloseIconset, Command::RemoveIcon }, false);

    EXPECT_TRUE(commands.IsEnabled(Command::Open));
    EXPECT_TRUE(commands.IsEnabled(Command::CloseIconset));
    EXPECT_FALSE(commands.IsEnabled(Command::RemoveIcon));
}

TEST_F(CommandsTest, ButtonsAndEntriesCallTheirHandler)
{
    Commands commands(frame, form);
    int calls = 0;
    for (const Command command : { Command::New, Command::RemoveIcon }) {
        commands.Enable(command, true);
        commands.Connect(command, &form, [&] { ++calls; });
    }

    commands.Entry(Command::New)->trigger();
    commands.Button(Command::RemoveIcon)->click();

    EXPECT_EQ(calls, 2);
}

TEST_F(CommandsTest, AControlThatIsMissingIsNoSilentLoss)
{
    delete form.findChild<QPushButton*>("cmdClrDeleted");

    EXPECT_THROW(Commands(frame, form), std::logic_error);
}

} // namespace
} // namespace vypx::test
