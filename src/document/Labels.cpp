#include "document/Labels.h"

#include "companion/IconRow.h"

namespace vypx {

namespace {

constexpr std::string_view LargeSuffix = " (Large Icon)", SmallSuffix = " (Small Icon)";
static_assert(LargeSuffix.size() == SmallSuffix.size());

std::string_view SuffixOf(SizeClass size)
{
    return size == SizeClass::Large ? LargeSuffix : SmallSuffix;
}

std::string_view WordOf(SizeClass size) { return size == SizeClass::Large ? "Large" : "Small"; }

} // namespace

std::string LabelOf(std::string_view name, SizeClass size)
{
    return std::string(name) += SuffixOf(size);
}

std::string_view NameInLabel(std::string_view label)
{
    const std::size_t length = label.size();
    return label.substr(0, length < LargeSuffix.size() ? 0 : length - LargeSuffix.size());
}

std::string OwnerNote(std::string_view creator, SizeClass size)
{
    return (std::string(creator) += " - ") += WordOf(size);
}

std::string UnmatchedLabel(std::string_view resourceKey, std::string_view note)
{
    return ((std::string(resourceKey) += " (") += note) += ") ";
}

bool IsOrphanLabel(std::string_view label) { return LabelHolds(label, OrphanNote); }

bool NamesItsResource(std::string_view label) { return LabelHolds(label, "tAIB"); }

std::optional<SizeClass> SizeToImport(std::string_view label)
{
    for (const SizeClass size : { SizeClass::Small, SizeClass::Large })
        if (LabelHolds(label, WordOf(size)))
            return size;
    return std::nullopt;
}

bool SaysIconOf(SizeClass size, std::string_view label)
{
    const std::string_view suffix = SuffixOf(size);
    return LabelHolds(label, suffix.substr(2, suffix.size() - 3)); // "Large Icon"
}

std::optional<SizeClass> SizeOfIconInLabel(std::string_view label)
{
    for (const SizeClass size : { SizeClass::Small, SizeClass::Large })
        if (SaysIconOf(size, label))
            return size;
    return std::nullopt;
}

bool CountsAs(SizeClass size, std::string_view label)
{
    const std::string_view suffix = SuffixOf(size);
    return LabelHolds(label, suffix.substr(1, suffix.size() - 2)); // "(Large Icon"
}

bool SaysWholeIconOf(SizeClass size, std::string_view label)
{
    return LabelHolds(label, SuffixOf(size).substr(1));
}

bool SaysItsSize(std::string_view label)
{
    return SaysWholeIconOf(SizeClass::Large, label) || SaysWholeIconOf(SizeClass::Small, label);
}

SizeClass SizeInIndex(std::string_view label, bool keepUnknown)
{
    const bool isLarge =
        SaysWholeIconOf(SizeClass::Large, label) || (keepUnknown && LabelHolds(label, "Large)"));
    return isLarge ? SizeClass::Large : SizeClass::Small;
}

} // namespace vypx
