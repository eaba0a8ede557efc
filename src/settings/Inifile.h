#pragma once

#include "settings/Placement.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// Longest value that a read gives back whole, in bytes.
inline constexpr std::size_t MaxValueLength = 254;

/// Buffer of a list of names, in characters: each name takes one more, and one is left for the end.
inline constexpr std::size_t ListBuffer = 8192;

/// Whether a value, such as a path in UTF-8, is not too long for that.
inline bool FitsKey(std::string_view value) { return value.size() <= MaxValueLength; }

/// The one way to ini-form files: a cursor that is set to a path, a section and a key and then
/// reads or writes the value there. Every read and write goes to the file, so two objects on one
/// file see each other's writes at once. Paths are UTF-8, all other texts single bytes.
///
/// No operation throws or shows a message; `Success` tells of the last write.
class cInifile {
public:
    /// Result of the last write; 0: it failed, or there was none.
    std::int32_t LastReturnCode() const { return m_lastReturnCode; }
    bool Success() const { return m_lastReturnCode != 0; }

    /// What a read gives where the key is missing.
    void Default(std::string_view sDefault) { m_default = sDefault; }
    const std::string& Default() const { return m_default; }
    void path(std::string_view sPath) { m_path = sPath; }
    const std::string& path() const { return m_path; }
    void key(std::string_view sKey) { m_key = sKey; }
    const std::string& key() const { return m_key; }
    void Section(std::string_view sSection) { m_section = sSection; }
    const std::string& Section() const { return m_section; }

    /// At most MaxValueLength characters. A read leaves LastReturnCode as it was.
    std::string Value() const;
    /// NUL characters in the value are left out.
    void Value(std::string_view sValue);

    void DeleteKey();
    void DeleteSection();

    /// The section's key names, each ended by a NUL, cut to a buffer of 8192 characters; `Default`
    /// where there is none.
    std::string INISection() const;
    /// Deletes the section; the value plays no part.
    void INISection(std::string_view sSection);
    /// The same for the file's section names.
    std::string Sections() const;

    /// Names from index 1 to iCount; index 0 of the list is empty.
    void EnumerateCurrentSection(std::vector<std::string>& sKey, std::int32_t& iCount) const;
    void EnumerateAllSections(std::vector<std::string>& sSections, std::int32_t& iCount) const;

    /// Keeps a window's placement under "Maximised", "Left", "Top", "Width", "Height" of the
    /// section; that of a minimised window is not kept.
    void SaveFormPosition(const Placement& frmThis);
    /// Reads it back into `frmThis`, brought onto its screen. Sizes in twips.
    void LoadFormPosition(Placement& frmThis, std::int32_t lMinWidth, std::int32_t lMinHeight);

    /// The number that a text stands for, a fraction rounded (halves to the even number);
    /// `lDefault` for any other text and for one beyond 32 bits.
    static std::int32_t CLngDefault(std::string_view sString, std::int32_t lDefault);

private:
    std::string m_path;
    std::string m_key;
    std::string m_section;
    std::string m_default;
    std::int32_t m_lastReturnCode = 0;
};

} // namespace vypx
