#include "document/IconStats.h"
#include "support/CompileFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// What a whole save makes of names and owners that are short or missing.
class SaveEdges : public Compiling {
protected:
    /// The index resource as text; empty when there is none.
    std::string SavedIndex() const
    {
        for (const Resource& resource : Saved())
            if (resource.type == "iTbl")
                return { resource.data.begin(), resource.data.end() };
        return {};
    }
};

TEST_F(SaveEdges, WithoutAFileNameTheFailureNamesNone)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    FileName.clear();

    EXPECT_EQ(WhyNot(), "there is no file name");
}

TEST_F(SaveEdges, AShortTypeOrCreatorIsFilledWithBlanks)
{
    WriteText(folder.File("AppList.dat"), "[Alpha]\nType=appl\nCreator={A}\n");
    Add("Alpha (Large Icon)", 3500, true, false);

    CompileIconset(TargetFromFlags());

    // characters 2 to 5 of "{A}" are "A}"
    EXPECT_EQ(SavedIndex(), std::string("applA}  \x0D\xAC\0\0\0\0\0\0", 16));
}

TEST_F(SaveEdges, IdsOfTheIndexAreThoseFrom3500To9999)
{
    for (const int id : { 3499, 3500, 9999, 10000 }) {
        IconTable.clear();
        Add("Alpha (Large Icon)", id, true, false);
        CompileIconset(TargetFromFlags());
        EXPECT_EQ(SavedIndex().empty(), id < 3500 || id > 9999) << id;
    }
}

TEST_F(SaveEdges, TheVersionsBlanksGoAtItsEndOnly)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    const auto saved = [&](const std::string& version) {
        VersionString = version;
        CompileIconset(TargetFromFlags());
        // The index follows at an even offset.
        const Bytes data = Saved().at(1).data;
        return std::string(data.begin(), data.end());
    };

    EXPECT_EQ(saved(" 3 20  "), std::string(" 3 20\0", 6));
    EXPECT_EQ(saved("   "), std::string("\0\0", 2)) << "and one byte up to an even offset";
}

} // namespace
} // namespace vypx::test
