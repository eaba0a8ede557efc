#include "Child.h"
#include "FaultAt.h"
#include "support/Files.h"
#include "support/PrcFiles.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <tuple>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// Every operation on a catalog fails once in every way, or the process dies there.
class CatalogFaults
    : public ::testing::TestWithParam<std::tuple<std::string, std::string>> { // edit, kind
protected:
    CatalogFaults()
    {
        fs::create_directory(folder.File("palm"));
        WriteBytes(folder.File("palm/a.prc"), PrcFile("Found", "appl", "FNDA"));
        WriteBytes(folder.File("palm/b.prc"), PrcFile("Found Too", "panl", "FNDB"));
        WriteBytes(folder.File("app.prc"), PrcFile("One and Two", "appl", "1111"));
        Restore();
    }

    void Restore() const
    {
        WriteText(Catalog("AppList.dat"), Apps);
        WriteText(Catalog("PalmApp.dat"), Palm);
        fs::remove(Catalog("AppList.dat.bak"));
        RemovePassingFiles(folder.Path());
    }
    std::string Catalog(const std::string& name) const { return folder.File(name); }
    /// The edited file, and the copy of it that may stand beside it.
    std::string Edited() const
    {
        return ReadText(Catalog(EditsPalm() ? "PalmApp.dat" : "AppList.dat"));
    }
    bool EditsPalm() const { return std::get<0>(GetParam()) == "palm"; }

    /// Makes the edit with its `at`-th operation at fault; 0: none.
    int Run(int at) const
    {
        Child child({ VYPX_CATALOG_HELPER, std::get<0>(GetParam()), folder.Path() },
            FaultAt(".dat", std::get<1>(GetParam()), at, folder.File("count")));
        return child.Wait();
    }

    static constexpr const char* Apps = "; mine\n[One]\nType=appl\nCreator={1111}\nNote=x\n"
                                        "[Two]\nType=appl\nCreator={1111}\n"
                                        "[Three]\nType=appl\nCreator={3333}\n";
    static constexpr const char* Palm = "[Palm Clock]\nType=appl\nCreator={CLCK}\n; end\n";
    TempFolder folder;
};

TEST_P(CatalogFaults, LoseNothingAndAreTold)
{
    const auto& [edit, kind] = GetParam();
    const bool kills = Kills(kind);
    const std::string old = EditsPalm() ? Palm : Apps;
    ASSERT_EQ(Run(0), 0);
    const std::string changed = Edited();
    ASSERT_NE(changed, old);
    const bool leavesCopy = fs::exists(Catalog("AppList.dat.bak"));
    EXPECT_EQ(leavesCopy, edit == "delete" || edit == "single") << "where two entries went";
    const int operations = std::stoi(ReadText(folder.File("count")));
    EXPECT_GE(operations, leavesCopy ? 10 : 5)
        << "open, write, sync, close and rename of each file";

    int told = 0;
    for (int at = 1; at <= operations; ++at) {
        Restore();
        const int exitCode = Run(at);

        EXPECT_EQ(exitCode == -1, kills) << at;
        told += exitCode == 1 ? 1 : 0;
        EXPECT_TRUE(Edited() == old || Edited() == changed) << "a third thing after " << at;
        if (exitCode == 0) {
            EXPECT_EQ(Edited(), changed) << "an untold failure at " << at;
        }
        if (exitCode == 1) {
            EXPECT_EQ(Edited(), old) << "told though it was written, at " << at;
        }
        if (leavesCopy && Edited() == changed) {
            EXPECT_EQ(ReadText(Catalog("AppList.dat.bak")), Apps) << at;
        }
        if (!kills) {
            EXPECT_EQ(PassingFiles(folder.Path()), 0u) << at;
        }
        WriteText(Catalog(EditsPalm() ? "PalmApp.dat" : "AppList.dat"), old);
        EXPECT_EQ(Run(0), 0) << "what is left must not block the next edit";
        EXPECT_EQ(Edited(), changed);
        EXPECT_EQ(PassingFiles(folder.Path()), 0u) << "and goes with it, after " << at;
    }
    if (kind == "space" || kind == "io") {
        EXPECT_GE(told, 4) << "an open, a write, a sync and a rename at least";
    }
}

INSTANTIATE_TEST_SUITE_P(Edits, CatalogFaults,
    ::testing::Combine(::testing::Values("search", "single", "manual", "delete", "palm"),
        ::testing::Values("space", "io", "short", "before", "within", "after")),
    [](const auto& name) { return std::get<0>(name.param) + "_" + std::get<1>(name.param); });

} // namespace
} // namespace vypx::test
