#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vypx {

/// The text of a private profile (ini) file, any bytes:
///
///   [section]      blanks around the brackets and just inside of them don't count; the name ends
///                  at the line's last "]"
///   key=value      blanks around both don't count, nor does one pair of quotes around the value
///   ; comment      kept, as is every other line
///
/// Names match without regard to case (A to Z). Of sections or keys of one name the first counts.
/// Everything that an edit does not touch keeps its bytes, line ends included.
class IniText {
public:
    IniText() = default;
    explicit IniText(std::string_view bytes);

    /// The whole file.
    std::string Bytes() const;

    /// Empty when there is no such key. A value ends at a NUL.
    std::optional<std::string_view> Value(std::string_view section, std::string_view key) const;
    /// Whether two names of sections, or of keys, are one.
    static bool SameName(std::string_view first, std::string_view second);
    bool HasSection(std::string_view section) const { return Find(section) != nullptr; }
    /// In the file's order, repeated names included.
    std::vector<std::string> SectionNames() const;
    std::vector<std::string> KeyNames(std::string_view section) const;

    /// Replaces the key in place, or appends it to its section, or both to the file. A line break
    /// in a name or a value becomes a blank. False, and nothing changed, for a name that could not
    /// be read back: an empty one, a key with "=" in it or "[" or ";" at its beginning.
    bool SetValue(std::string_view section, std::string_view key, std::string_view value);
    /// The same, and the key stands right under the section's header, wherever it stood before.
    bool SetFirstValue(std::string_view section, std::string_view key, std::string_view value);
    /// All keys of that name.
    void DeleteKey(std::string_view section, std::string_view key);
    /// All sections of that name, each up to its last key and the blank lines behind that: a
    /// comment further down may belong to the next section. How many there were.
    std::size_t DeleteSection(std::string_view section);

private:
    enum class Kind { Other, Section, Key };
    struct Line {
        std::string text; ///< without its end
        std::string end;  ///< "\n", "\r\n" or, for the last line, nothing
        Kind kind = Kind::Other;
        std::string name;            ///< of the section or key, as written
        std::size_t valueOffset = 0; ///< of a key: what stands behind "="
    };
    struct Section {
        std::size_t header = 0;                            ///< its line
        std::unordered_map<std::string, std::size_t> keys; ///< first line of each, by lower case
    };

    void Index();
    static Line Parsed(std::string_view text, std::string_view end);
    const Section* Find(std::string_view section) const;
    Section& FoundOrMade(std::string_view section); ///< at the file's end
    /// Index of the line behind the section that begins at `header`.
    std::size_t EndOfSection(std::size_t header) const;
    /// The same without what stands behind its last key, blank lines excepted.
    std::size_t EndOfKeys(std::size_t header) const;
    void Insert(std::size_t at, std::string_view text);
    std::string NewLineEnd() const;

    std::vector<Line> m_lines;
    std::unordered_map<std::string, Section> m_sections; // first of each name, by lower case
};

} // namespace vypx
