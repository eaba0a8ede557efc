#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

namespace vypx {

/// What is known in a user's folder of the files that the program was shipped with. It is kept in
/// "shipped-state.txt", lines that begin with
///
///   version N.N.N                        the newest version that worked over this folder
///   given NAME                           a file that the folder was given
///   seen N.N.N IDENTITY, tab, NAME       a shipped file as it was on the disk when that version
///                                        last dealt with it
///   begun 1 or 2, tab, NAME              a change of the user's file was begun so many times
///   coming NAME, tab, FACT               the fact is known when that change is done
///   (anything else)                      a fact, for whoever wrote it
///
/// A name is a path from the folder. The names that were given stand in "shipped.txt" as well, one
/// in each line: it is all that there was before the other file, and is still believed.
///
/// What the user deletes does not come back for its name; what was shipped under it is kept in the
/// facts. Facts are only ever added: what was shipped once is never new again, be it that two
/// versions start in turn over one folder.
struct ShippedState {
    struct Seen {
        std::string version, identity;

        friend bool operator==(const Seen&, const Seen&) = default;
    };
    struct Begun {
        bool isAgain = false; ///< the second time
        std::set<std::string> facts;

        friend bool operator==(const Begun&, const Begun&) = default;
    };
    std::set<std::string> given;
    std::set<std::string> facts;
    std::map<std::string, Seen> seen;   ///< by name
    std::map<std::string, Begun> begun; ///< by name
    std::string version;                ///< empty: the folder is from before all this, or new

    friend bool operator==(const ShippedState&, const ShippedState&) = default;
};

/// Empty when a file is there that can't be read, or has more than four MiB: then nothing must be
/// done by it. A missing one knows nothing.
std::optional<ShippedState> ReadShippedState(const std::string& folder);

/// Replaces the file of the state in one step, if it changes. False: it is as it was. The list of
/// names goes before it, as well as it can.
bool WriteShippedState(
    const std::string& folder, const ShippedState& before, const ShippedState& now);

} // namespace vypx
