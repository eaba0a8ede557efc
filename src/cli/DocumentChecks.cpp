#include "cli/DocumentChecks.h"

#include "cli/FileChecks.h"
#include "companion/BitmapFamilies.h"
#include "companion/DatabaseLayout.h"
#include "companion/DensityMark.h"
#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/IconStats.h"
#include "document/Slot.h"
#include "reader/IconTableResource.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"

namespace vypx {

namespace {

constexpr std::string_view NothingIsSaved = ": nothing can be saved";

/// The whole of what goes into a row's resource, where its pictures can be saved; what keeps them
/// from it is told.
class SavedSizes {
public:
    SavedSizes(const JudgedPictures& pictures, Findings& findings)
        : m_pictures(pictures)
        , m_findings(findings)
    {
    }

    std::size_t Of(const ResourceRow& row)
    {
        if (LoadedAsTemplate)
            return FamilyWithoutPictures(row, Palette4).size();
        const std::size_t low = OfPicture(row.lowFile), high = OfPicture(row.highFile);
        if (low != 0 && !row.highFile.empty() && !CanLeadOn(low))
            TellTooLarge(row.lowFile);
        return low + (row.highFile.empty() ? 0 : DensityMarkSize + high);
    }

private:
    std::size_t OfPicture(const std::string& file)
    {
        if (file.empty())
            return 0;
        const std::optional<JudgedPictures::Record> record = m_pictures.RecordOf(file);
        if (!record)
            Tell(file, "it gives no picture");
        else if (record->isTooLarge)
            TellTooLarge(file);
        return record ? record->bytes : 0;
    }
    void TellTooLarge(const std::string& file) { Tell(file, RecordTooLarge().what()); }
    void Tell(const std::string& file, const std::string& why)
    {
        m_findings.Add(file.substr(0, file.rfind('.')), why + std::string(NothingIsSaved));
    }

    const JudgedPictures& m_pictures;
    Findings& m_findings;
};

/// The refusals of a compile, by what it would write.
void CheckCompile(std::span<const ResourceRow> rows, const IconIndex& index,
    const JudgedPictures& pictures, Findings& findings)
{
    try {
        const bool hasIndex = !index.values.empty();
        DatabaseLayout layout(rows.size() + (hasIndex ? 2 : 1), {});
        SavedSizes sizes(pictures, findings);
        const auto add = [&](const std::string& key, std::size_t bytes) {
            layout.Begin();
            layout.End(key, bytes);
        };
        for (const ResourceRow& row : rows)
            add(row.key, sizes.Of(row));
        add(std::string(VersionKey), VersionString.size() + 1);
        if (hasIndex)
            add(std::string(IndexKey), index.values.size() * IndexRecordSize);
    } catch (const CompileFailure& failure) {
        findings.Add("save", failure.reason + std::string(NothingIsSaved));
    }
}

} // namespace

void CheckIcons(Findings& findings)
{
    for (const IconRow& row : IconTable) {
        if (row.IconLabel.empty())
            continue;
        if (row.IconKind == KindDelete)
            findings.Add(row.ResourceKey,
                "it is an orphan, as the index does not name it: a save leaves it out");
        const bool hasPicture = ImageFileValid(row.LowResFile) || ImageFileValid(row.HighResFile);
        if (!hasPicture && !LoadedAsTemplate)
            findings.Add(row.ResourceKey, "it has no picture: a save leaves it out");
    }
}

void CheckSave(ByteView file, const JudgedPictures& pictures, Findings& findings)
{
    // An export's own refusal of sets without pictures can't be meant: no template has any.
    if (const auto whyNot = LoadedAsTemplate ? std::nullopt : WhyNotSaved()) {
        const char* const byCatalogs =
            StatUnknown > 0 ? " (with these catalogs; see --app-folder)" : "";
        findings.Add("save", std::string(*whyNot) + byCatalogs);
        return;
    }
    const std::vector<ResourceRow> rows = PictureRows(LoadedAsTemplate);
    const IconIndex index = CollectWrittenIndex(LoadedAsTemplate);
    CheckCompile(rows, index, pictures, findings);
    CheckWrittenIndex(file, ListedResources(file), index, findings);
    if (const std::string note = NoteOf(ReportOn(rows, index)); !note.empty())
        findings.Add("save", note);
}

} // namespace vypx
