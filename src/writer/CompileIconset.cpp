#include "writer/CompileIconset.h"

#include "document/Document.h"
#include "document/Slot.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/LetterCase.h"
#include "settings/Settings.h"
#include "writer/IconIndex.h"

#include <unordered_set>

namespace vypx {

namespace {

std::span<const std::uint8_t> BytesOf(std::string_view text)
{
    return { reinterpret_cast<const std::uint8_t*>(text.data()), text.size() };
}

/// Whether a file cell holds a picture: "bmp" in any letter case.
bool NamesABmp(const std::string& cell) { return LowerCase(cell).find("bmp") != std::string::npos; }

/// What goes into a picture column: a cell that holds a picture, in a template also NoImage.
std::string Column(const std::string& cell, bool forTemplate)
{
    return NamesABmp(cell) || (forTemplate && cell == NoImage) ? cell : std::string();
}

bool Qualifies(const IconRow& row)
{
    return (KeepUnknown || row.IconKind != KindUnknown) && row.IconState != 0;
}

/// Scratch files of an earlier compile must not get into this one.
void DeleteScratchFiles()
{
    if (!DeleteWorkingFiles({ ".bin" }))
        throw SaveFailure(WorkPath("*.bin"), "what an earlier save left there can't be deleted");
}

void BackUp(const std::string& path)
{
    if (!NamedFileExists(path))
        return;
    const auto old = platform::ReadWholeFile(path);
    if (!old)
        throw SaveFailure(path, "the old file can't be read for its backup");
    if (const std::error_code error = platform::ReplaceFile(path + ".bak", *old, path))
        throw SaveFailure(path + ".bak", error);
}

} // namespace

void WriteVersionResource()
{
    std::string text = VersionString.substr(0, VersionString.find_last_not_of(' ') + 1);
    text += '\0';
    const std::string path = WorkPath(std::string(VersionKey) + ".bin");
    if (const std::error_code error = platform::ReplaceFile(path, BytesOf(text)))
        throw SaveFailure(path, error);
}

std::vector<ResourceRow> PictureRows(bool forTemplate)
{
    std::vector<ResourceRow> rows;
    std::unordered_set<std::string> keys;
    for (const IconRow& icon : IconTable) {
        const std::string low = Column(icon.LowResFile, forTemplate);
        const std::string high = Column(icon.HighResFile, forTemplate);
        const bool isNamed = !low.empty() || !high.empty();
        // Icons that share a resource give one.
        if (isNamed && Qualifies(icon) && keys.insert(icon.ResourceKey).second)
            rows.push_back({ .lowFile = low, .highFile = high, .key = icon.ResourceKey });
    }
    return rows;
}

std::vector<TransparencyRow> TransparencyRows()
{
    std::vector<TransparencyRow> rows(BitmapTable.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const BitmapEntry& bitmap = BitmapTable[i];
        if (bitmap.file.empty())
            continue;
        rows[i].file = bitmap.file;
        rows[i].flag = std::to_string(bitmap.hasTransparent.value_or(0));
        // A flagged picture of 1 or 2 bits has no colour of its own but that of its index.
        const std::optional<Rgb> colour = TransparentColour(bitmap);
        if (!colour)
            continue;
        rows[i].red = std::to_string(colour->red);
        rows[i].green = std::to_string(colour->green);
        rows[i].blue = std::to_string(colour->blue);
    }
    return rows;
}

CompileTarget TargetFromFlags()
{
    if (ExportingTemplate)
        return { .path = TemplatePath, .asTemplate = true };
    return { .path = FileName, .backUp = CreateBackup && !SavingAs };
}

SaveReport CompileIconset(const CompileTarget& target)
{
    DeleteScratchFiles();
    WriteVersionResource();
    const IconIndex index = BuildIconTableResource(target.asTemplate);
    std::vector<ResourceRow> resources = PictureRows(target.asTemplate);
    const SaveReport report = ReportOn(resources, index);
    const auto addFile = [&](std::string_view name) {
        resources.push_back({ .lowFile = std::string(name),
            .highFile = std::string(name),
            .key = std::string(name) });
    };
    addFile(VersionKey);
    if (FileExists(WorkPath(std::string(IndexKey) + ".bin")))
        addFile(IndexKey);
    const std::vector<TransparencyRow> transparency = TransparencyRows();
    if (target.backUp)
        BackUp(target.path);
    const auto compile = target.asTemplate ? ExpTemplate : CompilePRC;
    const auto failure = compile(resources, transparency, Palette8, Palette4, BitsOf(target.depth),
        UsePackbits, target.path, DatabaseName, WorkFolder() + platform::PathSeparator);
    if (failure)
        throw SaveFailure(*failure);
    return report;
}

} // namespace vypx
