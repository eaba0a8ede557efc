#include "cli/Scan.h"

#include "catalogs/AddPrcFiles.h"
#include "catalogs/CatalogFiles.h"
#include "cli/OpenIconset.h"
#include "companion/Latin1.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"

#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>

namespace vypx {

namespace {

using nlohmann::ordered_json;

/// Keeps what the editor would show in boxes, as UTF-8.
class CollectedBoxes : public SearchListener {
public:
    void Show(const CatalogBox& box) override { Show(box.text); }
    void Show(std::string_view latin1) { texts.push_back(Utf8FromLatin1(latin1)); }

    std::vector<std::string> texts;
};

/// False: a catalog needed a repair that could not be written.
bool ReadKnownApplications(CollectedBoxes& boxes)
{
    bool couldRepair = true;
    for (const auto read : { ReadAndRepairApps, ReadAndRepairPalm }) {
        const CatalogRead end = read([&](std::string_view text) { boxes.Show(text); });
        if (end.cut)
            Tell(NoteOf(*end.cut));
        couldRepair = couldRepair && end.couldRepair;
    }
    return couldRepair;
}

ordered_json JsonOf(const JudgedPrc& file)
{
    const bool isAdded = file.verdict == PrcVerdict::Added;
    ordered_json json{ { "path", file.path }, { "result", isAdded ? "added" : "passed over" } };
    if (!isAdded)
        json["why"] = WhyPassedOver(file.verdict);
    if (!file.entry.empty())
        json["entry"] = Utf8FromLatin1(file.entry);
    return json;
}

void Print(const SearchEnd& end, const CollectedBoxes& boxes)
{
    ordered_json json{ { "files", ordered_json::array() },
        { "unreadableFolders", end.walk.unreadable }, { "messages", boxes.texts } };
    for (const JudgedPrc& file : end.add.files)
        json["files"].push_back(JsonOf(file));
    std::cout << json.dump(1, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

} // namespace

int Scan(const ScanOptions& options)
{
    if (!DirExists(options.folder)) {
        Tell("there is no such folder: " + options.folder);
        return 2;
    }
    AppFolder =
        platform::Utf8Path(std::filesystem::canonical(platform::NativePath(options.appFolder)));
    CollectedBoxes boxes;
    const bool couldRepair = ReadKnownApplications(boxes);
    SearchFolder = options.folder;
    ScanHasNew = true; // the tool's user wants what is found, also where on purpose it isn't added
    const SearchEnd end = SearchAndAdd(boxes);
    Print(end, boxes);
    return end.add.couldWrite && couldRepair ? 0 : 1;
}

} // namespace vypx
