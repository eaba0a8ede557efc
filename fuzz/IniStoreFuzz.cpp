// An ini file of any bytes: parsed, listed, looked up and edited. The first bytes say what is
// written; the rest is the file.

#include "settings/IniText.h"

#include <cstdint>
#include <cstdlib>

namespace {

using vypx::IniText;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Every name that is listed can be looked up.
void LookUpEverything(const IniText& text)
{
    for (const std::string& section : text.SectionNames())
        for (const std::string& key : text.KeyNames(section))
            Require(text.Value(section, key).has_value());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view all(reinterpret_cast<const char*>(data), size);
    const std::size_t nameEnd = all.find('|');
    const std::string_view name = all.substr(0, nameEnd);
    const std::string_view bytes =
        nameEnd == std::string_view::npos ? std::string_view() : all.substr(nameEnd + 1);

    IniText text(bytes);
    Require(text.Bytes() == bytes);
    LookUpEverything(text);

    const std::size_t sections = text.SectionNames().size();
    if (text.SetValue(name, "key", "value")) {
        const IniText again(text.Bytes());
        Require(again.Value(name, "key") == "value");
        Require(again.SectionNames().size() <= sections + 1);
        LookUpEverything(again);
    }
    if (text.SetValue("other", name, "value"))
        Require(IniText(text.Bytes()).Value("other", name) == "value");
    text.DeleteKey("other", name);
    Require(!text.Value("other", name));
    text.DeleteSection(name);
    Require(text.KeyNames(name).empty());
    return 0;
}
