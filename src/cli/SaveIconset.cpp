#include "cli/SaveIconset.h"

#include "cli/OpenIconset.h"
#include "companion/Latin1.h"
#include "document/Document.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"
#include "writer/TemplateExport.h"

#include <algorithm>

namespace vypx {

namespace {

/// The name is written as it was given; what a reader will not show of it is told.
std::string NameToWrite(const std::string& utf8)
{
    const std::string name = Latin1FromUtf8(utf8);
    const auto isKept = [](char letter) {
        return CanStandInName(static_cast<unsigned char>(letter));
    };
    if (!std::all_of(name.begin(), name.end(), isKept))
        Tell("--name: readers end the name before the first character outside of 32 to 126");
    if (name.size() > LongestName)
        Tell("--name: only the first 31 characters are written");
    return name;
}

/// What keeps the document from being written, in words; empty: nothing does.
std::string_view WhyNot(const SaveOptions& options)
{
    if (!options.asTemplate)
        return WhyNotSaved().value_or(std::string_view());
    if (const auto why = WhyNotExported())
        return *why;
    return WouldReplaceOpenIconset(options.out) ? "a template can't take the place of FILE itself"
                                                : std::string_view();
}

SaveReport Write(const SaveOptions& options)
{
    return options.asTemplate ? ExportTemplate(options.out)
                              : CompileIconset({ .path = options.out });
}

} // namespace

int SaveIconset(const SaveOptions& options)
{
    if (const std::string_view why = WhyNot(options); !why.empty()) {
        Tell(why);
        return 1;
    }
    if (options.asTemplate && !HasTheRightExtension({ .path = options.out, .asTemplate = true }))
        Tell("OUT does not end in .vpt: the program will not load it as a template");
    UsePackbits = options.packed;
    KeepUnknown = !options.dropUnknown;
    if (options.versionString)
        VersionString = Latin1FromUtf8(*options.versionString);
    if (options.databaseName)
        DatabaseName = NameToWrite(*options.databaseName);
    try {
        Tell(NoteOf(Write(options))); // `out` is complete all the same
    } catch (const SaveFailure& failure) {
        Tell(failure.what());
        return 1;
    }
    return 0;
}

} // namespace vypx
