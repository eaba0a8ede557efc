#include "catalogs/PalmHeader.h"

#include "support/Files.h"
#include "support/PrcFiles.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

using namespace std::string_literals;

std::string NameIn(const std::string& field)
{
    return ReadPalmHeader(ByteView(PrcFile(field))).name;
}

TEST(PalmHeader, NameTypeAndCreatorStandAt0And60And64)
{
    Bytes file(100, '-');
    const std::string name = "An App\0behind the end", ids = "applAbC1";
    std::copy(name.begin(), name.end(), file.begin());
    file[6] = 0;
    std::copy(ids.begin(), ids.end(), file.begin() + 60);

    const PalmHeader header = ReadPalmHeader(ByteView(file));

    EXPECT_EQ(header.name, "An App");
    EXPECT_EQ(header.type, "appl");
    EXPECT_EQ(header.creator, "AbC1");
}

TEST(PalmHeader, BracketsOfANameBecomeBraces) { EXPECT_EQ(NameIn("[My] App]"), "{My} App}"); }

TEST(PalmHeader, ANameEndsAtAControlCharacterOrAHighByte)
{
    EXPECT_EQ(NameIn("Ab\x1F"
                     "cd"),
        "Ab");
    EXPECT_EQ(NameIn("Ab\x7F"
                     "cd"),
        "Ab");
    EXPECT_EQ(NameIn("Caf\xE9"), "Caf");
    EXPECT_EQ(NameIn("Ab~ cd"), "Ab~ cd") << "126 is the last that counts";
}

TEST(PalmHeader, BlanksAtTheEndsOfANameDoNotCount)
{
    EXPECT_EQ(NameIn("App   "), "App");
    EXPECT_EQ(NameIn("App \xE9"), "App");
    EXPECT_EQ(NameIn("  App"), "App") << "a catalog would not keep them";
    EXPECT_EQ(NameIn("     "), "");
}

TEST(PalmHeader, ANameMayFillAll32Bytes)
{
    EXPECT_EQ(NameIn(std::string(32, 'n')), std::string(32, 'n'));
}

TEST(PalmHeader, ANameThatBeginsWithAControlCharacterIsEmpty)
{
    EXPECT_EQ(NameIn("\x01"
                     "App"),
        "");
    EXPECT_EQ(NameIn("\0App"s), "");
}

TEST(PalmHeader, ApplicationsAndPanelsAreApplications)
{
    const auto typed = [](const std::string& type) {
        return ReadPalmHeader(ByteView(PrcFile("App", type)));
    };
    EXPECT_TRUE(typed("appl").IsApplication());
    EXPECT_FALSE(typed("appl").IsPanel());
    EXPECT_TRUE(typed("panl").IsApplication());
    EXPECT_TRUE(typed("panl").IsPanel());
    EXPECT_FALSE(typed("libr").IsApplication());
    EXPECT_FALSE(typed("Appl").IsApplication()) << "case counts";
}

TEST(PalmHeader, OnlyACreatorOfFourLowerCaseLettersIsOfPalmOS)
{
    const auto isOfPalmOS = [](const std::string& creator) {
        return ReadPalmHeader(ByteView(PrcFile("App", "appl", creator))).IsOfPalmOS();
    };
    EXPECT_TRUE(isOfPalmOS("addr"));
    EXPECT_TRUE(isOfPalmOS("azaz"));
    for (const char* const other : { "Addr", "addR", "add1", "add ", "add`", "add{", "add\xE9" })
        EXPECT_FALSE(isOfPalmOS(other)) << other;
}

TEST(PalmHeader, ACreatorWithAByteBelow32CannotBeWritten)
{
    const auto cannot = [](const std::string& creator) {
        return ReadPalmHeader(ByteView(PrcFile("App", "appl", creator))).HasUnwritableCreator();
    };
    EXPECT_TRUE(cannot("AB\nC"));
    EXPECT_TRUE(cannot("ABC\x1F"));
    EXPECT_TRUE(cannot("\0ABC"s));
    EXPECT_FALSE(cannot("A\x7F\xFF "));
}

TEST(PalmHeader, AFileOf67BytesHasNone)
{
    const TempFolder folder;
    Bytes file = PrcFile("App");
    WriteBytes(folder.File("whole.prc"), file);
    file.pop_back();
    WriteBytes(folder.File("short.prc"), file);
    WriteBytes(folder.File("empty.prc"), {});

    EXPECT_TRUE(ReadPalmHeader(folder.File("whole.prc")));
    EXPECT_FALSE(ReadPalmHeader(folder.File("short.prc")));
    EXPECT_FALSE(ReadPalmHeader(folder.File("empty.prc")));
    EXPECT_FALSE(ReadPalmHeader(folder.File("missing.prc")));
    EXPECT_FALSE(ReadPalmHeader(folder.Path()));
}

TEST(CutAtStar, CutsAtTheFirstOneAndTheBlanksBeforeIt)
{
    EXPECT_EQ(CutAtStar("App"), "App");
    EXPECT_EQ(CutAtStar("App * one * two"), "App");
    EXPECT_EQ(CutAtStar("*App"), "");
    EXPECT_EQ(CutAtStar("  *App"), "");
}

TEST(EntryName, OfAPanelEndsInPanel)
{
    EXPECT_EQ(EntryName("App", false), "App");
    EXPECT_EQ(EntryName("App", true), "App Panel");
}

} // namespace
} // namespace vypx::test
