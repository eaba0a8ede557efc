#pragma once

#include "companion/ByteView.h"

#include <optional>
#include <string>
#include <string_view>

namespace vypx {

/// Head of a Palm database (.prc), as far as the catalogs care. Offsets count from 0.
///
///   offset width field
///        0    32 name     ends at the first byte below 32 or from 127 up
///       60     4 type     "appl" an application, "panl" a preference panel
///       64     4 creator  Creator ID; all of a to z: a program of Palm OS itself
struct PalmHeader {
    static constexpr std::size_t Length = 68;

    /// Fit for a section's name: brackets are braces, and there are no blanks at its ends. What an
    /// entry is called is told by EntryName.
    std::string name;
    std::string type, creator; ///< four bytes each, any

    bool IsPanel() const { return type == "panl"; }
    bool IsApplication() const { return type == "appl" || IsPanel(); }
    bool IsOfPalmOS() const;
    /// A byte below 32 stands in the creator, which no catalog can hold.
    bool HasUnwritableCreator() const;
};

/// Throws PastTheEnd for less than Length bytes.
PalmHeader ReadPalmHeader(ByteView file);

/// The header of a regular file. Empty: it can't be read, or is too short, which `isShort` is told.
std::optional<PalmHeader> ReadPalmHeader(const std::string& path, bool* isShort = nullptr);

/// The name up to its first "*", without blanks at its ends.
std::string CutAtStar(std::string_view name);

/// The name of a catalog's entry: " Panel" stands behind a panel's.
std::string EntryName(std::string name, bool isPanel);

} // namespace vypx
