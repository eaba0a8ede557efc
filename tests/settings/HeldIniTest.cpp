#include "settings/IniStore.h"
#include "settings/Inifile.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(HeldIni, IsReadWithoutAFileAndChangedWithoutOne)
{
    const TempFolder folder;
    cInifile ini;
    ini.path(folder.File("held.ini"));
    ini.Section("A");
    ini.key("k");
    EXPECT_FALSE(IniIsThere(ini.path()));

    HoldIni(ini.path(), "[A]\nk=1\n");

    EXPECT_TRUE(IniIsThere(ini.path()));
    EXPECT_EQ(ini.Value(), "1");
    ini.Value("2");
    EXPECT_TRUE(ini.Success());
    EXPECT_EQ(ini.Value(), "2");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path())) << "no file, and no lock for one";
}

TEST(HeldIni, HidesTheFileThatIsThere)
{
    const TempFolder folder;
    WriteText(folder.File("held.ini"), "[A]\nk=file\n");
    HoldIni(folder.File("held.ini"), "[A]\nk=held\n");
    cInifile ini;
    ini.path(folder.File("held.ini"));
    ini.Section("A");

    EXPECT_EQ((ini.key("k"), ini.Value()), "held");
    ini.DeleteSection();

    EXPECT_EQ(ini.Value(), "");
    EXPECT_EQ(ReadText(folder.File("held.ini")), "[A]\nk=file\n");
}

TEST(IniIsThere, TellsAFileThatCanBeRead)
{
    const TempFolder folder;
    WriteText(folder.File("empty.ini"), "");

    EXPECT_TRUE(IniIsThere(folder.File("empty.ini")));
    EXPECT_FALSE(IniIsThere(folder.File("gone.ini")));
    EXPECT_FALSE(IniIsThere(folder.Path()));
}

} // namespace
} // namespace vypx::test
