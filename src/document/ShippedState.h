#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

namespace vypx {

/// What is known in a user's folder of the files that the program was shipped with. Two text files
/// keep it there:
///
///   shipped.txt         names of all files that the folder was given, one in each line
///   shipped-state.txt   lines that begin with
///     version N.N.N          the newest version that gave something
///     seen IDENTITY, tab, NAME   a shipped file as it was on the disk when it was last dealt with
///     (anything else)        a fact, for whoever wrote it
///
/// A name says that what the user deletes does not come back; what was shipped under it is kept in
/// the facts. Facts are only ever added: what was shipped once is never new again, be it that two
/// versions start in turn over one folder.
struct ShippedState {
    std::set<std::string> given; ///< paths from the folder, "/" or the system's separator
    std::set<std::string> facts;
    std::map<std::string, std::string> seen; ///< identity by name
    std::string version;

    friend bool operator==(const ShippedState&, const ShippedState&) = default;
};

/// Empty when a file is there that can't be read: then nothing must be done by it. A missing one
/// knows nothing.
std::optional<ShippedState> ReadShippedState(const std::string& folder);

/// Both files, each replaced in one step, and only if it changes. The names come last: without its
/// name a file counts as not yet given, whatever is known of it.
void WriteShippedState(
    const std::string& folder, const ShippedState& before, const ShippedState& now);

} // namespace vypx
