#include "cli/Extract.h"

#include "cli/DocumentJson.h"
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

void PutResource(IndexJson& entry, const PictureHeader& header)
{
    entry["resourceType"] = header.resourceKey.substr(0, 4);
    entry["resourceId"] = ResourceId(header.resourceKey);
    entry["density"] = header.highDensity ? "high" : "low";
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
std::string WhyNotExtracted(const ReadEnd& end, const PictureFiles& files, OutputFolder& folder)
{
    if (!files.Failure().empty())
        return files.Failure();
    const auto isThere = [](const ExtractedPicture& picture) { return !picture.file.empty(); };
    if (LoadedAsTemplate)
        return "it is a template, which has no pictures";
    if (end.IsOpened() && std::none_of(files.Pictures().begin(), files.Pictures().end(), isThere))
        return "there is no picture in it";
    return end.IsOpened() ? WriteIndex(folder, files.Pictures()) : std::string();
}

} // namespace

int Extract(const ExtractOptions& options)
{
    OutputFolder folder;
    if (!folder.Use(options.folder, "DIR"))
        return 2;
    PictureFiles files(folder);
    const ReadEnd end = ReadIconset(options.read, files);
    TellEnd(end);
    for (const ExtractedPicture& picture : files.Pictures())
        if (picture.file.empty())
            Tell(picture.header.resourceKey + (picture.header.highDensity ? " (high)" : " (low)")
                + " is passed over: " + picture.whyNot);
    const std::string whyNot = WhyNotExtracted(end, files, folder);
    if (!end.IsOpened() || !whyNot.empty()) {
        Tell(whyNot);
        return 1;
    }
    folder.Keep();
    return 0;
}

} // namespace vypx
