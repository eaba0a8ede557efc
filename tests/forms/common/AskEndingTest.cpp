#include "forms/common/Ask.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// The dialog that saves where every name is to have the ending.
class OwnEnding : public ::testing::Test {
protected:
    /// Types the name into the dialog, then runs `act`, and presses Enter; any question of its own
    /// is answered with `answer`.
    std::optional<QString> Save(const QString& typed, std::function<void(QFileDialog&)> act = {},
        QMessageBox::StandardButton answer = QMessageBox::No)
    {
        m_asked = false;
        // One for each: a timer does not run within itself, and the question comes within the key.
        QTimer forBox, forDialog;
        QObject::connect(&forBox, &QTimer::timeout, &forBox, [&] {
            if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                m_asked = true;
                QTest::mouseClick(box->button(answer), Qt::LeftButton);
            }
        });
        QObject::connect(&forDialog, &QTimer::timeout, &forDialog, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            forDialog.stop();
            auto* const name = dialog->findChild<QLineEdit*>("fileNameEdit");
            name->setText(typed);
            if (act)
                act(*dialog);
            QTest::keyClick(name, Qt::Key_Return);
            dialog->close(); // where it still stands
        });
        forBox.start(5);
        forDialog.start(5);
        return m_ask.SaveFile(nullptr,
            { .title = "Export",
                .folder = QString::fromStdString(folder.Path()),
                .filters = { "VYPX Template (*.vpt)" },
                .defaultEnding = "vpt",
                .addsEnding = true });
    }
    bool Asked() const { return m_asked; }

    TempFolder folder;

private:
    ScreenAsk m_ask;
    bool m_asked = false;
};

TEST_F(OwnEnding, IsAddedUnlessTheNameEndsInItInAnyCase)
{
    const std::pair<const char*, const char*> names[] = { { "my set", "my set.vpt" },
        { "my.set", "my.set.vpt" }, { "my.prc", "my.prc.vpt" }, { "set.vpt", "set.vpt" },
        { "SET.VPT", "SET.VPT" }, { "a.vpt.b", "a.vpt.b.vpt" }, { "myvpt", "myvpt.vpt" } };
    for (const auto& [typed, given] : names) {
        const std::optional<QString> chosen = Save(typed);

        ASSERT_TRUE(chosen) << typed;
        EXPECT_EQ(chosen->toStdString(), folder.File(given)) << typed;
        EXPECT_FALSE(Asked()) << typed;
    }
}

TEST_F(OwnEnding, IsAddedToANameInQuotesToo)
{
    WriteText(folder.File("old.prc"), "an iconset");
    const std::pair<const char*, const char*> names[] = { { "\"foo.prc\"", "foo.prc.vpt" },
        { "\"old.prc\"", "old.prc.vpt" }, { "\"set.vpt\"", "set.vpt" } };
    for (const auto& [typed, given] : names) {
        const std::optional<QString> chosen = Save(typed);

        ASSERT_TRUE(chosen) << typed;
        EXPECT_EQ(chosen->toStdString(), folder.File(given)) << typed;
        EXPECT_FALSE(Asked()) << typed;
    }
}

TEST_F(OwnEnding, TheDialogShowsTheNameWithIt)
{
    QStringList notes;
    for (const char* typed : { "my.set", "SET.VPT" })
        Save(typed, [&](QFileDialog& dialog) {
            notes << dialog.findChild<QLabel*>("lblNameToBeWritten")->text();
        });

    EXPECT_EQ(
        notes, QStringList({ "Will be written as my.set.vpt", "Will be written as SET.VPT" }));
}

TEST_F(OwnEnding, TheDialogAsksAboutTheFileThatWillBeWritten)
{
    WriteText(folder.File("my.set"), "another");
    EXPECT_EQ(Save("my.set"), QString::fromStdString(folder.File("my.set.vpt")));
    EXPECT_FALSE(Asked()) << "my.set is not written over";

    WriteText(folder.File("my.set.vpt"), "there");
    EXPECT_FALSE(Save("my.set", {}, QMessageBox::No));
    EXPECT_TRUE(Asked());
    EXPECT_EQ(
        Save("my.set", {}, QMessageBox::Yes), QString::fromStdString(folder.File("my.set.vpt")));
    EXPECT_TRUE(Asked());
}

} // namespace
} // namespace vypx::test
