#include "cli/DocumentJson.h"

#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/IconStats.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <utility>

namespace vypx {

namespace {

using Json = nlohmann::ordered_json;

Json Number(const std::optional<int>& cell) { return cell ? Json(*cell) : Json(nullptr); }

Json Icons()
{
    Json icons = Json::array();
    for (const IconRow& row : IconTable) {
        if (row.IconLabel.empty())
            continue;
        Json& icon = icons.emplace_back();
        icon["label"] = Utf8FromLatin1(row.IconLabel);
        icon["resourceKey"] = Utf8FromLatin1(row.ResourceKey);
        icon["lowResFile"] = Utf8FromLatin1(row.LowResFile);
        icon["highResFile"] = Utf8FromLatin1(row.HighResFile);
        icon["state"] = Number(row.IconState);
        icon["kind"] = row.IconKind;
    }
    return icons;
}

Json Bitmaps()
{
    Json bitmaps = Json::array();
    const std::size_t made = std::min(static_cast<std::size_t>(BitmapRow), BitmapTable.size());
    for (std::size_t row = 0; row < made; ++row) {
        const BitmapEntry& bitmap = BitmapTable[row];
        Json& entry = bitmaps.emplace_back();
        entry["file"] = nullptr;
        if (!bitmap.file.empty())
            entry["file"] = Utf8FromLatin1(bitmap.file);
        entry["hasTransparent"] = Number(bitmap.hasTransparent);
        entry["index"] = Number(bitmap.index);
        entry["red"] = Number(bitmap.red);
        entry["green"] = Number(bitmap.green);
        entry["blue"] = Number(bitmap.blue);
    }
    return bitmaps;
}

Json Index()
{
    Json records = Json::array();
    for (std::size_t row = 1; row < Itbl.size(); ++row) {
        Json& record = records.emplace_back();
        record["type"] = Utf8FromLatin1(Itbl[row].type);
        record["creator"] = Utf8FromLatin1(Itbl[row].creator);
        record["large"] = Itbl[row].largeId;
        record["small"] = Itbl[row].smallId;
    }
    return records;
}

Json Nodes()
{
    std::vector<IconNode> sorted = Tree.Nodes();
    std::sort(sorted.begin(), sorted.end(),
        [](const IconNode& one, const IconNode& other) { return one.key < other.key; });
    Json nodes = Json::array();
    for (const IconNode& node : sorted) {
        Json& entry = nodes.emplace_back();
        entry["key"] = Utf8FromLatin1(node.key);
        entry["image"] = node.image;
        entry["colour"] = HexColour(node.colour);
    }
    return nodes;
}

Json Stats()
{
    Json stats;
    stats["total"] = StatTotal;
    stats["large"] = StatLarge;
    stats["small"] = StatSmall;
    stats["highRes"] = StatHighRes;
    stats["lowRes"] = StatLowRes;
    stats["unknown"] = StatUnknown;
    return stats;
}

} // namespace

std::string HexColour(Rgb colour)
{
    char text[sizeof "#rrggbb"];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(colour.red & 255),
        static_cast<unsigned>(colour.green & 255), static_cast<unsigned>(colour.blue & 255));
    return text;
}

Json DocumentJson(const std::vector<std::string>& messages)
{
    Json texts = Json::array();
    for (const std::string& message : messages)
        texts.push_back(Utf8FromLatin1(message));
    Json document;
    document["loaded"] = FileLoaded;
    document["databaseName"] = Utf8FromLatin1(DatabaseName);
    document["messages"] = std::move(texts);
    document["icons"] = Icons();
    document["bitmaps"] = Bitmaps();
    document["iconTable"] = Index();
    document["tree"] = Nodes();
    document["stats"] = Stats();
    return document;
}

} // namespace vypx
