#include "catalogs/AddApplication.h"
#include "catalogs/CatalogEdits.h"
#include "catalogs/PalmSystemPage.h"
#include "settings/LetterCase.h"
#include "support/EditFixture.h"

#include <map>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// Names and Creators that meet often, in cases of their own.
std::string AnyName()
{
    return *rc::gen::element<std::string>("Alpha", "ALPHA", "Beta", "Alpha Beta", "Gamma", "Gam",
        "Beta *2", "[Delta]", "Delta; x=1", "\xC9t\xE9");
}
std::string AnyCreator()
{
    return *rc::gen::element<std::string>(
        "AAAA", "BBBB", "CCCC", " x ", "    ", "a{b}", "\xE9\xFF;=");
}
std::string AnyType() { return *rc::gen::element<std::string>("appl", "panl"); }

/// Random sequences of edits of both catalogs.
class CatalogSequences : public Editing {
protected:
    /// What no edit names, comments and keys of others among it.
    static constexpr const char* Head = "; mine\r\n\r\n";
    static constexpr const char* Kept = "[Kept]\r\nType=appl\r\n; a comment\r\nCreator={KEPT}\r\n"
                                        "Note = \"x\" \r\nno key\r\n\r\n";
    static constexpr const char* Between = "; about Kept\r\n";
    static constexpr const char* End = "; end\r\n";

    ~CatalogSequences() override { FileLoaded = false; }

    void Begin()
    {
        FileLoaded = *rc::gen::arbitrary<bool>();
        for (const std::string& file : { AppListFile(), PalmAppFile() })
            WriteText(file, Before());
        fs::remove_all(SearchFolder);
        ReadTables();
    }

    static std::string Before()
    {
        return Head + Entry("Palm First", "FRST") + Between + Kept + Entry("Palm Last", "LAST")
            + End;
    }

    void AnyEdit()
    {
        const int edit = *rc::gen::inRange(0, 6);
        if (edit == 0)
            AddManual({ AnyName(), Padded(AnyCreator()), AnyType() }, show);
        else if (edit == 1)
            AddSingle(WrittenPrc("single.prc"), show);
        else if (edit == 2)
            SearchSome();
        else if (edit == 3)
            DeleteApplications(*rc::gen::container<std::vector<std::string>>(
                                   rc::gen::exec([] { return AnyName(); })),
                show);
        else if (edit == 4)
            ChangePalmItem();
        else
            DeletePalmItems(std::vector<std::string>{ "Palm " + AnyName() }, show);
        ReadTables();
    }

    /// A box holds four characters.
    static std::string Padded(std::string creator)
    {
        creator.resize(4, ' ');
        return creator;
    }
    static std::string WrittenPrc(const std::string& name)
    {
        Put(name, PrcFile(AnyName(), AnyType(), Padded(AnyCreator())));
        return InPalm(name);
    }
    void SearchSome()
    {
        for (const char* const name : { "a.prc", "b.prc" })
            WrittenPrc(name);
        Search();
    }
    void ChangePalmItem()
    {
        const bool edits = *rc::gen::arbitrary<bool>();
        const auto row = *rc::gen::inRange<std::size_t>(0, PalmTable.size());
        const std::string current = PalmTable[row].name;
        if (current != "Kept")
            ApplyPalmSys({ { AnyName(), AnyType(), Padded(AnyCreator()) }, edits, current }, show);
    }

    /// Nothing of it is an application that an edit names; a Palm item may be.
    static void RequireForeignText()
    {
        RC_ASSERT(Apps().starts_with(Before()));
        RC_ASSERT(PalmItems().starts_with(Head));
        const std::string items = PalmItems();
        const std::size_t kept = items.find(std::string(Between) + Kept);
        RC_ASSERT(kept != std::string::npos);
        RC_ASSERT(items.find(End, kept) != std::string::npos);
    }
    /// Every section is a row with its own type and Creator, and no name stands twice.
    static void RequireWholeRows(const std::vector<CatalogRow>& table)
    {
        std::map<std::string, int> names;
        for (std::size_t i = 1; i < table.size(); ++i) {
            RC_ASSERT(!table[i].name.empty());
            RC_ASSERT(table[i].creator.size() == 4u);
            RC_ASSERT(table[i].type.size() == 4u);
            RC_ASSERT(++names[LowerCase(table[i].name)] == 1);
        }
    }
};

RC_GTEST_FIXTURE_PROP(CatalogSequences, AreReadBackWholeAndKeepWhatOthersWrote, ())
{
    Begin();
    const int edits = *rc::gen::inRange(1, 15);
    for (int i = 0; i < edits; ++i) {
        AnyEdit();
        RequireForeignText();
        RequireWholeRows(AppTable);
        RequireWholeRows(PalmTable);
    }
}

} // namespace
} // namespace vypx::test
