#include "cli/DocumentJson.h"

#include "document/Document.h"
#include "document/IconStats.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace vypx {

namespace {

using json = nlohmann::ordered_json;

json Number(const std::optional<int>& cell) { return cell ? json(*cell) : json(nullptr); }

json Icons()
{
    json icons = json::array();
    for (const IconRow& row : IconTable) {
        if (row.IconLabel.empty())
            continue;
        icons.push_back({
            { "label", Utf8FromLatin1(row.IconLabel) },
            { "resourceKey", Utf8FromLatin1(row.ResourceKey) },
            { "lowResFile", Utf8FromLatin1(row.LowResFile) },
            { "highResFile", Utf8FromLatin1(row.HighResFile) },
            { "state", Number(row.IconState) },
            { "kind", row.IconKind },
        });
    }
    return icons;
}

json Bitmaps()
{
    json bitmaps = json::array();
    const std::size_t made = std::min(static_cast<std::size_t>(BitmapRow), BitmapTable.size());
    for (std::size_t row = 0; row < made; ++row) {
        const BitmapEntry& bitmap = BitmapTable[row];
        bitmaps.push_back({
            { "file", bitmap.file.empty() ? json(nullptr) : json(Utf8FromLatin1(bitmap.file)) },
            { "hasTransparent", Number(bitmap.hasTransparent) },
            { "index", Number(bitmap.index) },
            { "red", Number(bitmap.red) },
            { "green", Number(bitmap.green) },
            { "blue", Number(bitmap.blue) },
        });
    }
    return bitmaps;
}

json Index()
{
    json records = json::array();
    for (std::size_t row = 1; row < Itbl.size(); ++row)
        records.push_back({
            { "type", Utf8FromLatin1(Itbl[row].type) },
            { "creator", Utf8FromLatin1(Itbl[row].creator) },
            { "large", Itbl[row].largeId },
            { "small", Itbl[row].smallId },
        });
    return records;
}

std::string HexColour(Rgb colour)
{
    char text[sizeof "#rrggbb"];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(colour.red & 255),
        static_cast<unsigned>(colour.green & 255), static_cast<unsigned>(colour.blue & 255));
    return text;
}

json Nodes()
{
    std::vector<IconNode> sorted = Tree.Nodes();
    std::sort(sorted.begin(), sorted.end(),
        [](const IconNode& one, const IconNode& other) { return one.key < other.key; });
    json nodes = json::array();
    for (const IconNode& node : sorted)
        nodes.push_back({
            { "key", Utf8FromLatin1(node.key) },
            { "image", node.image },
            { "colour", HexColour(node.colour) },
        });
    return nodes;
}

json Stats()
{
    return {
        { "total", StatTotal },
        { "large", StatLarge },
        { "small", StatSmall },
        { "highRes", StatHighRes },
        { "lowRes", StatLowRes },
        { "unknown", StatUnknown },
    };
}

} // namespace

std::string Utf8FromLatin1(std::string_view text)
{
    std::string utf8;
    for (const char letter : text) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 0x80) {
            utf8 += letter;
        } else {
            utf8 += static_cast<char>(0xC0 | code >> 6);
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

json DocumentJson(const std::vector<std::string>& messages)
{
    json texts = json::array();
    for (const std::string& message : messages)
        texts.push_back(Utf8FromLatin1(message));
    return {
        { "loaded", FileLoaded },
        { "databaseName", Utf8FromLatin1(DatabaseName) },
        { "messages", texts },
        { "icons", Icons() },
        { "bitmaps", Bitmaps() },
        { "iconTable", Index() },
        { "tree", Nodes() },
        { "stats", Stats() },
    };
}

} // namespace vypx
