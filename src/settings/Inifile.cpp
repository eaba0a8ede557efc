#include "settings/Inifile.h"

#include "settings/IniStore.h"

#include <charconv>
#include <cmath>
#include <optional>

namespace vypx {

namespace {

/// Names as a list for a buffer of ListBuffer characters: each ended by a NUL, and room for one
/// NUL more. What does not fit is cut off, and the last name ended all the same.
std::string NameList(const std::vector<std::string>& names, const std::string& defaultText)
{
    std::string list;
    for (const std::string& name : names) {
        list += name;
        list += '\0';
        if (list.size() >= ListBuffer)
            break;
    }
    if (list.empty())
        return defaultText.substr(0, ListBuffer - 1);
    if (list.size() < ListBuffer)
        return list;
    list.resize(ListBuffer - 2);
    if (list.back() != '\0')
        list += '\0';
    return list;
}

std::vector<std::string> PiecesOf(std::string_view list)
{
    std::vector<std::string> pieces;
    for (std::size_t end = 0; (end = list.find('\0')) != std::string_view::npos;) {
        pieces.emplace_back(list.substr(0, end));
        list.remove_prefix(end + 1);
    }
    return pieces;
}

/// From index 1 on.
void ListFromOne(
    std::vector<std::string> names, std::vector<std::string>& list, std::int32_t& count)
{
    count = static_cast<std::int32_t>(names.size());
    list.assign(1, {});
    list.insert(list.end(), std::move_iterator(names.begin()), std::move_iterator(names.end()));
    if (count == 0)
        list.clear();
}

/// Along one axis: at least `minimum` long, 4 pixels from both edges of the screen, shortened
/// where it is longer than that. In 64 bits, where nothing overflows.
void BringOntoScreen(std::int64_t& position, std::int64_t& length, std::int64_t minimum,
    std::int64_t screen, std::int64_t twipsPerPixel)
{
    const std::int64_t margin = 4 * twipsPerPixel;
    length = std::max(length, minimum);
    position = std::max(position, margin);
    if (position + length <= screen - margin)
        return;
    position = std::max(screen - margin - length, margin);
    if (position + length > screen - margin)
        length = screen - position - margin;
}

bool FitsInt32(std::int64_t number) { return number >= INT32_MIN && number <= INT32_MAX; }

} // namespace

std::string cInifile::Value() const
{
    const auto file = ReadIni(m_path);
    const std::optional<std::string_view> value = file->Value(m_section, m_key);
    return std::string(value.value_or(m_default).substr(0, MaxValueLength));
}

void cInifile::Value(std::string_view sValue)
{
    std::string value(sValue);
    std::erase(value, '\0');
    m_lastReturnCode =
        EditIni(m_path, [&](IniText& text) { return text.SetValue(m_section, m_key, value); });
}

void cInifile::DeleteKey()
{
    m_lastReturnCode = EditIni(m_path, [&](IniText& text) {
        text.DeleteKey(m_section, m_key);
        return true;
    });
}

void cInifile::DeleteSection()
{
    m_lastReturnCode = EditIni(m_path, [&](IniText& text) {
        text.DeleteSection(m_section);
        return true;
    });
}

std::string cInifile::INISection() const
{
    return NameList(ReadIni(m_path)->KeyNames(m_section), m_default);
}

/// On purpose: a write with a section and no key is what deletes a section.
void cInifile::INISection(std::string_view) { DeleteSection(); }

std::string cInifile::Sections() const
{
    return NameList(ReadIni(m_path)->SectionNames(), m_default);
}

void cInifile::EnumerateCurrentSection(std::vector<std::string>& sKey, std::int32_t& iCount) const
{
    ListFromOne(PiecesOf(INISection()), sKey, iCount);
}

void cInifile::EnumerateAllSections(std::vector<std::string>& sSections, std::int32_t& iCount) const
{
    std::vector<std::string> names = PiecesOf(Sections());
    std::erase(names, std::string());
    ListFromOne(std::move(names), sSections, iCount);
}

void cInifile::SaveFormPosition(const Placement& frmThis)
{
    if (frmThis.state == WindowState::Minimised)
        return;
    const std::string rememberedKey = m_key;
    const auto write = [this](const char* name, std::int32_t value) {
        m_key = name;
        Value(std::to_string(value));
    };
    const bool maximised = frmThis.state == WindowState::Maximised;
    write("Maximised", maximised ? 1 : 0);
    if (!maximised) {
        write("Left", frmThis.left);
        write("Top", frmThis.top);
        write("Width", frmThis.width);
        write("Height", frmThis.height);
    }
    m_key = rememberedKey;
}

void cInifile::LoadFormPosition(Placement& frmThis, std::int32_t lMinWidth, std::int32_t lMinHeight)
{
    const std::string rememberedKey = m_key, rememberedDefault = m_default;
    m_default = "FAIL";
    const auto read = [this](const char* name, std::int32_t fallback) {
        m_key = name;
        return CLngDefault(Value(), fallback);
    };
    std::int64_t left = read("Left", frmThis.left);
    std::int64_t top = read("Top", frmThis.top);
    std::int64_t width = read("Width", frmThis.width);
    std::int64_t height = read("Height", frmThis.height);
    BringOntoScreen(left, width, lMinWidth, frmThis.screenWidth, frmThis.twipsPerPixelX);
    BringOntoScreen(top, height, lMinHeight, frmThis.screenHeight, frmThis.twipsPerPixelY);
    const bool sound = FitsInt32(left) && FitsInt32(top) && FitsInt32(width) && FitsInt32(height);
    if (!sound) {
        m_lastReturnCode = 0;
    } else {
        if (width >= lMinWidth && height >= lMinHeight) {
            frmThis.left = static_cast<std::int32_t>(left);
            frmThis.top = static_cast<std::int32_t>(top);
            frmThis.width = static_cast<std::int32_t>(width);
            frmThis.height = static_cast<std::int32_t>(height);
        }
        if (read("Maximised", 0) != 0)
            frmThis.state = WindowState::Maximised;
    }
    m_key = rememberedKey;
    m_default = rememberedDefault;
}

std::int32_t cInifile::CLngDefault(std::string_view sString, std::int32_t lDefault)
{
    const std::size_t first = sString.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return lDefault;
    std::string_view text = sString.substr(first);
    text = text.substr(0, text.find_last_not_of(" \t") + 1);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return lDefault;
    const double rounded = std::nearbyint(number); // halves to the even number
    if (rounded < INT32_MIN || rounded > INT32_MAX)
        return lDefault;
    return static_cast<std::int32_t>(rounded);
}

} // namespace vypx
