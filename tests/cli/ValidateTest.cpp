#include "ReadingFixture.h"

#include <algorithm>
#include <sstream>
#include <sys/stat.h>

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Validate : public ReadingFixture {
protected:
    /// Lines of standard output on FILE, with the attribute that the support's files lack.
    std::vector<std::string> LinesOf(const Bytes& file)
    {
        WriteBytes(folder.File("set.prc"), file.size() < 78 ? file : WithAttribute(file));
        const ToolRun run = RunTool({ "validate", folder.File("set.prc") });
        EXPECT_EQ(run.errors, "");
        std::vector<std::string> lines;
        std::istringstream output(run.output);
        for (std::string line; std::getline(output, line);)
            lines.push_back(line);
        EXPECT_EQ(run.exitCode, lines.empty() ? 0 : 1);
        EXPECT_EQ(Listing(), (std::set<std::string>{ "set.prc" }));
        return lines;
    }
    std::vector<std::string> LinesOf(const Iconset& set) { return LinesOf(set.File()); }
    /// A sound set whose first picture resource is another.
    static Iconset With(const Bytes& family)
    {
        Iconset set = SoundSet();
        set.resources[0].data = family;
        return set;
    }
    static Iconset WithIndex(std::initializer_list<Bytes> records)
    {
        Iconset set = SoundSet();
        set.resources[3].data = Join(records);
        return set;
    }
};

TEST_F(Validate, ASoundSetHasNothing) { EXPECT_THAT(LinesOf(SoundSet()), IsEmpty()); }

TEST_F(Validate, WhatWeSaveHasNothingButWhatNoCatalogKnows)
{
    const ToolRun saved = RunTool({ "convert", VYPX_SHIPPED_DATA "/samples/first-set.prc",
        folder.File("out.prc"), "--app-folder", VYPX_SHIPPED_DATA, "--work", folder.File("w") });
    ASSERT_EQ(saved.exitCode, 0) << saved.errors;

    const ToolRun run = RunTool({ "validate", folder.File("out.prc") });

    EXPECT_EQ(run.output,
        "iTbl1000: record 1 (appl CMPS) is of an application that no catalog knows\n"
        "iTbl1000: record 2 (appl LEAF) is of an application that no catalog knows\n");
}

TEST_F(Validate, WhatIsNoIconsetIsTold)
{
    EXPECT_THAT(LinesOf(Bytes(10, 0)), ElementsAre("load: Error! Invalid file!"));
    EXPECT_THAT(LinesOf(Iconset{ .type = "appl" }),
        Contains("load: This file doesn't appear to be a valid Vantry IconSet"));
}

TEST_F(Validate, WhatCannotBeReadIsTold)
{
    const auto outputOf = [&] { return RunTool({ "validate", folder.File("set.prc") }).output; };
    EXPECT_EQ(outputOf(), "load: The file could not be read.\n");
    ASSERT_EQ(::mkfifo(folder.File("set.prc").c_str(), 0600), 0);
    EXPECT_EQ(outputOf(), "load: The file could not be read.\n");
    EXPECT_EQ(RunTool({ "validate", "/dev/zero" }).exitCode, 1);
    EXPECT_EQ(RunTool({ "validate", folder.Path() }).exitCode, 1);
    EXPECT_EQ(RunTool({ "validate" }).exitCode, 2);
}

TEST_F(Validate, TheHeaderIsJudged)
{
    Iconset set = SoundSet();
    set.name = std::string(32, 'n');
    EXPECT_THAT(LinesOf(set),
        ElementsAre("header: the name has no zero at its end: it is one character too long"));
    set.name = "Caf\xE9\x1B";
    EXPECT_THAT(LinesOf(set),
        ElementsAre("header: the name is read as \"Caf\": it ends before a character outside of 32 "
                    "to 126"));
    set.name = "";
    EXPECT_THAT(LinesOf(set), ElementsAre("save: The iconset has no Palm database name."));

    Bytes file = SoundSet().File();
    WriteBytes(folder.File("set.prc"), file);
    EXPECT_THAT(RunTool({ "validate", folder.File("set.prc") }).output,
        HasSubstr("header: the attributes don't say that it is a resource database"));
    PutU16(file, 34, 7);
    PutU32(file, 52, 1);
    PutU32(file, 56, 1);
    PutU32(file, 72, 1);
    EXPECT_THAT(LinesOf(file),
        ElementsAre("header: a save makes its version 1",
            "header: a save leaves the application info out",
            "header: a save leaves the sort info out",
            "header: a further resource list is not read"));
}

TEST_F(Validate, PlacesInTheFileAreJudged)
{
    Bytes file = SoundSet().File();
    const std::size_t second = 78 + 10 + 6;
    const unsigned end = static_cast<unsigned>(file.size());
    PutU32(file, second, end + 1);
    EXPECT_THAT(LinesOf(file),
        Contains("tAIB3501: its data begin at " + std::to_string(end + 1)
            + ", behind the file's end at " + std::to_string(end)));
    PutU32(file, second, 80);
    EXPECT_THAT(LinesOf(file),
        ::testing::IsSupersetOf({ "tAIB3501: its data begin within the header and the resource "
                                  "list",
            "tAIB3500: its data begin behind those of the next resource, so their size can't be "
            "told" }));
    Bytes cut = SoundSet().File();
    cut.resize(90);
    EXPECT_THAT(LinesOf(cut), Contains("list: the file ends within the list of 4 resources"));
    Bytes many = SoundSet().File();
    PutU16(many, 76, 2001);
    many.resize(78 + 2001 * 10);
    EXPECT_THAT(LinesOf(many),
        ::testing::IsSupersetOf({ "load: Error parsing file!",
            "list: there are 2001 resources, of which none is opened above 2000" }));
}

TEST_F(Validate, WhatASaveDoesNotKeepIsTold)
{
    Iconset set = SoundSet();
    set.resources.push_back({ "code", 1, { 1, 2 } });
    set.resources.push_back({ "abmp", 3600, LowRecord(8) });
    set.resources.push_back({ "tAIB", 3500, Family(1) });
    set.resources.push_back({ "iTbl", 1001, Bytes(16, 0) });
    set.resources[2].data = { '1', '.', '0', 0 };

    EXPECT_THAT(LinesOf(set),
        ::testing::IsSupersetOf({ "code1: a save leaves out what is no icon",
            "abmp3600: its pictures are of a kind that is not read: a save leaves it out",
            "tAIB3500: it stands in the list more than once: a save keeps one",
            "iTbl1001: only the first index of the list is read",
            "tver1000: its text \"1.0\" becomes \"3.20\" at a save, as the options have it" }));
}

TEST_F(Validate, TheIndexIsJudged)
{
    EXPECT_THAT(LinesOf(WithIndex({ IndexRecord("appl", "date", 3500, 3501),
                    IndexRecord("appl", "NONE", 3502, 0), IndexRecord("abcd", "date", 0, 0) })),
        ElementsAre("iTbl1000: record 2 (appl NONE) names the large icon 3502, which is not in the "
                    "file",
            "iTbl1000: record 2 (appl NONE) is of an application that no catalog knows",
            "iTbl1000: record 3 (abcd date) names no icon",
            "iTbl1000: record 3 (abcd date) is of a type that a save may leave out",
            "iTbl1000: record 3 (abcd date) is of an application that no catalog knows"));
    EXPECT_THAT(LinesOf(WithIndex({ IndexRecord("appl", "date", 3500, 3501), { 0 } })),
        ::testing::IsSupersetOf({ "load: Error reading iTbl",
            "iTbl1000: it has 17 bytes, which are no records of 16" }));
    EXPECT_THAT(LinesOf(WithIndex({ IndexRecord("appl", "date", 3500, 0) })),
        Contains("tAIB3501: it is an orphan, as the index does not name it: a save leaves it out"));
    Iconset none = SoundSet();
    none.resources.pop_back();
    EXPECT_THAT(LinesOf(none),
        Contains("list: there is no iTbl resource: no icon belongs to an application"));
}

TEST_F(Validate, AnIdThatASaveCannotNameLosesItsApplication)
{
    Iconset set = SoundSet();
    set.resources[1].id = 20000;
    set.resources[3].data = IndexRecord("appl", "date", 3500, 20000);

    EXPECT_THAT(LinesOf(set),
        ElementsAre("iTbl1000: record 1 (appl date) names the small icon 20000, which a save can't "
                    "name: it names tAIB resources from 3500 to 9999",
            "save: 1 icon will be an orphan when this file is opened: its index of applications "
            "does not name it."));
}

TEST_F(Validate, BitmapsAreJudged)
{
    const auto lineOf = [&](std::size_t at, std::uint8_t value) {
        PlainBitmap low{ .width = 32, .height = 22, .index = 1 };
        PlainBitmap high{ .index = 1, .high = true };
        Bytes family = Join({ low.Record(false), Separator(), high.Record() });
        family[at] = value;
        return LinesOf(With(family));
    };
    const std::size_t high = 16 + 32 * 22 + 16;
    EXPECT_THAT(lineOf(9, 3),
        ElementsAre("tAIB3500: its version is 3, which a handheld takes for another kind"));
    EXPECT_THAT(lineOf(high + 9, 2),
        ElementsAre("tAIB3500-d144: its version is 2, which a handheld takes for another kind"));
    EXPECT_THAT(lineOf(high + 15, 72), ElementsAre("tAIB3500-d144: its density is 72 and not 144"));
    EXPECT_THAT(lineOf(6, 0x40), ElementsAre("tAIB3500: its colour table is read as pixels"));
    EXPECT_THAT(lineOf(6, 0x80),
        ElementsAre("tAIB3500: its compression 255 is not known: it is read as not compressed"));
    EXPECT_THAT(lineOf(high + 1, 65),
        ::testing::IsSupersetOf({ "tAIB3500-d144: its rows are too short for 65 pixels",
            "tAIB3500-d144: it gives no picture, and none is saved",
            "tAIB3500-d144: it has 65 x 44 pixels, more than the 64 x 44 of \"Palm Date Book "
            "(Large Icon)\"" }));
    EXPECT_THAT(lineOf(high + 8, 7),
        ::testing::IsSupersetOf({ "load: The file could not be read.",
            "tAIB3500-d144: it has 7 bits a pixel: it can't be read" }));
    EXPECT_THAT(lineOf(10, 0xFF), Contains("tAIB3500: the chain of its bitmaps leads out of it"));
}

TEST_F(Validate, ATransparentColourBeyondThePaletteIsTold)
{
    Bytes record = LowRecord(4);
    record[6] = 0x20;
    record[12] = 16;
    EXPECT_THAT(LinesOf(With(record)),
        ::testing::IsSupersetOf({ "load: The file could not be read.",
            "tAIB3500: its transparent colour 16 is beyond the palette of 4 bits" }));
}

TEST_F(Validate, FurtherDepthsAndAMissingDensityAreTold)
{
    EXPECT_THAT(LinesOf(With(Join({ LowRecord(1, false), LowRecord(8) }))),
        ElementsAre("tAIB3500: it has 2 depths, of which only that of 8 bits is read and kept"));
    EXPECT_THAT(LinesOf(With(Join({ Separator(), PlainBitmap{ .high = true }.Record() }))),
        ElementsAre("tAIB3500: it has no low-density bitmap: a handheld with a low-density screen "
                    "shows nothing"));
}

TEST_F(Validate, NoByteOfAFileSpeaksToTheTerminal)
{
    Iconset set = SoundSet();
    set.resources.push_back({ "\x1B]0;", 1, { 0, 0 } });
    set.resources.push_back({ "\x9B\xE9\n\x7F", 2, { 0, 0 } });
    WriteBytes(folder.File("set.prc"), set.File());

    const ToolRun run = RunTool({ "validate", folder.File("set.prc") });

    EXPECT_THAT(run.output, HasSubstr("\\x1B]0;1: a save leaves out what is no icon\n"));
    EXPECT_THAT(run.output, HasSubstr("\\x9B\xC3\xA9\\x0A\\x7F2: a save leaves out"));
    for (const char letter : run.output)
        EXPECT_TRUE(letter == '\n' || static_cast<unsigned char>(letter) >= 32) << int{ letter };
}

TEST_F(Validate, ALineIsAPlaceAndAText)
{
    for (const auto& entry : std::filesystem::directory_iterator(TestData("iconsets"))) {
        if (entry.path().extension() != ".prc")
            continue;
        const ToolRun run = RunTool({ "validate", entry.path() });
        std::istringstream output(run.output);
        for (std::string line; std::getline(output, line);)
            EXPECT_THAT(line, ::testing::ContainsRegex("^[A-Za-z0-9-]+: .+")) << entry.path();
    }
}

} // namespace
} // namespace vypx::test
