#include "cli/Convert.h"

#include "cli/DocumentJson.h"
#include "document/Document.h"
#include "settings/Settings.h"
#include "writer/CompileIconset.h"
#include "writer/ReadBack.h"
#include "writer/SaveChecks.h"

#include <iostream>

namespace vypx {

namespace {

/// Latin-1 of a UTF-8 text; a character beyond Latin-1 becomes "?".
std::string Latin1FromUtf8(std::string_view utf8)
{
    std::string latin1;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        const bool isContinuation = (byte & 0xC0) == 0x80;
        if (byte < 0x80)
            latin1 += static_cast<char>(byte);
        else if ((byte & 0xFC) == 0xC0 && i + 1 < utf8.size())
            latin1 += static_cast<char>((byte & 3) << 6 | (utf8[++i] & 0x3F));
        else if (!isContinuation)
            latin1 += '?';
    }
    return latin1;
}

void Tell(std::string_view text) { std::cerr << "pixelworks-cli: " << text << '\n'; }

} // namespace

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
    FileName = options.out;
    SavingAs = true;
    try {
        CompileIconset();
        if (const std::string lost = IconsWithoutRoom(); !lost.empty())
            Tell(lost); // OUT is complete all the same
    } catch (const SaveFailure& failure) {
        Tell(failure.what());
        return 1;
    }
    return 0;
}

} // namespace vypx
