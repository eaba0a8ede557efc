#include "writer/TemplateExport.h"

#include "support/Netpbm.h"
#include "support/PalmPdb.h"
#include "support/TemplateFixture.h"

#include <filesystem>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using TemplateExport = TemplateFixture;

std::vector<std::string> KeysOf(const std::vector<ResourceRow>& rows)
{
    std::vector<std::string> keys;
    for (const ResourceRow& row : rows)
        keys.push_back(row.key);
    return keys;
}

TEST_F(TemplateExport, EveryIconThatIsKeptGivesItsResourceOnce)
{
    Fill(SlotLG, Small, Plain(4, 4, { 1, 2, 3 }));
    AddIcon("Beta (Small Icon)", "tAIB3505");
    Row("Beta (Small Icon)").IconState = 0;

    const std::vector<ResourceRow> rows = PictureRows(true);

    EXPECT_THAT(
        KeysOf(rows), ElementsAre("tAIB3500", "tAIB3501", "tAIB3601", "tAIB3602", "Tbmp11000"));
    EXPECT_EQ(rows[0].lowFile, "NEW");
    EXPECT_EQ(rows[0].highFile, "NEW");
    EXPECT_EQ(rows[1].lowFile, "NEW");
    EXPECT_THAT(KeysOf(PictureRows()), ElementsAre("tAIB3501")) << "a save takes pictures alone";
}

TEST_F(TemplateExport, UnknownIconsGoWhereTheyAreNotKept)
{
    KeepUnknown = false;

    EXPECT_THAT(KeysOf(PictureRows(true)), ElementsAre("tAIB3500", "tAIB3501", "Tbmp11000"));
    Export();
    EXPECT_EQ(Index(),
        (std::vector<std::string>{
            "appl ALPH 3500 3501", "appl clck 3500 0", "panl B    3504 0" }));
}

TEST_F(TemplateExport, TheIndexNamesIconsWithoutPictures)
{
    Itbl = { {}, { "appl", "ABCD", 3601, 3602 } };

    const IconIndex index = CollectIconIndex(true);

    EXPECT_EQ(index.values.size(), 4u);
    EXPECT_EQ(index.keys.size(), index.values.size());
    EXPECT_THAT(CollectIconIndex().values, IsEmpty()) << "of a save";
    Export();
    EXPECT_EQ(Index(),
        (std::vector<std::string>{ "appl ABCD 3601 3602", "appl ALPH 3500 3501", "appl clck 3500 0",
            "panl B    3504 0" }));
}

TEST_F(TemplateExport, IconsMarkedForDeletionAreInNeitherList)
{
    Row(Small).IconState = 0;
    Row(Launcher).IconState = 0;

    Export();

    EXPECT_THAT(
        TemplateKeys(), ElementsAre("tAIB3500", "tAIB3601", "tAIB3602", "tver1000", "iTbl1000"));
    EXPECT_EQ(Index().front(), "appl ALPH 3500 0");
}

TEST_F(TemplateExport, WithoutAnyApplicationThereIsNoIndex)
{
    for (const char* label : { Large, Small, Sharing, Missing, Unknown, UnknownSmall })
        Row(label).IconState = 0;

    Export();

    EXPECT_THAT(TemplateKeys(), ElementsAre("Tbmp11000", "tver1000"));
}

TEST_F(TemplateExport, TheDocumentItsFileAndItsFilesStayAsTheyWere)
{
    CreateBackup = true;
    Fill(SlotSM, Large, Many(8, 8), Rgb{ 12, 34, 56 });
    WriteText(FileName, "the iconset");
    WriteText(Path(), "an older template");
    LastDirIconsetSave = "somewhere";
    const std::string name = FileName;
    const auto before = State();
    const Bytes picture = ReadBytes(WorkPath("tAIB3500.bmp"));

    for (const bool changed : { false, true }) {
        IconsetChanged = changed;
        Export();
        EXPECT_EQ(IconsetChanged, changed);
    }

    EXPECT_EQ(State(), before);
    EXPECT_EQ(FileName, name);
    EXPECT_EQ(DatabaseName, "Set");
    EXPECT_TRUE(FileLoaded);
    EXPECT_FALSE(LoadedAsTemplate);
    EXPECT_EQ(ReadBytes(WorkPath("tAIB3500.bmp")), picture);
    EXPECT_EQ(ReadText(FileName), "the iconset");
    for (const std::string& file : { FileName, Path() })
        EXPECT_FALSE(FileExists(file + ".bak")) << file;
    EXPECT_EQ(PassingFiles(folder.Path()), 0u);
    EXPECT_EQ(TemplatePath, Path());
    EXPECT_FALSE(ExportingTemplate);
    EXPECT_EQ(LastDirIconsetSave, "somewhere");
}

TEST_F(TemplateExport, AFailureLeavesTheOldFileAndTheProgramReadyToSave)
{
    Fill(SlotSM, Large, Many(8, 8));
    std::filesystem::create_directory(Path()); // nobody can write over a folder
    IconsetChanged = true;

    EXPECT_THROW(ExportTemplate(Path()), SaveFailure);
    EXPECT_THROW(ExportTemplate(folder.File("no/such/t.vpt")), SaveFailure);

    EXPECT_FALSE(ExportingTemplate);
    EXPECT_TRUE(std::filesystem::is_directory(Path()));
    EXPECT_FALSE(std::filesystem::exists(folder.File("no")));
    EXPECT_EQ(PassingFiles(folder.Path()), 0u);
    EXPECT_TRUE(IconsetChanged);
    EXPECT_EQ(WhyNot(), "");
    EXPECT_THAT(SavedKeys(), ElementsAre("tAIB3500", "tver1000", "iTbl1000")) << "an iconset";
}

TEST_F(TemplateExport, AFailedOneLeavesAnOlderTemplateWhole)
{
    Export();
    const Bytes old = ReadBytes(Path());
    std::filesystem::remove_all(WorkFolder());

    EXPECT_THROW(ExportTemplate(Path()), SaveFailure);

    EXPECT_FALSE(ExportingTemplate);
    EXPECT_EQ(ReadBytes(Path()), old);
}

TEST_F(TemplateExport, NoPictureAndNoColourOfThemLeaves)
{
    Export();
    const Bytes empty = FileWithoutDates();
    const Rgb marker{ 0xC6, 0x38, 0xC6 };
    for (const char* label : { Large, Small, Unknown, UnknownSmall, Launcher }) {
        Fill(SlotLG, label, Plain(64, 44, marker), marker);
        Fill(SlotSM, label, Many(32, 22), Rgb{ 12, 34, 56 });
    }

    for (const ColorDepth depth : { ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16 })
        for (const bool packed : { false, true }) {
            UsePackbits = packed;
            Export(depth);

            const Bytes file = FileWithoutDates();
            EXPECT_EQ(file, empty) << packed;
            EXPECT_LT(file.size(), 1000u);
            const std::string text(file.begin(), file.end());
            EXPECT_EQ(text.find("\xC6\x38\xC6"), std::string::npos);
            EXPECT_EQ(text.find("\xC1\xD8\xC1\xD8"), std::string::npos) << "at 16 bits";
        }
}

TEST_F(TemplateExport, TheChecksComeInTheirOrderAndWords)
{
    StatTotal = StatLowRes = StatHighRes = 0;
    FileLoaded = false;
    EXPECT_EQ(WhyNotExported(), "No file loaded");

    FileLoaded = true;
    EXPECT_EQ(WhyNotExported(), "Can't save. The iconset doesn't contain any icons.");
    StatTotal = 1;
    EXPECT_EQ(WhyNotExported(), "Can't save. The iconset doesn't contain any icons.");

    StatTotal = 0;
    StatLowRes = 1;
    EXPECT_EQ(WhyNotExported(), "Can't save. You must add some icons first.");
    StatLowRes = 0;
    StatHighRes = 1;
    EXPECT_EQ(WhyNotExported(), "Can't save. You must add some icons first.");

    StatTotal = 1;
    EXPECT_EQ(WhyNotExported(), std::nullopt);
}

TEST_F(TemplateExport, OnPurposeUnknownIconsWithPicturesDoNotSuffice)
{
    Fill(SlotLG, Unknown, Plain(4, 4, { 1, 2, 3 }));
    for (const char* label : { Large, Small, Sharing, Missing, UnknownSmall, Launcher })
        Row(label).IconState = 0;

    CountIcons();

    EXPECT_EQ(WhyNotExported(), "Can't save. The iconset doesn't contain any icons.");
}

/// The whole file, read by Perl's Palm::PDB, and every picture in it, read by netpbm.
TEST_F(TemplateExport, OthersReadEveryResourceAndEveryPicture)
{
    SKIP_WITHOUT_PALM_PDB();
    SKIP_WITHOUT_NETPBM();
    Fill(SlotLG, Large, Many(64, 44));
    Export();

    const std::string printed = PrintedByPalmPdb(Path(),
        "print \"$pdb->{name} $pdb->{type} $pdb->{creator} \","
        " $pdb->{attributes}{ResDB} ? 1 : 0, \"\\n\";"
        "for (@{$pdb->{resources}}) { print \"$_->{type}$_->{id}\\n\";"
        " open F, \">$ARGV[1]/$_->{type}$_->{id}.rec\"; print F $_->{data}; close F }",
        folder.Path());

    EXPECT_EQ(printed,
        "Set ICON VNTR 1\ntAIB3500\ntAIB3501\ntAIB3601\ntAIB3602\nTbmp11000\ntver1000\niTbl1000\n");
    const vypx::Picture white = Plain(1, 1, { 255, 255, 255 });
    for (const char* key : { "tAIB3500", "tAIB3501", "tAIB3601", "tAIB3602", "Tbmp11000" }) {
        const std::string file = folder.File(key + std::string(".rec"));
        EXPECT_EQ(PictureFrom("palmtopnm -quiet '" + file + "'"), white) << key;
        const Bytes family = ReadBytes(file);
        const std::size_t mark = ByteView(family).U16(10) * 4u;
        ASSERT_EQ(ByteView(family).U8(mark + 8), 0xFF) << key;
        WriteBytes(folder.File("high"),
            { family.begin() + static_cast<std::ptrdiff_t>(mark) + 16, family.end() });
        EXPECT_EQ(PictureFrom("palmtopnm -quiet '" + folder.File("high") + "'"), white) << key;
    }
}

} // namespace
} // namespace vypx::test
