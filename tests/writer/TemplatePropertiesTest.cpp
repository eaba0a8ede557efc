#include "document/IconKinds.h"
#include "support/TemplateFixture.h"

#include <algorithm>
#include <rapidcheck/gtest.h>
#include <set>

namespace vypx::test {

namespace {

/// Random documents: icons of applications, of Palm OS items, of the launcher and of applications
/// that no catalog lists, with pictures and without.
class TemplateProperties : public TemplateFixture {
protected:
    static bool Sometimes(int percent) { return *rc::gen::inRange(0, 100) < percent; }

    void Begin()
    {
        DeleteWorkingFiles({ ".bmp" });
        IconTable.clear();
        BitmapTable.assign(1, {});
        BitmapRow = 0;
        Itbl.assign(1, {});
        AppTable.assign(1, {});
        PalmTable.assign(1, {});
        VYTable.assign(1, {});
        Tree.Clear();
        Tree.SetRoot(DatabaseName);
        KeepUnknown = FileLoaded = true;
        FileName = folder.File("out.prc");
        m_owners.clear();
        m_ids.clear();
        listener.messages.clear();
    }

    /// A type and creator that nobody has yet. Few creators, so that an application and a panel
    /// often share one.
    Owner NewOwner()
    {
        for (;;) {
            Owner owner{ Sometimes(70) ? "appl" : "panl", "" };
            for (int i = 0; i < 4; ++i)
                owner.creator += *rc::gen::element('A', 'b', 'z', '0', '~', '!');
            if (Sometimes(20))
                owner.creator.back() = ' ';
            if (m_owners.insert(owner.type + owner.creator).second)
                return owner;
        }
    }
    int NewId(int lowest, int end)
    {
        for (;;) {
            const int id = *rc::gen::inRange(lowest, end);
            if (m_ids.insert(id).second)
                return id;
        }
    }
    /// One of the applications' own, or one that the applications before share.
    int IdOfAnApplication()
    {
        if (!m_shared.empty() && Sometimes(20))
            return *rc::gen::elementOf(m_shared);
        m_shared.push_back(Sometimes(10) && m_ids.insert(3500).second ? 3500
                : Sometimes(10) && m_ids.insert(9999).second          ? 9999
                                                                      : NewId(3500, 10000));
        return m_shared.back();
    }

    void AddRow(const std::string& label, const std::string& key, std::string_view kind,
        const Owner& owner = {})
    {
        IconRow row{ label, key, "NEW", "NEW", 1, std::string(kind), owner };
        for (const IconRow& other : IconTable)
            if (other.ResourceKey == key) {
                row.LowResFile = other.LowResFile;
                row.HighResFile = other.HighResFile;
            }
        IconTable.push_back(row);
        if (Sometimes(30))
            Fill(Sometimes(50) ? SlotLG : SlotSM, label, Plain(8, 8, { 200, 56, 199 }));
    }
    void AddApplications(
        std::vector<CatalogRow>& table, std::string_view kind, const std::string& file)
    {
        std::string text;
        m_shared.clear();
        for (int left = *rc::gen::inRange(0, 6); left > 0; --left) {
            const std::string name = std::string(kind) + " " + std::to_string(left);
            const Owner owner = NewOwner();
            table.push_back({ name, owner.type, owner.creator, "" });
            text += "[" + name + "]\nType=" + owner.type + "\nCreator={" + owner.creator + "}\n";
            for (const char* size : { " (Large Icon)", " (Small Icon)" })
                if (Sometimes(70))
                    AddRow(name + size, "tAIB" + std::to_string(IdOfAnApplication()), kind, owner);
        }
        WriteText(folder.File(file), text);
    }
    void AddLauncherIcons()
    {
        for (int left = *rc::gen::inRange(0, 4); left > 0; --left) {
            const int id = Sometimes(50) ? NewId(1, 3500) : NewId(10000, 65536);
            const std::string name = "Launcher " + std::to_string(left) + " (Small Icon)";
            VYTable.push_back({ name, std::to_string(id), "" });
            AddRow(name, (Sometimes(50) ? "tAIB" : "Tbmp") + std::to_string(id), KindVY);
        }
    }
    void AddUnknownIcons()
    {
        for (int left = *rc::gen::inRange(0, 4); left > 0; --left) {
            const Owner owner = NewOwner();
            ItblRow record{ owner.type, owner.creator, 0, 0 };
            for (int* id : { &record.largeId, &record.smallId }) {
                if (Sometimes(30))
                    continue;
                *id = NewId(3500, 10000);
                const std::string key = "tAIB" + std::to_string(*id);
                AddRow(key + " (" + owner.creator
                        + (id == &record.largeId ? " - Large) " : " - Small) "),
                    key, KindUnknown, owner);
            }
            Itbl.push_back(record);
        }
    }
    /// The rows in another order, as a user adds icons.
    static void Shuffle()
    {
        for (std::size_t i = IconTable.size(); i > 1; --i)
            std::swap(IconTable[i - 1], IconTable[*rc::gen::inRange<std::size_t>(0, i)]);
    }

    /// What a template keeps of a row.
    static std::set<std::string> Kept()
    {
        std::set<std::string> kept;
        for (const IconRow& row : IconTable)
            RC_ASSERT(kept.insert(row.IconLabel + "|" + row.ResourceKey + "|" + row.IconKind + "|"
                              + row.owner.type + row.owner.creator + "|"
                              + std::to_string(row.IconState.value_or(-1)))
                          .second);
        return kept;
    }

private:
    std::set<std::string> m_owners;
    std::set<int> m_ids;
    std::vector<int> m_shared;
};

RC_GTEST_FIXTURE_PROP(TemplateProperties, ATemplateBringsTheIconsBackAndIsItsOwnTemplate, ())
{
    Begin();
    AddApplications(AppTable, KindApp, "AppList.dat");
    AddApplications(PalmTable, KindPalm, "PalmApp.dat");
    AddLauncherIcons();
    AddUnknownIcons();
    Shuffle();
    UsePackbits = Sometimes(50);
    const std::set<std::string> before = Kept();

    Export(*rc::gen::element(ColorDepth::Bits4, ColorDepth::Bits8, ColorDepth::Bits16));
    const Bytes first = FileWithoutDates();
    RC_ASSERT(LoadTemplate(Path()) == LoadResult::Opened);

    RC_ASSERT(listener.messages.empty());
    RC_ASSERT(Kept() == before);
    for (const IconRow& row : IconTable)
        RC_ASSERT(row.LowResFile == "NEW" && row.HighResFile == "NEW");
    RC_ASSERT(DatabaseName == "Set");

    Export();
    const bool isTheSame = FileWithoutDates() == first;
    RC_ASSERT(isTheSame);
}

} // namespace
} // namespace vypx::test
