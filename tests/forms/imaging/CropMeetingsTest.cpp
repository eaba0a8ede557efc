#include "CropFixture.h"

#include <QScrollBar>
#include <QTimer>
#include <filesystem>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::AnyOf;
using ::testing::Not;

/// What the rest of the program may do while the window stands.
class CropMeetings : public CropFixture {
protected:
    void ExpectNoFileLeft()
    {
        for (const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
            EXPECT_THAT(entry.path().extension(), Not(AnyOf(".bmp", ".bak", ".bin")))
                << entry.path();
    }
};

} // namespace

TEST_F(CropMeetings, MeanwhileTheOtherWindowsTakeNoInput)
{
    Entry("mnuOptions").trigger();
    OpenCrop(700, 500);

    EXPECT_FALSE(Find<QWidget>("menuBar").isEnabled());
    EXPECT_FALSE(Find<QWidget>("frmProgOptions").isEnabled());
    EXPECT_FALSE(Find<QScrollBar>("VScrollRed").isEnabled()) << "of the preview colour";
    Click("Beta (Large Icon)");
    EXPECT_EQ(LastClickedText, "Alpha (Large Icon)");
    Press("cmdDelLG");
    QTest::keyClick(&Nodes(), Qt::Key_R);
    QTest::keyClick(&View(), Qt::Key_R);
    EXPECT_EQ(IconTable[*FindIconRow("Alpha (Large Icon)")].IconState, 1);
    EXPECT_TRUE(IsUntouched(StoredLG()));
    EXPECT_FALSE(TakesFiles(*frame) || TakesFiles(Crop()));

    Cancel();

    EXPECT_TRUE(TakesFiles(*frame));
    EXPECT_TRUE(Find<QWidget>("frmProgOptions").isEnabled());
    EXPECT_TRUE(Find<QScrollBar>("VScrollRed").isEnabled());
    EXPECT_TRUE(Find<QWidget>("menuBar").isEnabled());
    Click("Beta (Large Icon)");
    EXPECT_EQ(LastClickedText, "Beta (Large Icon)");
}

TEST_F(CropMeetings, NoShortcutOfTheMenusWorksMeanwhile)
{
    OpenCrop(700, 500);
    Crop().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Crop()));

    QTest::keyClick(&View(), Qt::Key_N, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_W, Qt::ControlModifier);

    EXPECT_FALSE(IsOpen("frmNewIconset"));
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(IsOpen());
}

TEST_F(CropMeetings, AnotherIconSelectedMeanwhileGetsNothing)
{
    OpenCrop(700, 500);
    LastClickedText = "Beta (Large Icon)";

    Ok();

    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "NEW");
    EXPECT_FALSE(NamedFileExists(WorkPath("tAIB3502-d144.bmp")));
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(CropMeetings, ADocumentThatWasClosedMeanwhileGetsNothing)
{
    OpenCrop(700, 500);
    IconsetChanged = false;
    Entry("mnuCloseIconset").trigger();
    ASSERT_FALSE(FileLoaded);
    ask.AnswerFurther(QMessageBox::Ok);

    if (IsOpen())
        Ok();
    if (IsOpen())
        Cancel();

    EXPECT_FALSE(NamedFileExists(WorkPath("tAIB3500-d144.bmp")) && !IsUntouched(StoredLG()));
    EXPECT_FALSE(FileLoaded || IconsetChanged);
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(CropMeetings, ClosingTheFrameExitsClosesTheWindowsAndLeavesNoFile)
{
    OpenCrop(2402, 50);
    Push("cmdChangeBackColor");

    EXPECT_TRUE(frame->close());

    EXPECT_FALSE(frame->isVisible());
    EXPECT_FALSE(IsOpen() || IsOpen("frmChangeBackColor"));
    ExpectNoFileLeft();
}

TEST_F(CropMeetings, AnExitDoesTheSame)
{
    OpenCrop(2402, 50);

    Entry("mnuExit").trigger();

    EXPECT_FALSE(frame->isVisible());
    EXPECT_FALSE(IsOpen());
    ExpectNoFileLeft();
}

TEST_F(CropMeetings, AnExitWhileItsMessageStandsDoesTheSame)
{
    ask.Answer(QMessageBox::Ok, [&] { frame->close(); });
    OpenCrop(8002, 10);
    Settle();

    EXPECT_FALSE(frame->isVisible());
    EXPECT_FALSE(IsOpen());
    ExpectNoFileLeft();
}

TEST_F(CropMeetings, TheProgramsEndWithTheWindowOpenHarmsNothing)
{
    OpenCrop(700, 500);
    Push("cmdChangeBackColor");

    frame.reset();

    EXPECT_EQ(SizeOf(WorkPicture("temp.bmp")), QSize(700, 500));
}

namespace {

/// Tries to cancel as soon as the busy note is painted.
class Intruder : public QObject {
public:
    explicit Intruder(QDialog& crop)
        : m_crop(&crop)
    {
        qApp->installEventFilter(this);
    }

    int painted = 0;

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* note = qobject_cast<QLabel*>(watched);
        if (event->type() != QEvent::Paint || !note || note->objectName() != "lblWorking"
            || note->window() != m_crop)
            return false;
        if (++painted == 1)
            QTimer::singleShot(0, m_crop, [this] {
                if (m_crop && m_crop->isVisible())
                    QTest::keyClick(m_crop.data(), Qt::Key_Escape);
            });
        return false;
    }

    QPointer<QDialog> m_crop;
};

} // namespace

TEST_F(CropMeetings, TheBusyNoteIsPaintedAndNoInputGetsIn)
{
    for (const bool stretched : { false, true }) {
        OpenCrop(700, 500);
        if (stretched)
            Push("optStretch");
        QCoreApplication::processEvents();
        Intruder intruder(Crop());
        const unsigned changes = IconsetChanged.Times();

        Ok();

        EXPECT_GE(intruder.painted, 1);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
        EXPECT_EQ(IconsetChanged.Times(), changes + 1);
    }
}

} // namespace vypx::test
