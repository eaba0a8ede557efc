#include "settings/Inifile.h"

#include "platform/Platform.h"
#include "support/CommonUser.h"
#include "support/Files.h"
#include "support/Properties.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using namespace std::string_literals;

class Inifile : public ::testing::Test {
protected:
    Inifile() { ini.path(file); }

    std::string Read(const std::string& section, const std::string& key)
    {
        ini.Section(section);
        ini.key(key);
        return ini.Value();
    }
    void Write(const std::string& section, const std::string& key, const std::string& value)
    {
        ini.Section(section);
        ini.key(key);
        ini.Value(value);
    }
    std::vector<std::string> Sections()
    {
        std::vector<std::string> names;
        std::int32_t count = -1;
        ini.EnumerateAllSections(names, count);
        EXPECT_EQ(count, names.empty() ? 0 : static_cast<int>(names.size()) - 1);
        if (!names.empty())
            names.erase(names.begin()); // they count from 1
        return names;
    }
    std::vector<std::string> Keys(const std::string& section)
    {
        std::vector<std::string> names;
        std::int32_t count = -1;
        ini.Section(section);
        ini.EnumerateCurrentSection(names, count);
        EXPECT_EQ(count, names.empty() ? 0 : static_cast<int>(names.size()) - 1);
        if (!names.empty())
            names.erase(names.begin());
        return names;
    }

    TempFolder folder;
    std::string file = folder.File("test.ini");
    cInifile ini;
};

TEST_F(Inifile, BeginsEmpty)
{
    const cInifile fresh;

    EXPECT_EQ(fresh.path() + fresh.key() + fresh.Section() + fresh.Default(), "");
    EXPECT_EQ(fresh.LastReturnCode(), 0);
    EXPECT_EQ(fresh.Value(), "");
}

TEST_F(Inifile, AMissingKeyGivesTheDefault)
{
    WriteText(file, "[A]\nx=1\n");
    ini.Default("255");
    EXPECT_EQ(Read("A", "y"), "255");
    EXPECT_EQ(Read("B", "x"), "255");
    EXPECT_EQ(Read("A", "x"), "1");

    ini.Default("");
    EXPECT_EQ(Read("A", "y"), "");
}

TEST_F(Inifile, AnEmptyValueIsNotMissing)
{
    WriteText(file, "[A]\nx=\n");
    ini.Default("255");

    EXPECT_EQ(Read("A", "x"), "");
}

TEST_F(Inifile, AValueOf300CharactersReadsBackAsItsFirst254)
{
    const std::string value = std::string(253, 'a') + "b" + std::string(46, 'c');

    Write("A", "x", value);

    EXPECT_EQ(Read("A", "x"), std::string(253, 'a') + "b");
}

TEST_F(Inifile, AValueThatFitsItsKeyReadsBackWholeAndOneMoreDoesNot)
{
    for (const bool fits : { true, false }) {
        const std::string value(fits ? 254 : 255, 'x');
        EXPECT_EQ(FitsKey(value), fits);
        Write("A", "x", value);
        EXPECT_EQ(Read("A", "x") == value, fits);
    }
}

TEST_F(Inifile, ALongDefaultIsCutLikeAValue)
{
    ini.Default(std::string(300, 'd'));

    EXPECT_EQ(Read("A", "x").size(), 254u);
}

TEST_F(Inifile, NulCharactersAreLeftOutOfAValue)
{
    Write("A", "x", "a\0b"s);
    EXPECT_EQ(Read("A", "x"), "ab");

    Write("A", "x", "\0\0a\0"s);
    EXPECT_EQ(Read("A", "x"), "a");
}

TEST_F(Inifile, SuccessTellsOfTheLastWriteOnly)
{
    WriteText(file, "[A]\nx=1\n");
    Read("A", "x");
    EXPECT_FALSE(ini.Success());

    Write("A", "x", "2");
    EXPECT_TRUE(ini.Success());
    EXPECT_NE(ini.LastReturnCode(), 0);

    Read("A", "missing");
    EXPECT_TRUE(ini.Success());

    ini.path("/nowhere/at/all.ini");
    Write("A", "x", "3");
    EXPECT_FALSE(ini.Success());
    EXPECT_EQ(ini.LastReturnCode(), 0);
}

TEST_F(Inifile, AWriteOfWhatStandsThereLeavesTheFileAlone)
{
    WriteText(file, "[A]\nx=1\n");
    const auto before = platform::IdentityOf(file);

    Write("A", "x", "1");

    EXPECT_TRUE(ini.Success());
    EXPECT_EQ(platform::IdentityOf(file), before);
}

#ifndef _WIN32
TEST_F(Inifile, AWriteOfWhatStandsThereFailsWhereAnyWriteWould)
{
    WriteText(file, "[A]\nx=1\n");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0777));
    std::filesystem::permissions(file, std::filesystem::perms(0444));
    {
        const CommonUser common;
        Write("A", "x", "1");
        EXPECT_FALSE(ini.Success()) << "a file that can't be written";
    }
    std::filesystem::permissions(file, std::filesystem::perms(0666));
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0555));
    {
        const CommonUser common;
        Write("A", "x", "1");
        EXPECT_FALSE(ini.Success()) << "a folder that can't be written";
    }
    std::filesystem::permissions(folder.Path(), std::filesystem::perms(0777));
    {
        const CommonUser common;
        Write("A", "x", "1");
        EXPECT_TRUE(ini.Success());
    }
}

TEST_F(Inifile, ALinkIsFollowedAndStaysAndOneToItselfCannotBeWritten)
{
    WriteText(folder.File("real.ini"), "[A]\nx=1\n");
    std::filesystem::create_symlink("real.ini", file);

    Write("A", "x", "2");

    EXPECT_TRUE(ini.Success());
    EXPECT_TRUE(std::filesystem::is_symlink(file));
    EXPECT_EQ(ReadText(folder.File("real.ini")), "[A]\nx=2\n");

    std::filesystem::remove(file);
    std::filesystem::create_symlink(file, file);
    Write("A", "x", "3");

    EXPECT_FALSE(ini.Success());
    EXPECT_TRUE(std::filesystem::is_symlink(file));
}
#endif

TEST_F(Inifile, AFolderInTheFilesPlaceCannotBeWritten)
{
    std::filesystem::create_directory(file);

    Write("A", "x", "1");

    EXPECT_FALSE(ini.Success());
    EXPECT_TRUE(std::filesystem::is_directory(file));
}

TEST_F(Inifile, NamesMatchWithoutRegardToCase)
{
    WriteText(file, "[First Part]\nKey One=1\n");

    EXPECT_EQ(Read("FIRST part", "kEY oNE"), "1");
    Write("first part", "key one", "2");

    EXPECT_EQ(ReadText(file), "[First Part]\nKey One=2\n");
}

TEST_F(Inifile, AReadTrimsBlanksAndOnePairOfQuotes)
{
    WriteText(file, "[A]\n a = \t one two \nb=\" two \"\nc='\"x\"'\nd=\"open\ne=\"\n");

    EXPECT_EQ(Read("A", "a"), "one two");
    EXPECT_EQ(Read("A", "b"), " two ");
    EXPECT_EQ(Read("A", "c"), "\"x\"");
    EXPECT_EQ(Read("A", "d"), "\"open");
    EXPECT_EQ(Read("A", "e"), "\"");
}

TEST_F(Inifile, AWriteKeepsTheOrderAndAppends)
{
    WriteText(file, "[A]\nx=1\ny=2\n\n[B]\nz=3\n");

    Write("A", "x", "one");
    Write("A", "w", "four");
    Write("C", "new", "five");

    EXPECT_EQ(ReadText(file), "[A]\nx=one\ny=2\nw=four\n\n[B]\nz=3\n[C]\nnew=five\n");
}

TEST_F(Inifile, AMissingFileIsMade)
{
    Write("A", "x", "1");

    EXPECT_TRUE(ini.Success());
    EXPECT_EQ(Read("A", "x"), "1");
    EXPECT_THAT(Sections(), ElementsAre("A"));
}

TEST_F(Inifile, CommentsBlankLinesLineEndsAndHighBytesSurvive)
{
    const std::string before = "; first\r\n\r\n[A]\r\n; second\r\nx=Caf\xE9\r\nnot a key\r\n\n[B]";
    WriteText(file, before);

    Write("A", "y", "\xFF");

    EXPECT_EQ(ReadText(file),
        "; first\r\n\r\n[A]\r\n; second\r\nx=Caf\xE9\r\nnot a key\r\ny=\xFF\r\n\n[B]");
}

TEST_F(Inifile, AFileWithoutALineEndGetsOneWhereALineFollows)
{
    WriteText(file, "[A]\nx=1");

    Write("A", "y", "2");

    EXPECT_EQ(ReadText(file), "[A]\nx=1\ny=2\n");
}

TEST_F(Inifile, AnotherObjectsWriteIsSeenAtOnce)
{
    cInifile other;
    other.path(file);
    other.Section("A");
    other.key("x");

    for (int i = 0; i < 50; ++i) {
        Write("A", "x", std::to_string(i));
        EXPECT_EQ(other.Value(), std::to_string(i));
    }
}

TEST_F(Inifile, AnotherProgramsWriteOfTheSameSizeIsSeenAtOnce)
{
    for (int i = 10; i < 60; ++i) {
        WriteText(file, "[A]\nx=" + std::to_string(i) + "\n");
        EXPECT_EQ(Read("A", "x"), std::to_string(i));
    }
}

TEST_F(Inifile, AFileThatGoesIsMissingAtOnce)
{
    Write("A", "x", "1");
    EXPECT_EQ(Read("A", "x"), "1");

    std::filesystem::remove(file);

    EXPECT_EQ(Read("A", "x"), "");
}

TEST_F(Inifile, DeletesAKey)
{
    WriteText(file, "[A]\nx=1\ny=2\n[B]\nx=3\n");

    ini.Section("a");
    ini.key("X");
    ini.DeleteKey();

    EXPECT_TRUE(ini.Success());
    EXPECT_EQ(ReadText(file), "[A]\ny=2\n[B]\nx=3\n");
}

TEST_F(Inifile, DeletesASectionWithAllItsKeys)
{
    WriteText(file, "[A]\nx=1\n[B]\n; in B\ny=2\n; about C\n[C]\nz=3\n");

    ini.Section("b");
    ini.DeleteSection();

    EXPECT_TRUE(ini.Success());
    EXPECT_EQ(ReadText(file), "[A]\nx=1\n; about C\n[C]\nz=3\n");
}

TEST_F(Inifile, OnPurposeSettingINISectionDeletesTheSection)
{
    WriteText(file, "[A]\nx=1\n[B]\ny=2\n");

    ini.Section("A");
    ini.INISection("z=9");

    EXPECT_TRUE(ini.Success());
    EXPECT_EQ(ReadText(file), "[B]\ny=2\n");
}

TEST_F(Inifile, DeletingMakesNoFile)
{
    ini.Section("A");
    ini.DeleteSection();

    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(Inifile, ListsNamesEachEndedByANul)
{
    WriteText(file, "[One]\na=1\nb=2\n[Two]\n");

    ini.Section("One");
    EXPECT_EQ(ini.INISection(), "a\0b\0"s);
    EXPECT_EQ(ini.Sections(), "One\0Two\0"s);
    EXPECT_THAT(Keys("One"), ElementsAre("a", "b"));
    EXPECT_THAT(Keys("Two"), IsEmpty());
    EXPECT_THAT(Sections(), ElementsAre("One", "Two"));
}

TEST_F(Inifile, AListThatIsEmptyReadsAsTheDefaultButEnumeratesNothing)
{
    ini.Default("none");
    ini.Section("A");

    EXPECT_EQ(ini.INISection(), "none");
    EXPECT_EQ(ini.Sections(), "none");
    EXPECT_THAT(Keys("A"), IsEmpty());
}

TEST_F(Inifile, AMissingFileHasNoSections) { EXPECT_THAT(Sections(), IsEmpty()); }

TEST_F(Inifile, SectionNamesBeyond8192CharactersAreCutOff)
{
    // 1024 names of 7 characters and a NUL fill the buffer to the last character but have no room
    // for the list's own NUL; one fewer fits.
    std::string text;
    for (int i = 0; i < 1023; ++i)
        text += "[name" + std::to_string(100 + i % 900) + "]\n";
    WriteText(file, text);
    EXPECT_EQ(Sections().size(), 1023u);

    WriteText(file, text + "[last890]\n");
    const std::vector<std::string> names = Sections();
    EXPECT_EQ(names.size(), 1024u);
    EXPECT_EQ(names.back(), "last89") << "cut off where the buffer ended";
}

TEST_F(Inifile, AListCutBetweenTwoNamesEndsWithTheLastWholeOne)
{
    // 8190 characters are 1023 names of 7 and a NUL, then one of 5 and its NUL.
    std::string text;
    for (int i = 0; i < 1023; ++i)
        text += "[name" + std::to_string(100 + i % 900) + "]\n";
    WriteText(file, text + "[lasts]\n[more]\n");

    const std::vector<std::string> names = Sections();

    EXPECT_EQ(names.size(), 1024u);
    EXPECT_EQ(names.back(), "lasts");

    text = "[A]\n";
    for (int i = 0; i < 1023; ++i)
        text += "key0" + std::to_string(100 + i % 900) + "=\n";
    WriteText(file, text + "lasts=\nmore=\n");

    const std::vector<std::string> keys = Keys("A");

    EXPECT_EQ(keys.size(), 1024u) << "and no empty one behind it";
    EXPECT_EQ(keys.back(), "lasts");
}

TEST_F(Inifile, WithoutAPathThereIsNothing)
{
    ini.path("");
    ini.Default("d");

    EXPECT_EQ(Read("A", "x"), "d");
    Write("A", "x", "1");
    EXPECT_FALSE(ini.Success());
    EXPECT_THAT(Sections(), IsEmpty());
}

TEST_F(Inifile, ANameThatCannotBeWrittenIsAFailureAndTheFileStays)
{
    WriteText(file, "[A]\nx=1\n");
    Write("A", "y", "2");
    EXPECT_TRUE(ini.Success());

    Write("A", "a=b", "3");

    EXPECT_FALSE(ini.Success());
    EXPECT_EQ(ini.LastReturnCode(), 0);
    EXPECT_EQ(ReadText(file), "[A]\nx=1\ny=2\n");
}

TEST_F(Inifile, NumbersFromText)
{
    EXPECT_EQ(cInifile::CLngDefault("FAIL", 7), 7);
    EXPECT_EQ(cInifile::CLngDefault("12", 7), 12);
    EXPECT_EQ(cInifile::CLngDefault(" -12 ", 7), -12);
    EXPECT_EQ(cInifile::CLngDefault("+3", 7), 3);
    EXPECT_EQ(cInifile::CLngDefault("2.5", 7), 2) << "halves go to the even number";
    EXPECT_EQ(cInifile::CLngDefault("3.5", 7), 4);
    EXPECT_EQ(cInifile::CLngDefault("2.6", 7), 3);
    EXPECT_EQ(cInifile::CLngDefault("1e3", 7), 1000);
    EXPECT_EQ(cInifile::CLngDefault("2147483647", 7), 2147483647);
    EXPECT_EQ(cInifile::CLngDefault("2147483648", 7), 7);
    EXPECT_EQ(cInifile::CLngDefault("-2147483648", 7), INT32_MIN);
    EXPECT_EQ(cInifile::CLngDefault("-2147483649", 7), 7);
    EXPECT_EQ(cInifile::CLngDefault("\t8\t", 7), 8);
    EXPECT_EQ(cInifile::CLngDefault("-2.5", 7), -2);
    for (const char* text : { "", " ", "12x", "1 2", "inf", "nan", "+-1", "--1", "0x10" })
        EXPECT_EQ(cInifile::CLngDefault(text, 7), 7) << text;
}

/// Names and values that can stand in a file as they are.
std::string Word(int number) { return "w" + std::to_string(number); }

#ifdef RC_GTEST_PROP
RC_GTEST_FIXTURE_PROP(Inifile, WhatWasWrittenIsReadBackAndOthersStay, ())
{
    std::map<std::pair<std::string, std::string>, std::string> written;
    const auto steps = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 10'000));

    for (const int step : steps) {
        const std::string section = Word(step % 4), key = Word(step / 4 % 5);
        const std::string value =
            *rc::gen::container<std::string>(rc::gen::map(rc::gen::inRange(33, 255), [](int byte) {
                return byte == '"' || byte == '\'' ? 'q' : static_cast<char>(byte);
            }));
        Write(section, key, value);
        RC_ASSERT(ini.Success());
        written[{ section, key }] = value.substr(0, 254);
    }

    for (const auto& [name, value] : written)
        RC_ASSERT(Read(name.first, name.second) == value);
    for (const std::string& section : Sections())
        for (const std::string& key : Keys(section))
            RC_ASSERT(written.contains({ section, key }));
    std::filesystem::remove(file);
}
#endif

} // namespace
} // namespace vypx::test
