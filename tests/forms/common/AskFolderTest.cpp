#include "forms/common/Ask.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// The real dialog for a folder.
class AskForAFolder : public ::testing::Test {
protected:
    AskForAFolder() { std::filesystem::create_directory(folder.File("games")); }

    QString Start() const { return QString::fromStdString(folder.Path()); }
    /// What is chosen when `act` answers the dialog.
    QString Choose(const QString& start, const std::function<void(QFileDialog&)>& act)
    {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            poll.stop();
            act(*dialog);
            dialog->close();
        });
        poll.start(5);
        return ScreenAsk().ChooseFolder(nullptr, { .title = "Select a Folder", .folder = start });
    }

    TempFolder folder;
};

TEST_F(AskForAFolder, BeginsInTheFolderUnderItsTitle)
{
    QString title, start;

    Choose(Start(), [&](QFileDialog& dialog) {
        title = dialog.windowTitle();
        start = dialog.directory().absolutePath();
    });

    EXPECT_EQ(title, "Select a Folder");
    EXPECT_EQ(start, Start());
}

TEST_F(AskForAFolder, GivesTheOneThatWasChosen)
{
    const QString chosen = Choose(Start(), [&](QFileDialog& dialog) {
        QTest::keyClicks(dialog.findChild<QWidget*>("fileNameEdit"), "games");
        QTest::keyClick(dialog.findChild<QWidget*>("fileNameEdit"), Qt::Key_Return);
    });

    EXPECT_EQ(chosen, Start() + "/games");
}

TEST_F(AskForAFolder, GivesNothingForEscape)
{
    EXPECT_EQ(
        Choose(Start(), [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), "");
}

TEST_F(AskForAFolder, BeginsElsewhereWhereTheFolderHasGone)
{
    QString start;

    Choose(
        Start() + "/gone", [&](QFileDialog& dialog) { start = dialog.directory().absolutePath(); });

    EXPECT_EQ(start, QDir::currentPath());
}

} // namespace
} // namespace vypx::test
