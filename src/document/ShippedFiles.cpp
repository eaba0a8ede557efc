#include "document/ShippedFiles.h"

#include "document/Catalogs.h"
#include "document/RunningCopies.h"
#include "document/Shipment.h"
#include "document/ShippedState.h"
#include "platform/Platform.h"

#include <algorithm>
#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;
using platform::FileIdentity;

/// The end of every ContentFact of a name and a size in bytes.
std::string SizeFact(const std::string& name, std::uintmax_t size)
{
    return ' ' + std::to_string(size) + '\t' + name;
}

/// That a file of that name and content was shipped. 64 bits of FNV-1a and the size: nobody forges
/// what would only be replaced for it.
std::string ContentFact(const std::string& name, const std::vector<std::uint8_t>& bytes)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const std::uint8_t byte : bytes)
        hash = (hash ^ byte) * 0x100000001b3;
    return "content " + std::to_string(hash) + SizeFact(name, bytes.size());
}

/// That something of that name was shipped, so that other facts tell what. What an older kind of
/// state did not keep the content of counts as changed by the user.
std::string KnownFact(const std::string& name) { return "known\t" + name; }

/// What is to be done about a shipped file.
enum class Verdict {
    Nothing, ///< at this time of its content
    Learn,   ///< the user's file stays, and what is shipped is known
    Write,
    Merge,
    Later, ///< it can't be told now
};

/// Of a file that is there and no catalog.
Verdict JudgeContent(const ShippedFile& file, const ShippedState& state, std::string_view version)
{
    if (!state.facts.contains(KnownFact(file.name)))
        return Verdict::Learn;
    std::error_code error;
    const std::uintmax_t size = fs::file_size(platform::NativePath(file.Target()), error);
    if (error)
        return Verdict::Later;
    const bool mayBeShipped = std::any_of(state.facts.begin(), state.facts.end(),
        [end = SizeFact(file.name, size)](const std::string& fact) { return fact.ends_with(end); });
    if (!mayBeShipped) // and may be too large to be read
        return Verdict::Learn;
    const auto bytes = platform::ReadWholeFile(file.Target());
    if (!bytes)
        return Verdict::Later;
    const std::string own = ContentFact(file.name, *bytes);
    const std::string shipped = ContentFact(file.name, file.bytes);
    if (own == shipped || !state.facts.contains(own))
        return Verdict::Learn;
    // Two copies of one version that ship different files don't replace them to and fro.
    const auto seen = state.seen.find(file.name);
    const bool isOfOneVersion = seen != state.seen.end() && seen->second.version == version;
    return isOfOneVersion && state.facts.contains(shipped) ? Verdict::Learn : Verdict::Write;
}

bool IsCatalog(const std::string& name)
{
    return std::find(std::begin(CatalogNames), std::end(CatalogNames), name)
        != std::end(CatalogNames);
}

/// One start's work over a folder.
class Taking {
public:
    Taking(const AppFolders& folders, const CatalogRules& rules, std::string_view version,
        const ShippedState& before)
        : m_folders(folders)
        , m_rules(rules)
        , m_version(version)
        , m_before(before)
        , m_now(before)
    {
        m_now.version = version;
    }

    void Run(const Shipment& shipment)
    {
        for (const auto& [name, begun] : m_before.begun)
            if (begun.isAgain || !shipment.contains(name))
                TakeForDone(name);
        for (const auto& [name, identity] : shipment)
            if (!IsSeen(m_now, name, identity) || m_now.begun.contains(name))
                Plan(name, identity);
        ShippedState intent = m_now;
        for (const Work& work : m_works) {
            const auto begun = m_before.begun.find(work.file.name);
            const bool isAgain = begun != m_before.begun.end() && !begun->second.isAgain;
            intent.begun[work.file.name] = { .isAgain = isAgain, .facts = FactsOf(work.file) };
        }
        if (!WriteShippedState(m_folders.work, m_before, intent))
            return;
        for (const Work& work : m_works)
            if (Perform(work))
                Note(work.file.name, work.identity);
        WriteShippedState(m_folders.work, intent, m_now);
    }

private:
    struct Work {
        ShippedFile file;
        FileIdentity identity;
        Verdict verdict = Verdict::Write;
    };

    void TakeForDone(const std::string& name)
    {
        m_now.given.insert(name);
        m_now.facts.merge(m_now.begun[name].facts);
        m_now.begun.erase(name);
    }

    Verdict Judge(const ShippedFile& file) const
    {
        std::error_code unknown;
        const bool isThere = fs::exists(platform::NativePath(file.Target()), unknown);
        const bool wasGiven = m_now.given.contains(file.name);
        const bool isCatalog = IsCatalog(file.name);
        if (unknown)
            return Verdict::Later;
        if (!isThere && !wasGiven)
            return Verdict::Write;
        if (!isThere) // A catalog that the user makes later gets what it has missed.
            return isCatalog ? Verdict::Nothing : Verdict::Learn;
        if (!isCatalog)
            return JudgeContent(file, m_now, m_version);
        // Nobody knows what a folder from before the state was given, but everybody that this one
        // was never given the file.
        const bool wasNeverGiven = !wasGiven && !m_before.version.empty();
        return wasNeverGiven || m_now.facts.contains(KnownFact(file.name)) ? Verdict::Merge
                                                                           : Verdict::Learn;
    }

    std::set<std::string> FactsOf(const ShippedFile& file) const
    {
        std::set<std::string> facts = IsCatalog(file.name)
            ? m_rules.facts(file)
            : std::set<std::string>{ ContentFact(file.name, file.bytes) };
        facts.insert(KnownFact(file.name));
        return facts;
    }

    void Plan(const std::string& name, const FileIdentity& identity)
    {
        const std::string from = platform::Utf8Path(
            platform::NativePath(m_folders.shipped) / platform::NativePath(name));
        auto bytes = platform::ReadWholeFile(from);
        if (!bytes || platform::IdentityOf(from) != identity)
            return; // it is being installed, perhaps
        ShippedFile file{ name, std::move(*bytes), m_folders.work };
        const Verdict verdict = Judge(file);
        if (verdict != Verdict::Later)
            m_now.begun.erase(name);
        if (verdict == Verdict::Write || verdict == Verdict::Merge) {
            m_works.push_back({ std::move(file), identity, verdict });
        } else if (verdict != Verdict::Later) {
            if (verdict == Verdict::Learn)
                m_now.facts.merge(FactsOf(file));
            Note(name, identity);
        }
    }

    /// False: the user's file is as it was.
    bool Perform(const Work& work)
    {
        const ShippedFile& file = work.file;
        if (Judge(file) != work.verdict)
            return false; // another program was there meanwhile
        if (work.verdict == Verdict::Merge ? !m_rules.merge(file, m_now.facts) : !Write(file))
            return false;
        if (work.verdict == Verdict::Write)
            m_now.facts.merge(FactsOf(file));
        m_now.facts.insert(KnownFact(file.name));
        return true;
    }

    static bool Write(const ShippedFile& file)
    {
        std::error_code ignored;
        fs::create_directories(platform::NativePath(file.Target()).parent_path(), ignored);
        return !platform::ReplaceFile(file.Target(), file.bytes);
    }

    /// The file was dealt with.
    void Note(const std::string& name, const FileIdentity& identity)
    {
        m_now.given.insert(name);
        if (platform::HasRested(identity))
            m_now.seen[name] = { .version = m_version, .identity = TextOfIdentity(identity) };
    }

    const AppFolders& m_folders;
    const CatalogRules& m_rules;
    const std::string m_version;
    const ShippedState& m_before;
    ShippedState m_now;
    std::vector<Work> m_works;
};

} // namespace

std::string ShippedFile::Target() const
{
    return platform::Utf8Path(platform::NativePath(folder) / platform::NativePath(name));
}

void TakeShippedFiles(
    const AppFolders& folders, const CatalogRules& rules, std::string_view version)
{
    if (folders.shipped.empty())
        return;
    const Shipment shipment = ShipmentIn(folders.shipped);
    const auto early = ReadShippedState(folders.work);
    if (early && HasNothingToDo(*early, shipment, version))
        return;
    const CopiesGate gate(folders.work); // or a second copy could go on without the catalogs
    if (gate.IsAnothers())
        return; // of two that write the state one would drop what the other has learnt
    const auto before = ReadShippedState(folders.work);
    if (before && !HasNothingToDo(*before, shipment, version))
        Taking(folders, rules, version, *before).Run(shipment);
}

} // namespace vypx
