#include "cli/Convert.h"

#include "companion/Latin1.h"
#include "document/Document.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"

namespace vypx {

int Convert(const ConvertOptions& options)
{
    CollectedMessages messages;
    if (!OpenIconset(options.open, messages))
        return 2;
    for (const std::string& text : messages.texts)
        Tell(Utf8FromLatin1(text));
    if (const auto why = WhyNotSaved()) {
        Tell(*why);
        return 1;
    }
    UsePackbits = options.packed;
    KeepUnknown = !options.dropUnknown;
    if (options.versionString)
        VersionString = Latin1FromUtf8(*options.versionString);
    if (options.databaseName)
        DatabaseName = Latin1FromUtf8(*options.databaseName);
    try {
        Tell(NoteOf(CompileIconset({ .path = options.out }))); // OUT is complete all the same
    } catch (const SaveFailure& failure) {
        Tell(failure.what());
        return 1;
    }
    return 0;
}

} // namespace vypx
