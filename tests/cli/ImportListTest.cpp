#include "ImportFixture.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

/// What lists may look like, and what is told of those that can't be followed.
namespace vypx::test {

namespace {

using nlohmann::json;

class ImportList : public ImportFixture {
protected:
    ImportList() { Make("p.ppm", 15, 11); }

    /// What is told of a list with one line, without the program's name and the line's number.
    std::string ToldOf(std::string_view line)
    {
        const ToolRun run = Run(line);
        EXPECT_EQ(run.exitCode, 1) << line;
        EXPECT_FALSE(WroteOut()) << line;
        const std::string head = "pixelworks-cli: line 1: ";
        EXPECT_TRUE(run.errors.starts_with(head) && run.errors.ends_with('\n')) << run.errors;
        return run.errors.substr(head.size(), run.errors.size() - head.size() - 1);
    }
};

TEST_F(ImportList, MarkLineEndsEmptyLinesAndRemarksArePassedOver)
{
    const ToolRun run = Run("\xEF\xBB\xBF# for the small ones\r\n\r\n\n#\xFF\t\n"
                            "Fern (Small Icon)\thigh\tp.ppm\r\n"
                            "tAIB3504\thigh\tp.ppm");

    EXPECT_EQ(run.errors, "");
    const json icons = Dumped("out.prc")["icons"];
    EXPECT_EQ(Entry(icons, "label", "Fern (Small Icon)")["highResFile"], "tAIB3507-d144.bmp");
    EXPECT_EQ(Entry(icons, "label", "Palm Days (Small Icon)")["highResFile"], "tAIB3504-d144.bmp");
}

TEST_F(ImportList, WithoutLinesItIsAConversion)
{
    ASSERT_EQ(RunCommand("convert", {}).exitCode, 0);
    const Bytes converted = WithoutDates(ReadBytes(folder.File("out.prc")));

    for (const char* list : { "", "\n", "# nothing yet" }) {
        EXPECT_EQ(Run(list).exitCode, 0);
        EXPECT_EQ(WithoutDates(ReadBytes(folder.File("out.prc"))), converted);
    }
}

TEST_F(ImportList, PathsAreTakenFromItsFolder)
{
    std::filesystem::create_directory(folder.File("pictures/small"));
    std::filesystem::rename(folder.File("pictures/p.ppm"), folder.File("pictures/small/ \xC3\xA9"));

    EXPECT_EQ(Run("Fern (Small Icon)\thigh\tsmall/ \xC3\xA9\n").errors, "");
    EXPECT_EQ(Run("Fern (Small Icon)\thigh\t../pictures/small/ \xC3\xA9\n").errors, "");
    EXPECT_EQ(
        Run("Fern (Small Icon)\thigh\t" + folder.File("pictures/small/ \xC3\xA9")).errors, "");
}

TEST_F(ImportList, LabelsBeyondAsciiAreThoseOfDump)
{
    WriteText(folder.File("catalogs/AppList.dat"),
        "[Caf\xE9]\nType=appl\nCreator={AcNt}\n[B?]\nType=appl\nCreator={BrdL}\n");
    EXPECT_EQ(Run("Caf\xC3\xA9 (Large Icon)\thigh\tp.ppm\n").errors, "");
    EXPECT_EQ(Run("B? (Large Icon)\thigh\tp.ppm\n").errors, "");
    std::filesystem::remove(folder.File("out.prc"));

    EXPECT_EQ(ToldOf("B\xE2\x82\xAC (Large Icon)\thigh\tp.ppm\n"),
        "No icon has the label or resource \"B\xE2\x82\xAC (Large Icon)\".");
}

TEST_F(ImportList, AllWrongLinesAreToldAndNothingIsWritten)
{
    WriteText(folder.File("out.prc"), "old");
    WriteText(folder.File("pictures/text"), "no picture");
    Make("wide.ppm", 16, 11);

    const ToolRun run = Run("Fern\tlow\tp.ppm\n"
                            "\n"
                            "Fern (Small Icon)\tlow\tp.ppm\n"
                            "Fern (Small Icon)\tboth\tp.ppm\n"
                            "tAIB3509\tlow\tp.ppm\n"
                            "tAIB3507\tlow\tgone.ppm\n"
                            "tAIB3507\tlow\ttext\n"
                            "tAIB3507\tlow\twide.ppm\n"
                            "tAIB3507 low p.ppm\n");

    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors,
        "pixelworks-cli: line 1: No icon has the label or resource \"Fern\".\n"
        "pixelworks-cli: line 4: The second field must be high or low.\n"
        "pixelworks-cli: line 5: The icon \"tAIB3509\" takes no pictures.\n"
        "pixelworks-cli: line 6: gone.ppm was not imported: it is not there.\n"
        "pixelworks-cli: line 7: text was not imported: it is no picture that can be read here.\n"
        "pixelworks-cli: line 8: The picture has 16 x 11 pixels; this slot takes 15 x 11 at most.\n"
        "pixelworks-cli: line 9: An icon, high or low, and a picture are needed, with tabs between "
        "them.\n");
    EXPECT_EQ(ReadText(folder.File("out.prc")), "old");
}

TEST_F(ImportList, FieldsAreTakenToTheLetter)
{
    const std::string needed =
        "An icon, high or low, and a picture are needed, with tabs between them.";
    for (const char* line : { "tAIB3507", "tAIB3507\tlow", "tAIB3507\tlow\t", "\tlow\tp.ppm",
             "tAIB3507\t\tp.ppm", "tAIB3507\tlow\t\t0,0,1,1", " " })
        EXPECT_EQ(ToldOf(line), needed) << line;
    for (const char* line : { "tAIB3507\tlow\tp.ppm\t0,0,1,1\t", "tAIB3507\tlow\tp.ppm\t0,0,1,1\tx",
             "tAIB3507\tlow\tp.ppm\t\t" })
        EXPECT_EQ(ToldOf(line), "There are more than four fields.") << line;
    EXPECT_EQ(ToldOf("tAIB3507\tLow\tp.ppm"), "The second field must be high or low.");
    EXPECT_EQ(ToldOf("tAIB3507\tlow \tp.ppm"), "The second field must be high or low.");
    EXPECT_EQ(ToldOf("tAIB3505 (Zzzz - Large)\tlow\tp.ppm"),
        "No icon has the label or resource \"tAIB3505 (Zzzz - Large)\".")
        << "a blank is missing at its end";
    EXPECT_EQ(ToldOf("tAIB3507\tlow\tp.ppm "), "p.ppm  was not imported: it is not there.");
}

TEST_F(ImportList, ARegionIsFourWholeNumbers)
{
    for (const char* region :
        { "", " ", "0", "0,0", "0,0,1", "0,0,1,1,", "0,0,1,1,1", ",0,1,1", "0,,1,1", "0,0,,1",
            "0,0,1,", ",,,", "0,0,0,1", "0,0,1,0", "0,0,-1,1", "0,0,1,-1", "-1,0,1,1", "0,-1,1,1",
            "-0,0,1,1", "+0,0,1,1", "0,0,+1,1", " 0,0,1,1", "0, 0,1,1", "0 ,0,1,1", "0,0,1,1 ",
            "0.0,0,1,1", "0,0,1e1,1", "0x0,0,1,1", "0;0;1;1", "a,b,c,d", "2147483648,0,1,1",
            "0,0,4294967297,1", "0,0,1,99999999999999999999", "\xEF\xBC\x90,0,1,1", "0,0,1,1\r" })
        EXPECT_EQ(ToldOf(std::string("tAIB3507\tlow\tp.ppm\t") + region + "\r\n"),
            "The fourth field must be the region to cut as left,top,width,height, in whole pixels, "
            "width and height from 1 on.")
            << region;
    EXPECT_EQ(Run("tAIB3507\tlow\tp.ppm\t00,000,015,11\r\n").errors, "");
}

TEST_F(ImportList, ARegionOfWhatIsNoPictureIsToldAsThePictureIs)
{
    WriteText(folder.File("pictures/text"), "no picture");

    EXPECT_EQ(ToldOf("tAIB3507\tlow\tgone\t0,0,1,1"), "gone was not imported: it is not there.");
    EXPECT_EQ(ToldOf("tAIB3507\tlow\ttext\t0,0,1,1"),
        "text was not imported: it is no picture that can be read here.");
    EXPECT_EQ(
        ToldOf("Nobody\tlow\tp.ppm\t0,0,99,99"), "No icon has the label or resource \"Nobody\".");
}

TEST_F(ImportList, FoldersAndPipesAreNoPictures)
{
    ASSERT_EQ(mkfifo(folder.File("pictures/pipe").c_str(), 0600), 0);

    EXPECT_EQ(ToldOf("tAIB3507\tlow\t./"), "The path is that of a folder.");
    EXPECT_EQ(ToldOf("tAIB3507\tlow\t../pictures"), "pictures was not imported: it is a folder.");
    EXPECT_EQ(ToldOf("tAIB3507\tlow\tpipe"),
        "pipe was not imported: it is no picture that can be read here.");
}

TEST_F(ImportList, TextThatIsNoUtf8IsTold)
{
    for (const char* text : { "\xFF", "\x80", "\xC3", "\xC3x", "\xC0\xAF", "\xE0\x80\xAF",
             "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xF0\x9F\x98" })
        EXPECT_EQ(ToldOf("tAIB3507\tlow\t" + std::string(text)), "This is no UTF-8 text.")
            << json(Bytes(text, text + std::string_view(text).size()));
    for (const char* text : { "\xC2\xA0", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF" })
        EXPECT_EQ(ToldOf("tAIB3507\tlow\t" + std::string(text)),
            std::string(text) + " was not imported: it is not there.");
}

TEST_F(ImportList, AZeroByteEndsNoPath)
{
    EXPECT_EQ(
        ToldOf(std::string_view("tAIB3507\tlow\tp.ppm\0.png", 22)), "There is a zero byte in it.");
}

TEST_F(ImportList, WhatItSaysDoesNotMoveTheCursor)
{
    EXPECT_EQ(ToldOf("\x1B[2J\x7F\tlow\tp.ppm"), "No icon has the label or resource \"?[2J?\".");
    EXPECT_EQ(ToldOf("tAIB3507\tlow\t\xC2\x9B"
                     "2J\xC2\x80"),
        "?2J? was not imported: it is not there.");
    EXPECT_EQ(ToldOf("tAIB3507\tlow\t\x1B[2J"), "?[2J was not imported: it is not there.");
}

TEST_F(ImportList, LinesOfTenMegabytesAreToldInShort)
{
    std::string label(10'000'000, 'a');
    EXPECT_LT(ToldOf(label + "\tlow\tp.ppm").size(), 600u);
    EXPECT_LT(ToldOf("tAIB3507\tlow\t" + label).size(), 600u);
    for (std::size_t i = 0; i < label.size(); i += 2)
        label.replace(i, 2, "\xC3\xA9");
    const std::string told = ToldOf("x" + label + "\tlow\tp.ppm");
    EXPECT_TRUE(told.ends_with("\xC3\xA9...")) << "cut between two characters";
}

TEST_F(ImportList, ManyLinesAreFollowed)
{
    std::string list;
    for (int i = 0; i < 100'000; ++i)
        list += "Nobody\tlow\tp.ppm\n";
    for (int i = 0; i < 1000; ++i)
        list += "Fern (Small Icon)\tlow\tp.ppm\n";

    const ToolRun run = Run(list);

    EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 100'000);
    EXPECT_THAT(run.errors, ::testing::HasSubstr("line 100000: No icon"));
}

TEST_F(ImportList, OneThatCannotBeReadIsWrongUse)
{
    ASSERT_EQ(mkfifo(folder.File("pipe").c_str(), 0600), 0);
    for (const char* name : { "gone.txt", "pictures", "pipe" }) {
        const ToolRun run = RunCommand("import", { "--list", folder.File(name) });

        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(
            run.errors, "pixelworks-cli: the list can't be read: " + folder.File(name) + "\n");
        EXPECT_FALSE(WroteOut());
        EXPECT_FALSE(std::filesystem::exists(folder.File("work")));
    }
    EXPECT_EQ(RunCommand("import", {}).exitCode, 2);
}

} // namespace
} // namespace vypx::test
