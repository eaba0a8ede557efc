#include "catalogs/PrcSearch.h"

#include "document/WorkingFolder.h"
#include "platform/Folders.h"
#include "platform/Platform.h"
#include "settings/LetterCase.h"
#include "settings/Settings.h"

#include <algorithm>
#include <set>

namespace vypx {

namespace {

constexpr const char* DesktopKey = R"(Software\U.S. Robotics\Pilot Desktop\Core)";

using platform::FolderEntry;

bool EndsInSeparator(std::string_view path)
{
    return path.ends_with(platform::PathSeparator) || path.ends_with('/');
}

bool MatchesSpec(std::string_view name) { return LowerCase(name).ends_with(SearchSpec.substr(1)); }

/// Walks without recursion: the levels stand in a list, and one path serves them all.
class Walk {
public:
    Walk(std::string root, SearchListener& listener)
        : m_path(std::move(root))
        , m_listener(listener)
        , m_pace(listener)
    {
    }

    WalkEnd Run()
    {
        Enter();
        while (!m_levels.empty() && !m_end.wasStopped)
            Next();
        return std::move(m_end);
    }

private:
    struct Level {
        std::vector<FolderEntry> entries; ///< a folder's name ends in a separator
        std::size_t next = 0;
        std::size_t pathLength = 0; ///< of the folder
    };

    /// Begins the folder that m_path names.
    void Enter()
    {
        auto listing = platform::ListFolder(
            m_path, [&](platform::FolderId id) { return m_visited.insert(id).second; },
            [&] { return m_pace.Step(); });
        m_end.wasStopped = listing.wasStopped;
        if (!listing.isWhole)
            m_end.unreadable.push_back(m_path);
        for (FolderEntry& entry : listing.entries)
            if (entry.isFolder)
                entry.name += platform::PathSeparator; // as it stands in the paths below it
        std::sort(listing.entries.begin(), listing.entries.end(),
            [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
        m_levels.push_back({ .entries = std::move(listing.entries), .pathLength = m_path.size() });
    }

    void Next()
    {
        Level& level = m_levels.back();
        m_path.resize(level.pathLength);
        if (level.next == level.entries.size()) {
            m_levels.pop_back();
            return;
        }
        const FolderEntry entry = std::move(level.entries[level.next++]);
        ++SearchFileCount;
        if (!entry.isFolder) {
            LookAt(entry.name);
        } else if (SearchRecurse && !entry.name.starts_with('.')) {
            m_path += entry.name;
            Enter();
        }
        m_end.wasStopped = m_end.wasStopped || !m_pace.Step();
    }

    void LookAt(const std::string& name)
    {
        if (!MatchesSpec(name))
            return;
        ++SearchFoundCount;
        listPRC.push_back(m_path + name);
        m_listener.PathFound(listPRC.back());
    }

    std::string m_path; ///< of the folder that is walked, or about to be
    SearchListener& m_listener;
    SearchPace m_pace;
    std::vector<Level> m_levels;
    std::set<platform::FolderId> m_visited;
    WalkEnd m_end;
};

} // namespace

WalkEnd WalkFolder(const std::string& root, SearchListener& listener)
{
    WalkEnd end = Walk(root, listener).Run();
    listener.WalkEnded();
    if (!end.unreadable.empty())
        listener.Show({ .text = "Error searching for prc files." });
    return end;
}

void GetDesktopPath(SearchListener& listener, const std::optional<platform::RegistryValues>& key)
{
    if (!key) {
        PalmDesktopPath = PalmDesktopFolder;
        ScanHasNew = DirExists(PalmDesktopFolder);
        return;
    }
    for (const platform::RegistryValue& value : key->values)
        if (value.name == "DesktopPath")
            PalmDesktopPath = value.data;
    ScanHasNew = !key->values.empty();
    if (!key->isWhole)
        listener.Show({ .text = "Error finding path to Palm Desktop" });
}

void GetDesktopPath(SearchListener& listener)
{
    GetDesktopPath(listener, platform::UserRegistryValues(DesktopKey));
}

void AllowFolderSearch(const std::optional<platform::RegistryValues>& key)
{
    if (!key)
        ScanHasNew = true;
}

void AllowFolderSearch() { AllowFolderSearch(platform::UserRegistryValues(DesktopKey)); }

WalkEnd SearchPrcFiles(SearchListener& listener)
{
    if (StartupSearchRunning) {
        GetDesktopPath(listener);
        if (!ScanHasNew)
            return {};
    }
    SearchRoot = StartupSearchRunning ? PalmDesktopPath : SearchFolder;
    SearchFoundCount = SearchFileCount = 0;
    if (SearchRoot.empty()) { // or the whole disk would be walked
        listener.Show({ .text = "Error searching for Palm Apps." });
        return {};
    }
    if (!EndsInSeparator(SearchRoot))
        SearchRoot += platform::PathSeparator;
    return WalkFolder(SearchRoot, listener);
}

} // namespace vypx
