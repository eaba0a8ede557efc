#include "forms/main/Notes.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

class NotesTest : public ::testing::Test {
protected:
    QLabel notSaved, others;
    Notes notes{ notSaved, others };

    NotesTest()
    {
        notSaved.hide();
        others.hide();
    }
    static bool IsShown(const QLabel& label) { return !label.isHidden(); }
};

TEST_F(NotesTest, AFailedSaveStandsUntilOneSucceeds)
{
    notes.SaveFailed("No room.");
    notes.Tell(Notes::Kind::Load, "2 pictures could not be stored.");
    notes.DocumentEnded();

    EXPECT_TRUE(IsShown(notSaved));
    EXPECT_EQ(notSaved.text(), "The iconset was not saved. No room.");

    notes.SaveSucceeded();
    EXPECT_FALSE(IsShown(notSaved));
}

TEST_F(NotesTest, OtherNotesStandBelowEachOther)
{
    notes.Tell(Notes::Kind::Catalog, "catalog");
    notes.Tell(Notes::Kind::Load, "load");

    EXPECT_TRUE(IsShown(others));
    EXPECT_EQ(others.text(), "load\ncatalog");
}

TEST_F(NotesTest, ANewNoteTakesThePlaceOfTheOneOfItsKind)
{
    notes.Tell(Notes::Kind::Load, "one");
    notes.Tell(Notes::Kind::Load, "two");
    EXPECT_EQ(others.text(), "two");

    notes.Tell(Notes::Kind::Load, {});
    EXPECT_FALSE(IsShown(others));
}

TEST_F(NotesTest, NotesOfADocumentGoWithItAndThoseOfCatalogsStay)
{
    for (const auto kind : { Notes::Kind::Load, Notes::Kind::Save, Notes::Kind::Name })
        notes.Tell(kind, "document");
    notes.Tell(Notes::Kind::Catalog, "catalog");

    notes.DocumentEnded();

    EXPECT_EQ(others.text(), "catalog");
}

} // namespace
} // namespace vypx::test
