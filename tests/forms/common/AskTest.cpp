#include "forms/common/Ask.h"
#include "forms/common/DisabledWindow.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// Boxes and dialogs as they come up on the screen.
class OnScreen : public ::testing::Test {
protected:
    /// Runs once, when the next box or dialog of that class is up; closes it if `act` did not.
    template <typename Window>
    void WhenUp(std::function<void(Window&)> act)
    {
        auto* const poll = new QTimer(&m_timers);
        QObject::connect(poll, &QTimer::timeout, poll, [poll, act = std::move(act)] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            if (!window)
                return;
            poll->stop();
            act(*window);
            window->close();
        });
        poll->start(5);
    }

    ScreenAsk ask;

private:
    QObject m_timers;
};

TEST_F(OnScreen, ABoxShowsItsWordsTitleIconAndButtons)
{
    QString text, title;
    QMessageBox::Icon icon = {};
    QMessageBox::StandardButtons buttons;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        icon = box.icon();
        buttons = box.standardButtons();
    });

    ask.Show(nullptr,
        { .text = "About to go.\n\nAre you sure?",
            .title = "Go?",
            .icon = QMessageBox::Information,
            .buttons = QMessageBox::Ok | QMessageBox::Cancel });

    EXPECT_EQ(text, "About to go.\n\nAre you sure?");
    EXPECT_EQ(title, "Go?");
    EXPECT_EQ(icon, QMessageBox::Information);
    EXPECT_EQ(buttons, QMessageBox::Ok | QMessageBox::Cancel);
}

TEST_F(OnScreen, ABoxHasTheProgramsTitleAndAnOkButtonUnlessItSaysOtherwise)
{
    QString title;
    QMessageBox::StandardButtons buttons;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        title = box.windowTitle();
        buttons = box.standardButtons();
    });

    ask.Show(nullptr, { .text = "Incorrect file type." });

    EXPECT_EQ(title, "VY Pixelworks");
    EXPECT_EQ(buttons, QMessageBox::Ok);
}

TEST_F(OnScreen, WordsWithTagsStandAsTheyAre)
{
    Qt::TextFormat format = Qt::RichText;
    QString shown;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        const auto* const words = box.findChild<QLabel*>("qt_msgbox_label");
        ASSERT_NE(words, nullptr);
        format = words->textFormat();
        shown = words->text();
    });

    ask.Show(nullptr, { .text = "<b>Fern</b> &amp; co" });

    EXPECT_EQ(format, Qt::PlainText);
    EXPECT_EQ(shown, "<b>Fern</b> &amp; co");
}

TEST_F(OnScreen, ABoxAnswersWithTheButtonThatWasPressed)
{
    for (const auto button : { QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel }) {
        WhenUp<QMessageBox>(
            [&](QMessageBox& box) { QTest::mouseClick(box.button(button), Qt::LeftButton); });

        EXPECT_EQ(ask.Show(nullptr,
                      { .text = "Save?",
                          .buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel }),
            button);
    }
}

TEST_F(OnScreen, ABoxCanBeAnsweredThoughItsWindowIsDisabled)
{
    QWidget window;
    window.show();
    const DisabledWindow disabled(window);
    bool isEnabled = false;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        isEnabled = box.button(QMessageBox::Yes)->isEnabled();
        box.done(QMessageBox::Yes);
    });

    ask.Show(&window, { .text = "Really?", .buttons = QMessageBox::Yes | QMessageBox::No });

    EXPECT_TRUE(isEnabled) << "or nobody could answer it";
}

TEST_F(OnScreen, AHeldEnterAnswersNoBox)
{
    bool staysOpen = false;
    WhenUp<QMessageBox>([&](QMessageBox& box) {
        QAbstractButton& button = *box.button(QMessageBox::Cancel);
        button.setFocus();
        for (const int key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape }) {
            QKeyEvent onButton(QEvent::KeyPress, key, {}, {}, true);
            QApplication::sendEvent(&button, &onButton);
            QKeyEvent onBox(QEvent::KeyPress, key, {}, {}, true);
            QApplication::sendEvent(&box, &onBox);
        }
        staysOpen = box.isVisible();
        QTest::keyClick(&button, Qt::Key_Return);
    });

    const auto answer =
        ask.Show(nullptr, { .text = "Sure?", .buttons = QMessageBox::Ok | QMessageBox::Cancel });

    EXPECT_TRUE(staysOpen);
    EXPECT_EQ(answer, QMessageBox::Cancel);
}

TEST_F(OnScreen, EscapeIsCancel)
{
    WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });

    EXPECT_EQ(
        ask.Show(nullptr, { .text = "Sure?", .buttons = QMessageBox::Ok | QMessageBox::Cancel }),
        QMessageBox::Cancel);
}

TEST_F(OnScreen, AFileDialogOpensInItsFolderWithItsFilters)
{
    const TempFolder folder;
    QString start, title;
    QStringList filters;
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
        start = dialog.directory().absolutePath();
        title = dialog.windowTitle();
        filters = dialog.nameFilters();
    });

    ask.OpenFile(nullptr,
        { .title = "Open Iconset",
            .folder = QString::fromStdString(folder.Path()),
            .filters = { "Vantry Iconset (*.prc *.pdb)" } });

    EXPECT_EQ(start.toStdString(), folder.Path());
    EXPECT_EQ(title, "Open Iconset");
    EXPECT_EQ(filters, QStringList("Vantry Iconset (*.prc *.pdb)"));
}

TEST_F(OnScreen, ACancelledFileDialogGivesNoPath)
{
    WhenUp<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });

    EXPECT_TRUE(ask.OpenFile(nullptr, { .title = {}, .folder = {}, .filters = {} }).isEmpty());
}

/// The dialog that saves, with a name typed in and Enter pressed.
std::optional<QString> SaveUnder(ScreenAsk& ask, const QString& folder)
{
    return ask.SaveFile(nullptr,
        { .title = "Save Iconset",
            .folder = folder,
            .filters = { "Vantry Iconset (*.prc *.pdb)" },
            .defaultEnding = "vpt" });
}

void TypeName(QFileDialog& dialog, const QString& text)
{
    auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(name, nullptr);
    name->setText(text);
    QTest::keyClick(name, Qt::Key_Return);
}

TEST_F(OnScreen, ADialogThatSavesGivesTheTypedNameAnEndingIfItHasNone)
{
    const TempFolder folder;
    const QString start = QString::fromStdString(folder.Path());
    const std::pair<const char*, const char*> names[] = { { "my set", "my set.vpt" },
        { "my.prc", "my.prc" } };
    for (const auto& [typed, given] : names) {
        QString title;
        QStringList filters;
        WhenUp<QFileDialog>([&, text = typed](QFileDialog& dialog) {
            title = dialog.windowTitle();
            filters = dialog.nameFilters();
            TypeName(dialog, text);
        });

        EXPECT_EQ(SaveUnder(ask, start), QString::fromStdString(folder.File(given)));
        EXPECT_EQ(title, "Save Iconset");
        EXPECT_EQ(filters, QStringList("Vantry Iconset (*.prc *.pdb)"));
    }
}

TEST_F(OnScreen, ADialogThatSavesShowsTheNameThatWillBeWritten)
{
    const TempFolder folder;
    std::filesystem::create_directory(folder.File("sub"));
    QStringList notes;
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
        auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
        const auto* const note = dialog.findChild<QLabel*>("lblNameToBeWritten");
        ASSERT_TRUE(name && note);
        const int width = dialog.width();
        name->setText(QString(240, 'x') + ".prc");
        QCoreApplication::processEvents();
        EXPECT_EQ(dialog.width(), width);
        EXPECT_TRUE(note->text().endsWith("xx.prc"));
        dialog.resize(2000, dialog.height());
        QCoreApplication::processEvents();
        EXPECT_EQ(note->text().count('x'), 240);
        dialog.resize(width, dialog.height());
        QCoreApplication::processEvents();
        EXPECT_TRUE(note->text().endsWith("xx.prc"));
        EXPECT_LE(note->fontMetrics().horizontalAdvance(note->text()), note->width());
        const QString sub = QString::fromStdString(folder.File("sub"));
        for (const QString& typed :
            QStringList{ "", "m", "my set", "my.prc", sub + "/<b>x", sub, "" }) {
            name->setText(typed);
            notes.append(note->text());
        }
        EXPECT_TRUE(note->isVisible());
        EXPECT_EQ(note->textFormat(), Qt::PlainText);
    });

    SaveUnder(ask, QString::fromStdString(folder.Path()));

    EXPECT_EQ(notes,
        (QStringList{ "", "Will be written as m.vpt", "Will be written as my set.vpt",
            "Will be written as my.prc", "Will be written as <b>x.vpt", "", "" }));
}

TEST_F(OnScreen, ADialogThatSavesAsksBeforeItTakesAFileThatIsThere)
{
    const TempFolder folder;
    WriteText(folder.File("old.prc"), "x");
    WriteText(folder.File("old.vpt"), "x");
    const std::pair<const char*, QMessageBox::StandardButton> cases[] = {
        { "old.prc", QMessageBox::No },
        { "old.prc", QMessageBox::Yes },
        { "old", QMessageBox::No },
        { "old", QMessageBox::Yes },
    };
    for (const auto& [name, button] : cases) {
        bool asked = false;
        WhenUp<QFileDialog>([&, typed = name, answer = button](QFileDialog& dialog) {
            WhenUp<QMessageBox>([&, answer](QMessageBox& box) {
                asked = true;
                QTest::mouseClick(box.button(answer), Qt::LeftButton);
            });
            TypeName(dialog, typed);
        });

        const auto chosen = SaveUnder(ask, QString::fromStdString(folder.Path()));

        EXPECT_TRUE(asked) << name;
        EXPECT_EQ(chosen.has_value(), button == QMessageBox::Yes);
    }
}

TEST_F(OnScreen, TheWindowBelowADialogIsActiveAfterIt)
{
    QWidget below;
    below.show();
    for (const bool accepts : { true, false }) {
        const TempFolder folder;
        WhenUp<QFileDialog>([&](QFileDialog& dialog) {
            if (accepts)
                TypeName(dialog, "new.prc");
        });

        ask.SaveFile(&below,
            { .title = {},
                .folder = QString::fromStdString(folder.Path()),
                .filters = {},
                .defaultEnding = "vpt" });

        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &below; }));
    }
}

TEST_F(OnScreen, ACancelledDialogThatSavesGivesNothing)
{
    WhenUp<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });

    EXPECT_EQ(SaveUnder(ask, {}), std::nullopt);
}

TEST_F(OnScreen, AFileDialogGivesThePathThatWasTypedIn)
{
    const TempFolder folder;
    const QString path = QString::fromStdString(folder.File("F\xC3\xA4rn set.prc"));
    WriteText(path.toStdString(), "x");
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
        auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });

    EXPECT_EQ(ask.OpenFile(
                  nullptr, { .title = {}, .folder = QDir::tempPath(), .filters = { "All (*)" } }),
        path);
}

} // namespace
} // namespace vypx::test
