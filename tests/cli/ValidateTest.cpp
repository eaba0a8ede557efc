#include "ValidateFixture.h"

#include <sys/stat.h>

namespace vypx::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Validate = ValidateFixture;

TEST_F(Validate, ASoundSetHasNothing) { EXPECT_THAT(LinesOf(SoundSet()), IsEmpty()); }

/// Files just saved, of the sample that is shipped, by the catalogs that are shipped.
TEST_F(Validate, WhatWeSaveIsClean)
{
    const std::vector<std::vector<std::string>> ways{ {}, { "--depth", "8-Bit" },
        { "--depth", "4-Bit" }, { "--packbits" }, { "--export-template" } };
    for (const std::vector<std::string>& way : ways) {
        const std::string out =
            folder.File(way.empty() || way[0] != "--export-template" ? "out.prc" : "out.vpt");
        std::filesystem::remove_all(folder.File("w"));
        std::vector<std::string> arguments{ "convert", VYPX_SHIPPED_DATA "/samples/first-set.prc",
            out, "--app-folder", VYPX_SHIPPED_DATA, "--work", folder.File("w") };
        arguments.insert(arguments.end(), way.begin(), way.end());
        const ToolRun saved = RunTool(arguments);
        ASSERT_EQ(saved.exitCode, 0) << saved.errors;

        const ToolRun run = RunTool({ "validate", out });
        const ToolRun withFolder = RunTool({ "validate", out, "--app-folder", VYPX_SHIPPED_DATA });

        EXPECT_EQ(run.output, "") << ::testing::PrintToString(way);
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(withFolder.output, "") << ::testing::PrintToString(way);
    }
}

TEST_F(Validate, ATemplateWithPicturesLosesThem)
{
    WriteBytes(folder.File("t.vpt"), WithAttribute(SoundSet().File()));

    const ToolRun run = RunTool({ "validate", folder.File("t.vpt") });

    EXPECT_THAT(run.output,
        HasSubstr("tAIB3500-d144: it has 64 x 44 pixels, where a template has one white one: a "
                  "load forgets it\n"));
}

TEST_F(Validate, WhatIsNoIconsetIsTold)
{
    EXPECT_THAT(LinesOf(Bytes(10, 0)), ElementsAre("load: Error! Invalid file!"));
    Iconset other = SoundSet();
    other.type = "appl";
    EXPECT_THAT(
        LinesOf(other), ElementsAre("load: This file doesn't appear to be a valid Vantry IconSet"));
}

TEST_F(Validate, WhatCannotBeReadIsTold)
{
    const auto outputOf = [](const std::string& file) {
        const ToolRun run = RunTool({ "validate", file });
        EXPECT_EQ(run.exitCode, 1);
        return run.output;
    };
    const std::string file = folder.File("set.prc"), words = "load: The file could not be read. ";
    EXPECT_EQ(outputOf(file), words + "(there is no such file)\n");
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(outputOf(file), words + "(it is a pipe or a device and no file)\n");
    EXPECT_EQ(outputOf("/dev/zero"), words + "(it is a pipe or a device and no file)\n");
    EXPECT_EQ(outputOf(folder.Path()), words + "(it is a folder)\n");
    WriteText(folder.File("large.prc"), "");
    std::filesystem::resize_file(folder.File("large.prc"), 26'777'217);
    EXPECT_EQ(outputOf(folder.File("large.prc")),
        words + "(it has 26777217 bytes, and no more than 26777216 are looked at)\n");
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
    EXPECT_THAT(RunTool({ "validate", folder.File("set.prc") }).output,
        HasSubstr("header: a save makes its version 1\n"))
        << "of version 0";
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
    set.resources[2].data = { '1', '.', '0', 0, 'x', 0 };

    EXPECT_THAT(LinesOf(set),
        ::testing::IsSupersetOf({ "code1: a save leaves out what is no icon",
            "abmp3600: its pictures are of a kind that is not read: a save leaves it out",
            "tAIB3500: it stands in the list more than once: a save keeps one",
            "iTbl1001: only the first index of the list is read",
            "tver1000: a save leaves out what stands behind the zero of its text" }));
}

TEST_F(Validate, ALabelThatIsTakenIsToldOfItsResource)
{
    Iconset set = SoundSet();
    set.resources.push_back({ "Tbmp", 3500, Family(1) });

    EXPECT_THAT(LinesOf(set),
        ::testing::IsSupersetOf({ "load: Warning, file contains a duplicate resource!",
            "Tbmp3500: the label of its icon is another one's already" }));
}

TEST_F(Validate, TheIndexIsJudged)
{
    EXPECT_THAT(LinesOf(WithIndex({ IndexRecord("appl", "date", 3500, 3501),
                    IndexRecord("appl", "NONE", 3502, 0), IndexRecord("abcd", "date", 0, 0) })),
        ElementsAre("iTbl1000: record 2 (appl NONE) names the large icon 3502, which is not in the "
                    "file",
            "iTbl1000: record 3 (abcd date) names no icon: a save leaves it out"));
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

TEST_F(Validate, OwnersThatASaveLosesAreTold)
{
    const Bytes known = IndexRecord("appl", "date", 3500, 3501);
    EXPECT_THAT(LinesOf(WithIndex({ known, IndexRecord("appl", "UNKN", 3500, 0) })),
        ElementsAre("iTbl1000: record 2 (appl UNKN) names the large icon 3500: a save names none"))
        << "the known one has it";

    Iconset set = SoundSet();
    set.resources.insert(set.resources.begin() + 2, { "tAIB", 3502, Family(0x11, 30, 22) });
    const auto linesWith = [&](std::initializer_list<Bytes> records) {
        set.resources[4].data = Join(records);
        return LinesOf(set);
    };
    EXPECT_THAT(linesWith({ known, IndexRecord("appl", "UNK1", 3502, 0) }), IsEmpty())
        << "an owner that no catalog knows is neither refused nor lost";
    EXPECT_THAT(linesWith({ known, IndexRecord("appl", "UNK1", 3502, 0),
                    IndexRecord("appl", "UNK2", 3502, 0) }),
        ElementsAre("iTbl1000: record 2 (appl UNK1) names the large icon 3502: a save names none"));
    EXPECT_THAT(linesWith({ known, IndexRecord("appl", "UNK1", 3502, 3502) }),
        ElementsAre("iTbl1000: record 2 (appl UNK1) names the large icon 3502: a save names none"));
}

TEST_F(Validate, WhatTheCatalogsDecideOfASaveIsCalledSo)
{
    EXPECT_THAT(LinesOf(WithIndex({ IndexRecord("appl", "UNKN", 3500, 3501) })),
        ElementsAre("save: Error! Can't save an iconset that only contains unknown icons. (with "
                    "these catalogs; see --app-folder)"));
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
