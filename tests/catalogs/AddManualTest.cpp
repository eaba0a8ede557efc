#include "catalogs/AddApplication.h"

#include "support/EditFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AddManualTest : public Editing {
protected:
    /// The text of the one box that it gives; empty when it gives none and writes.
    std::string Told(const ManualEntry& entry)
    {
        boxes.clear();
        const bool isDone = AddManual(entry, show);
        EXPECT_EQ(isDone, boxes.empty());
        EXPECT_LE(boxes.size(), 1u);
        return boxes.empty() ? "" : boxes[0].text;
    }
};

TEST_F(AddManualTest, WritesWhatWasTyped)
{
    EXPECT_EQ(Told({ .name = "My App  ", .creator = " Ap ", .type = "appl" }), "");
    EXPECT_EQ(Told({ .name = "Clock", .creator = "clck", .type = "panl" }), "");

    EXPECT_EQ(Apps(), Entry("My App", " Ap ") + Entry("Clock Panel", "clck", "panl"));
}

/// Each row fails its own check and all that follow.
TEST_F(AddManualTest, TheFirstCheckThatFailsIsTold)
{
    EXPECT_EQ(Told({ "", "", "" }), "Invalid application name entered");
    EXPECT_EQ(Told({ "App", "", "" }), "The Creator ID needs to be at least 4 characters.");
    EXPECT_EQ(Told({ "App", "ABC", "ap" }), "The Creator ID needs to be at least 4 characters.");
    EXPECT_EQ(Told({ "App", "ABCD", "" }), "The Type ID needs to be at least 4 characters.");
    EXPECT_EQ(Told({ "App", "ABCD", "Pan" }), "The Type ID needs to be at least 4 characters.");
    EXPECT_EQ(
        Told({ "App", "ABCD", "libr" }), "The Type ID needs to be either \"appl\" or \"panl\".");
    EXPECT_EQ(
        Told({ "App", "ABCD", "Appl" }), "The Type ID needs to be either \"appl\" or \"panl\".");
    EXPECT_EQ(Apps(), "");
    EXPECT_EQ(boxes.at(0), Plain(boxes.at(0).text)) << "no icon, no title of its own";
}

TEST_F(AddManualTest, ANameOfBlanksIsNoneNotEvenForAPanel)
{
    for (const char* const name : { "   ", "\t", " \r\n\v\f" })
        for (const char* const type : { "appl", "panl" })
            EXPECT_EQ(Told({ name, "ABCD", type }), "Invalid application name entered");
    EXPECT_EQ(Told({ "\tApp\t", "ABCD", "panl" }), "");
    EXPECT_EQ(Apps(), Entry("App Panel", "ABCD", "panl"));
}

TEST_F(AddManualTest, ANameOfAnyCatalogInAnyCaseIsTaken)
{
    constexpr const char* Taken =
        "The application name already exists, please use a different name.";
    Catalogs(Entry("My App", "MyAp") + Entry("Sound Panel", "SndP", "panl"),
        Entry("Palm Clock", "clck"));
    VYTable = { {}, { "Start (Large Icon)", "2000", "" } };

    EXPECT_EQ(Told({ "MY APP ", "clck", "appl" }), Taken) << "before the Creators";
    EXPECT_EQ(Told({ " my app", "ABCD", "appl" }), Taken);
    EXPECT_EQ(Told({ "palm CLOCK", "ABCD", "appl" }), Taken);
    EXPECT_EQ(Told({ "start (large icon)", "ABCD", "appl" }), Taken);
    EXPECT_EQ(Told({ "Sound", "ABCD", "panl" }), Taken) << "its name is that of the panel";
    EXPECT_EQ(Told({ "Sound", "ABCD", "appl" }), "");
    EXPECT_EQ(Told({ "My", "ABCE", "appl" }), "") << "a part of a name is no reason";
}

TEST_F(AddManualTest, ANameThatTheReadersDoNotSeeIsTaken)
{
    const std::string apps = Entry(std::string(8190, 'x'), "XXXX") + Entry("App", "OTHR");
    Catalogs(apps, "");

    EXPECT_EQ(Told({ "app", "ABCD", "appl" }),
        "The application name already exists, please use a different name.");
    EXPECT_EQ(Apps(), apps);
}

TEST_F(AddManualTest, AnEntryWithoutACreatorTakesItsNameAllTheSame)
{
    const std::string apps = "[App]\nType=appl\n";
    Catalogs(apps, "");

    EXPECT_EQ(Told({ "APP", "ABCE", "appl" }),
        "The application name already exists, please use a different name.");
    EXPECT_EQ(Told({ "App", "ABCD", "panl" }), "");

    EXPECT_EQ(Apps(), apps + Entry("App Panel", "ABCD", "panl"));
}

/// The last name that the readers see is half a one: no entry of the file has it.
TEST_F(AddManualTest, ANameThatTheBufferCutTakesNone)
{
    Catalogs(Entry(std::string(8186, 'x'), "XXX1") + Entry("Abcdefgh", "XXX2"), "");
    const std::string half = AppTable.back().name;
    ASSERT_LT(half.size(), 8u);

    EXPECT_EQ(Told({ half, "ABCD", "appl" }), "");
}

TEST_F(AddManualTest, TheCreatorOfAPalmIconIsToldFirst)
{
    Catalogs(Entry("Other", "ABCD"), Entry("Palm Clock", "ABCD"));

    EXPECT_EQ(Told({ "App", "ABCD", "appl" }),
        "Error. The Palm System icon \"Palm Clock\" has the same Creator ID as the one you have "
        "entered.");
    EXPECT_EQ(boxes.at(0).icon, CatalogBox::Icon::None);
}

TEST_F(AddManualTest, TheCreatorOfAnApplicationIsToldWithTheStopIcon)
{
    const std::string apps = Entry("Other", "ABCD");
    Catalogs(apps, "");

    AddManual({ "App", "ABCD", "appl" }, show);

    EXPECT_THAT(boxes,
        ElementsAre(CatalogBox{
            .text = "The Creator ID you have entered is already being used by the application: "
                    "\n\n\"Other\"\n\nYou will need to delete the application \"Other\" first to "
                    "install this application.",
            .icon = CatalogBox::Icon::Stop }));
    EXPECT_EQ(Apps(), apps);
    EXPECT_EQ(Told({ "App", "ABCd", "appl" }), "") << "case counts";
}

TEST_F(AddManualTest, AFailedWriteIsToldAndEndsItAllTheSame)
{
    Block(AppListFile());

    EXPECT_TRUE(AddManual({ "App", "ABCD", "appl" }, show));

    EXPECT_THAT(boxes,
        ElementsAre(
            CatalogBox{ .text = "Failed to save value.", .icon = CatalogBox::Icon::Information }));
}

TEST_F(AddManualTest, BracketsInATypedNameComeBack)
{
    EXPECT_EQ(Told({ "[My] App]", "ABCD", "appl" }), "");

    ReadTables();
    EXPECT_EQ(AppTable.at(1).name, "[My] App]");
    EXPECT_THAT(boxes, IsEmpty());
}

} // namespace
} // namespace vypx::test
