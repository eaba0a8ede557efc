#include "cli/Extract.h"

#include "cli/DocumentJson.h"
#include "cli/ListedResource.h"
#include "cli/OpenIconset.h"
#include "cli/PictureFiles.h"
#include "cli/WritePng.h"
#include "companion/Latin1.h"
#include "companion/Numbers.h"
#include "document/Document.h"
#include "platform/Platform.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>

namespace vypx {

namespace {

using IndexJson = nlohmann::ordered_json;

IndexJson TextOrNull(const std::string& latin1)
{
    return latin1.empty() ? IndexJson(nullptr) : IndexJson(Utf8FromLatin1(latin1));
}

/// What the rows that show a resource are called, for each resource.
std::map<std::string, IndexJson> IconsByResource()
{
    std::map<std::string, IndexJson> icons;
    for (const IconRow& row : IconTable)
        if (!row.IconLabel.empty())
            icons[row.ResourceKey].push_back({ { "label", Utf8FromLatin1(row.IconLabel) },
                { "kind", row.IconKind }, { "ownerType", TextOrNull(row.owner.type) },
                { "ownerCreator", TextOrNull(row.owner.creator) } });
    return icons;
}

const char* DensityOf(const PictureHeader& header) { return header.highDensity ? "high" : "low"; }

void PutResource(IndexJson& entry, const PictureHeader& header)
{
    entry["resourceType"] = header.resourceKey.substr(0, 4);
    entry["resourceId"] = ResourceId(header.resourceKey);
    if (header.file.empty())
        entry["density"] = nullptr;
    else
        entry["density"] = DensityOf(header);
}

IndexJson IndexOf(const std::vector<ExtractedPicture>& pictures)
{
    const std::map<std::string, IndexJson> icons = IconsByResource();
    IndexJson index{ { "databaseName", Utf8FromLatin1(DatabaseName) },
        { "pictures", IndexJson::array() }, { "passedOver", IndexJson::array() } };
    for (const ExtractedPicture& picture : pictures) {
        const PictureHeader& header = picture.header;
        if (picture.file.empty()) {
            IndexJson& entry = index["passedOver"].emplace_back();
            PutResource(entry, header);
            entry["why"] = picture.whyNot;
            continue;
        }
        IndexJson& entry = index["pictures"].emplace_back();
        entry["file"] = picture.file;
        PutResource(entry, header);
        entry["width"] = header.width;
        entry["height"] = header.height;
        entry["depth"] = header.depth;
        entry["transparent"] =
            header.transparent ? IndexJson(HexColour(*header.transparent)) : IndexJson(nullptr);
        const auto rows = icons.find(header.resourceKey);
        entry["icons"] = rows == icons.end() ? IndexJson::array() : rows->second;
    }
    return index;
}

/// Why there is no index; empty: it is written.
std::string WriteIndex(OutputFolder& folder, const std::vector<ExtractedPicture>& pictures)
{
    const std::string text = IndexOf(pictures).dump(1) + "\n";
    const std::string path = folder.NewFile("index.json");
    const std::error_code error = platform::ReplaceFile(
        path, { reinterpret_cast<const std::uint8_t*>(text.data()), text.size() });
    return error ? WhyNotWritten(path, error) : std::string();
}

/// What keeps the folder from being what was asked for, in words; empty: nothing does.
std::string WhyNotExtracted(const PictureFiles& files)
{
    if (!files.Failure().empty())
        return files.Failure();
    if (LoadedAsTemplate)
        return "it is a template, which has no pictures";
    const auto isThere = [](const ExtractedPicture& picture) { return !picture.file.empty(); };
    if (std::none_of(files.Pictures().begin(), files.Pictures().end(), isThere))
        return "there is no picture in it";
    return {};
}

/// Resources of the open file that should have pictures and of which none came.
void NoteMissingResources(PictureFiles& files)
{
    const ByteView file = ByteView(FileCashe).Part(1, FileCashe.size() - 2);
    for (const ListedResource& resource : ListedResources(file)) {
        if (resource.HasPictures())
            files.NoteMissing(resource.Name(), "nothing of it can be read");
        else if (resource.type == "abmp")
            files.NoteMissing(resource.Name(), "pictures of this kind are not read");
    }
}

void TellPassedOver(const PictureFiles& files)
{
    for (const ExtractedPicture& picture : files.Pictures()) {
        if (!picture.file.empty())
            continue;
        const PictureHeader& header = picture.header;
        const std::string density =
            header.file.empty() ? std::string() : std::string(" (") + DensityOf(header) + ")";
        Tell(header.resourceKey + density + " is passed over: " + picture.whyNot);
    }
}

/// Fills the folder. Empty: it is what was asked for; else why not, in words that may be none where
/// the load has told it.
std::optional<std::string> Fill(OutputFolder& folder, const ExtractOptions& options)
{
    PictureFiles files(folder);
    const ReadEnd end = ReadIconset(options.read, files);
    TellEnd(end);
    if (!end.IsOpened())
        return std::string();
    if (files.Failure().empty() && !LoadedAsTemplate)
        NoteMissingResources(files);
    TellPassedOver(files);
    std::string whyNot = WhyNotExtracted(files);
    if (whyNot.empty())
        whyNot = WriteIndex(folder, files.Pictures());
    return whyNot.empty() ? std::nullopt : std::optional(std::move(whyNot));
}

} // namespace

int Extract(const ExtractOptions& options)
{
    OutputFolder folder;
    const OutputFolder::Use use = folder.Take(options.folder, "DIR");
    if (use != OutputFolder::Use::Serves)
        return use == OutputFolder::Use::IsTaken ? 2 : 1;
    const std::optional<std::string> whyNot = Fill(folder, options);
    if (whyNot) {
        Tell(*whyNot);
        return 1;
    }
    folder.Keep();
    return 0;
}

} // namespace vypx
