#include "catalogs/PalmSystemPage.h"

#include "support/EditFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PalmPage : public Editing {
protected:
    PalmPage()
    {
        Catalogs("", Entry("Palm Clock", "CLCK") + Entry("Palm Mail", "mail"));
        before = PalmItems();
    }

    PalmSysResult New(const PalmSysBoxes& typed) { return Apply({ .boxes = typed }); }
    PalmSysResult Edit(const std::string& current, const PalmSysBoxes& typed)
    {
        return Apply({ .boxes = typed, .edits = true, .current = current });
    }
    PalmSysResult Apply(const PalmSysChange& change)
    {
        boxes.clear();
        return ApplyPalmSys(change, show);
    }
    /// The one box of a change that is not applied.
    CatalogBox Refused(const PalmSysChange& change)
    {
        EXPECT_FALSE(Apply(change).wasApplied);
        EXPECT_EQ(PalmItems(), before);
        EXPECT_EQ(boxes.size(), 1u);
        return boxes.empty() ? CatalogBox{} : boxes[0];
    }

    std::string before;
};

TEST_F(PalmPage, ANewEntryIsAppendedWithItsPrefix)
{
    const PalmSysResult result = New({ "  Dial  ", "panl", "d al" });

    EXPECT_TRUE(result.wasApplied);
    EXPECT_EQ(result.name, "Palm Dial");
    ASSERT_TRUE(result.afterwards);
    EXPECT_EQ(*result.afterwards, Plain("Icon has been added"));
    EXPECT_EQ(PalmItems(), before + Entry("Palm Dial", "d al", "panl"));
    EXPECT_THAT(boxes, IsEmpty());
}

/// Each fails its own check and all that follow.
TEST_F(PalmPage, TheFirstCheckThatFailsIsTold)
{
    const auto refused = [&](const PalmSysBoxes& typed) { return Refused({ .boxes = typed }); };

    EXPECT_EQ(refused({ "\t", "", "" }), Plain("An icon name is required"));
    EXPECT_EQ(refused({ "  ", "", "" }), Plain("An icon name is required"));
    EXPECT_EQ(refused({ "CLOCK", "ap", "\x01" }),
        Plain("This Palm system icon name already exists, please use a different name or use the "
              "edit function."));
    EXPECT_EQ(refused({ "Dial", "lib", "C" }), Plain("The Type field must contain 4 characters"));
    EXPECT_EQ(refused({ "Dial", "libr", "C" }),
        (CatalogBox{ .text = "The Palm Type is needs to be either appl or panl.",
            .title = "Unusual Entry",
            .icon = CatalogBox::Icon::Information,
            .asks = true }));
    EXPECT_EQ(refused({ "Dial", "appl", "CL\x01" }),
        Plain("The Creator field must contain 4 characters"));
    EXPECT_EQ(refused({ "Dial", "appl", "CLC\x01" }),
        Plain("Error! The Creator field contains an invalid character."));
    EXPECT_EQ(refused({ "Dial", "appl", "CLC\x7F" }),
        Plain("Error! The Creator field contains an invalid character."));
    EXPECT_EQ(refused({ "Dial", "appl", "mail" }),
        Plain("Error! The icon \"Palm Mail\", has the same Creator ID as the one you have "
              "entered."));
}

TEST_F(PalmPage, OnPurposeAnotherTypeIsNotSavedWhicheverButtonIsPressed)
{
    for (const bool ok : { true, false }) {
        answer = ok;
        Refused({ .boxes = { "Dial", "DATA", "DIAL" } });
    }
}

TEST_F(PalmPage, ANewNameThatTheReadersDoNotSeeIsTaken)
{
    Catalogs("", Entry(std::string(8190, 'x'), "XXXX") + Entry("Palm Dial", "DIAL"));
    before = PalmItems();

    EXPECT_EQ(Refused({ .boxes = { "dial", "appl", "NEWD" } }),
        Plain("Error! An icon with that name already exists."));
}

TEST_F(PalmPage, AnEntryWithoutACreatorTakesItsName)
{
    Catalogs("", Entry("Palm Clock", "CLCK") + "[Palm Dial]\nType=appl\n");
    before = PalmItems();

    EXPECT_EQ(Refused({ .boxes = { "dial", "appl", "NEWD" } }),
        Plain("This Palm system icon name already exists, please use a different name or use the "
              "edit function."));
    EXPECT_EQ(Refused({ { "dial", "appl", "NEWD" }, true, "Palm Clock" }),
        Plain("Error! An icon with that name already exists."));
    EXPECT_TRUE(Edit("Palm Dial", { "Dial", "appl", "NEWD" }).wasApplied) << "but it may be mended";
    EXPECT_EQ(PalmItems(), Entry("Palm Clock", "CLCK") + Entry("Palm Dial", "NEWD"));
}

TEST_F(PalmPage, ATakenNameIsToldBeforeATakenCreator)
{
    EXPECT_EQ(Refused({ { "mail", "appl", "CLCK" } }),
        Plain("This Palm system icon name already exists, please use a different name or use the "
              "edit function."));
    WriteText(
        PalmAppFile(), Entry("Palm Clock", "CLCK") + "[Palm Mail]\nType=appl\nCreator=MAIL\n");
    before = PalmItems();
    EXPECT_EQ(Refused({ { "mail", "appl", "MAIL" }, true, "Palm Clock" }),
        Plain("Error! An icon with that name already exists."));
}

TEST_F(PalmPage, TwoEntriesOfOneCreatorAreToldAtTheNextStart)
{
    Edit("Palm Clock", { "Clock", "appl", "mail" });
    ReadTables();

    std::vector<std::string> told;
    ChkDupCreators([&](std::string_view text) { told.emplace_back(text); });

    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told[0],
        "An icon with a duplicate Creator ID was found in the Palm System List.\n\n"
        "Please press Edit App List and remove either \"Palm Clock\" or \"Palm Mail\".\n\n"
        "See the help section on Duplicate Creator IDs  more information.");
}

TEST_F(PalmPage, AnEditReplacesTheOldEntryByOneAtTheEnd)
{
    const PalmSysResult result = Edit("Palm Clock", { "Watch", "panl", "WTCH" });

    EXPECT_TRUE(result.wasApplied);
    EXPECT_FALSE(result.afterwards);
    EXPECT_EQ(PalmItems(), Entry("Palm Mail", "mail") + Entry("Palm Watch", "WTCH", "panl"));
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(PalmPage, AnEditMayKeepTheNameOrChangeItsCaseAlone)
{
    EXPECT_TRUE(Edit("Palm Clock", { "Clock", "appl", "NEWC" }).wasApplied);
    ReadTables();
    EXPECT_TRUE(Edit("Palm Clock", { "CLOCK", "appl", "NEWC" }).wasApplied);

    EXPECT_EQ(PalmItems(), Entry("Palm Mail", "mail") + Entry("Palm CLOCK", "NEWC"));
}

TEST_F(PalmPage, AnEditToTheNameOfAnotherIsRefusedInAnyCase)
{
    EXPECT_EQ(Refused({ { "MAIL", "appl", "CLCK" }, true, "Palm Clock" }),
        Plain("Error! An icon with that name already exists."));
    EXPECT_EQ(Refused({ { "MAIL", "appl", "CLC" }, true, "Palm Clock" }),
        Plain("The Creator field must contain 4 characters"))
        << "the boxes' own texts come first";
}

TEST_F(PalmPage, OnPurposeAnEditCanEndWithTwoEntriesOfOneCreator)
{
    EXPECT_TRUE(Edit("Palm Clock", { "Clock", "appl", "mail" }).wasApplied);

    EXPECT_EQ(PalmItems(), Entry("Palm Mail", "mail") + Entry("Palm Clock", "mail"));
}

TEST_F(PalmPage, AnEditFindsACreatorThatIsStoredWithoutBraces)
{
    WriteText(
        PalmAppFile(), Entry("Palm Clock", "CLCK") + "[Palm Mail]\nType=appl\nCreator=MAIL\n");
    before = PalmItems();

    EXPECT_EQ(Refused({ { "Clock", "appl", "MAIL" }, true, "Palm Clock" }),
        Plain("Error! The icon \"Palm Mail\", has the same Creator ID as the one you have "
              "entered."));
}

TEST_F(PalmPage, AnEditWithoutACurrentEntryAddsOne)
{
    EXPECT_TRUE(Edit("", { "Dial", "appl", "DIAL" }).wasApplied);

    EXPECT_EQ(PalmItems(), before + Entry("Palm Dial", "DIAL"));
}

TEST_F(PalmPage, AMissingFileIsToldAndMade)
{
    std::filesystem::remove(PalmAppFile());
    ReadTables();

    EXPECT_TRUE(New({ "Dial", "appl", "DIAL" }).wasApplied);

    EXPECT_THAT(boxes, ElementsAre(Plain("Error! Can't find PalmApp.dat file.")));
    EXPECT_EQ(PalmItems(), Entry("Palm Dial", "DIAL"));
}

TEST_F(PalmPage, AMissingFileIsToldBeforeTheChecks)
{
    std::filesystem::remove(PalmAppFile());

    New({ "", "appl", "DIAL" });

    EXPECT_THAT(boxes,
        ElementsAre(
            Plain("Error! Can't find PalmApp.dat file."), Plain("An icon name is required")));
}

TEST_F(PalmPage, OnPurposeAFailedWriteIsToldAsAFailedDeletion)
{
    Block(PalmAppFile());
    const CatalogBox failed{ .text = "Delete Section Failed.",
        .icon = CatalogBox::Icon::Information };

    EXPECT_TRUE(Edit("Palm Clock", { "Watch", "appl", "WTCH" }).wasApplied);
    EXPECT_THAT(boxes, ElementsAre(failed));

    const PalmSysResult result = New({ "Dial", "appl", "DIAL" });
    EXPECT_THAT(boxes, ElementsAre(failed));
    EXPECT_FALSE(result.afterwards) << "nothing has been added";
}

TEST_F(PalmPage, TheBoxesShowAnEntryOfTheFile)
{
    WriteText(PalmAppFile(), "[Palm Clock]\nCreator=xABCDyz\nType=panl\n[Odd]\nCreator=\n[Palm]\n");

    EXPECT_EQ(PalmSysBoxesOf("Palm Clock"), (PalmSysBoxes{ "Clock", "panl", "ABCD" }));
    EXPECT_EQ(PalmSysBoxesOf("Palm"), (PalmSysBoxes{ "", "", "" }));
    EXPECT_EQ(PalmSysBoxesOf("Odd"), (PalmSysBoxes{ "", "", "" }));
    EXPECT_EQ(PalmSysBoxesOf("Something"), (PalmSysBoxes{ "hing", "", "" }))
        << "on purpose: whatever the five characters are";
}

} // namespace
} // namespace vypx::test
