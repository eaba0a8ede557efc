#include "CropFixture.h"
#include "FaultChild.h"

/// A picture is cut by the window while one file operation fails. A child process runs the one
/// disabled test below with the fault library before it.
namespace vypx::test {

namespace {

constexpr int Stored = 0, NotStoredAndTold = 3, Lost = 4;

/// Leaves with what became of the icon's picture. The folder and the mode come from the parent.
class CropChild : public CropFixture {
protected:
    int Outcome()
    {
        const vypx::Picture stored = StoredLG();
        const bool isWhole = SizeOf(stored) == QSize(64, 44);
        if (!frame->isEnabled() || (!isWhole && !IsUntouched(stored)))
            return Lost;
        if (isWhole)
            return Stored;
        return Note() != "" || !ask.shown.empty() ? NotStoredAndTold : Lost;
    }
};

TEST_F(CropChild, DISABLED_CutsOnce)
{
    const QString mode = qEnvironmentVariable("CROP_CHILD_MODE");
    ask.AnswerFurther(QMessageBox::Ok);
    mode == "halved" ? OpenCrop(2402, 90) : OpenCrop(200, 100);
    if (IsOpen() && mode == "stretched")
        Push("optStretch");
    if (IsOpen())
        Ok();
    if (IsOpen())
        Cancel();
    exit(Outcome());
}

class CuttingWithFaults : public ::testing::TestWithParam<std::tuple<std::string, std::string>> {
protected:
    int Cut(const std::string& file, int at)
    {
        return RunWithFaults("CropChild.DISABLED_CutsOnce",
            {
                { "CROP_CHILD_MODE", std::get<1>(GetParam()) },
                { "TMPDIR", folder.Path() }, // a child that exits leaves its folders there
                { "FAULT_PATH", file },
                { "FAULT_KIND", std::get<0>(GetParam()) },
                { "FAULT_AT", std::to_string(at) },
                { "FAULT_COUNT", folder.File("count") },
            });
    }

    TempFolder folder;
};

TEST_P(CuttingWithFaults, LeaveTheOldPictureOrTheNewOneWhole)
{
    // The scratch pictures; the icon's own file.
    for (const std::string file : { "temp.bmp", "-d144.bmp" }) {
        ASSERT_EQ(Cut(file, 0), Stored) << file;
        const int operations = std::stoi(ReadText(folder.File("count")));
        EXPECT_GE(operations, 2) << file;

        int told = 0;
        for (int at = 1; at <= operations; ++at) {
            const int result = Cut(file, at);
            EXPECT_TRUE(result == Stored || result == NotStoredAndTold)
                << result << " after operation " << at << " of " << file;
            told += result == NotStoredAndTold ? 1 : 0;
        }
        EXPECT_GE(told, 1) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, CuttingWithFaults,
    ::testing::Combine(
        ::testing::Values("space", "io", "short"), ::testing::Values("cut", "stretched", "halved")),
    [](const auto& kinds) -> std::string {
        return std::get<0>(kinds.param) + "_" + std::get<1>(kinds.param);
    });

} // namespace
} // namespace vypx::test
