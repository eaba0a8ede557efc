#include "FaultChild.h"
#include "WindowFixture.h"

/// A save by the window while one file operation fails or the process dies there. A child process
/// runs the one disabled test below with the fault library before it.
namespace vypx::test {

namespace {

constexpr int Saved = 0, NotSavedAndTold = 3;

/// Answers whatever comes up, as a user who clicks everything away.
class PatientAsk : public Ask {
public:
    QMessageBox::StandardButton Show(QWidget*, const Box&) override { return QMessageBox::Yes; }
    QString OpenFile(QWidget*, const OpenQuestion&) override { return file; }
    std::optional<QString> SaveFile(QWidget*, const SaveQuestion&) override { return {}; }
    QString ChooseFolder(QWidget*, const FolderQuestion&) override { return {}; }
    void Beep() override { }

    QString file;
};

TEST(SaveChild, DISABLED_SavesOnce)
{
    const QString folder = qEnvironmentVariable("SAVE_CHILD_FOLDER");
    SetDefaultSettings();
    PatientAsk ask;
    ask.file = folder + "/set.prc";
    MDIForm1 frame(ask);
    frame.Start(folder, {});
    PromptColorDepth = false;
    frame.findChild<QAction*>("mnuOpen")->trigger();
    if (!FileLoaded)
        exit(NotSavedAndTold); // it could not be read, and the tree is empty
    frame.findChild<QAction*>("mnuSave")->trigger();
    exit(frame.findChild<QLabel*>("lblNotSaved")->isVisible() ? NotSavedAndTold : Saved);
}

class SavingWithFaults : public ::testing::TestWithParam<std::string> {
protected:
    SavingWithFaults()
    {
        WriteText(folder.File("AppList.dat"), "[Alpha]\nType=appl\nCreator={ALPH}\n");
        WriteText(folder.File("PalmApp.dat"), "");
        WriteText(folder.File("VY_Icons.dat"), "");
    }

    /// Exit code of a child whose operation number `at` fails; -1 when it was killed.
    int Save(int at)
    {
        WriteBytes(folder.File("set.prc"), old);
        WriteBytes(folder.File("set.prc.bak"), older);
        RemovePassingFiles(folder.Path()); // or looking at them would count as operations
        return RunWithFaults("SaveChild.DISABLED_SavesOnce",
            {
                { "SAVE_CHILD_FOLDER", folder.Path() },
                { "TMPDIR", folder.Path() }, // a killed child leaves its own folder there
                { "FAULT_PATH", "set.prc" },
                { "FAULT_KIND", GetParam() },
                { "FAULT_AT", std::to_string(at) },
                { "FAULT_COUNT", folder.File("count") },
            });
    }
    Bytes File(const std::string& name)
    {
        Bytes bytes = ReadBytes(folder.File(name));
        if (bytes.size() > 44)
            std::fill(bytes.begin() + 36, bytes.begin() + 44, std::uint8_t{ 0 }); // dates
        return bytes;
    }

    TempFolder folder;
    const Bytes old = Iconset{ .name = "Old",
        .resources = { { "iTbl", 1000, IndexRecord("appl", "ALPH", 3500, 3501) }, Picture(3500),
            Picture(
                3501) } }.File();
    const Bytes older = Bytes(40, 'b');
};

TEST_P(SavingWithFaults, LeaveTheOldFilesOrTheNewOnesWhole)
{
    ASSERT_EQ(Save(0), Saved);
    const Bytes expected = File("set.prc");
    ASSERT_NE(expected, old);
    const int operations = std::stoi(ReadText(folder.File("count")));
    EXPECT_GE(operations, 10) << "the database's and the backup's";

    const bool kills = GetParam() == "before" || GetParam() == "within" || GetParam() == "after";
    int told = 0;
    for (int at = 1; at <= operations; ++at) {
        const int result = Save(at);
        EXPECT_EQ(result == -1, kills) << "after operation " << at;
        told += result == NotSavedAndTold ? 1 : 0;

        const Bytes now = File("set.prc"), backup = File("set.prc.bak");
        EXPECT_TRUE(now == old || now == expected) << "a third thing after operation " << at;
        EXPECT_TRUE(backup == older || backup == old) << "a broken backup after operation " << at;
        if (result == Saved) {
            EXPECT_TRUE(now == expected && backup == old) << "an untold failure at " << at;
        }
        if (!kills) {
            EXPECT_EQ(PassingFiles(folder.Path()), 0u) << at;
        }
    }
    if (GetParam() == "space" || GetParam() == "io") {
        EXPECT_GE(told, 8) << "opens, writes, syncs and renames of both files";
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, SavingWithFaults,
    ::testing::Values("space", "io", "short", "before", "within", "after"));

} // namespace
} // namespace vypx::test
