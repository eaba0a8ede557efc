#include "cli/OpenIconset.h"

#include "catalogs/CatalogFiles.h"
#include "cli/OutputFolder.h"
#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"

#include <cstdio>
#include <filesystem>
#include <iostream>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// Makes `options.appFolder` the program's folder and the work folder the one of this run.
/// False, and a word to standard error, when it can't serve: files that are there already would be
/// deleted by the load.
bool UseFolders(const OpenOptions& options)
{
    OutputFolder folder;
    if (folder.Take(options.workFolder, "the work folder") != OutputFolder::Use::Serves)
        return false;
    folder.Keep();
    const fs::path work = platform::NativePath(options.workFolder);
    // The work folder stands wherever the caller wants it; from the program's folder a way leads
    // there.
    const fs::path app = fs::canonical(platform::NativePath(options.appFolder));
    AppFolder = platform::Utf8Path(app);
    TempSuffix = BelowFolder(platform::Utf8Path(fs::canonical(work).lexically_relative(app)));
    return true;
}

void UseSettings(const OpenOptions& options)
{
    SetDefaultSettings();
    SetDefaultColorDepth(options.depth);
    HighResOnly = options.only == "high";
    LowResOnly = options.only == "low";
}

std::string EscapedByte(unsigned code)
{
    char text[sizeof "\\x1B"];
    std::snprintf(text, sizeof text, "\\x%02X", code);
    return text;
}

} // namespace

std::string WithoutControls(std::string_view utf8)
{
    std::string made;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto code = static_cast<unsigned char>(utf8[i]);
        const auto next = static_cast<unsigned char>(i + 1 < utf8.size() ? utf8[i + 1] : 0);
        if ((code < 0x20 && code != '\n') || code == 0x7F) {
            made += EscapedByte(code);
        } else if (code == 0xC2 && next >= 0x80 && next < 0xA0) {
            made += EscapedByte(next); // U+0080 to U+009F
            ++i;
        } else {
            made += utf8[i];
        }
    }
    return made;
}

void Tell(std::string_view text)
{
    if (!text.empty())
        std::cerr << "pixelworks-cli: " << WithoutControls(text) << '\n';
}

bool OpenIconset(const OpenOptions& options, CollectedMessages& messages)
{
    if (!UseFolders(options))
        return false;
    UseSettings(options);
    for (const CutCatalog& cut :
        ReadCatalogs([&](std::string_view text) { messages.Message(text); }))
        Tell(NoteOf(cut));
    Tell(NoteOf(LoadFile({ .path = options.file, .asTemplate = options.asTemplate }, messages)));
    return true;
}

bool OpenAndTell(const OpenOptions& options)
{
    CollectedMessages messages;
    const bool foldersServe = OpenIconset(options, messages);
    for (const std::string& text : messages.texts)
        Tell(Utf8FromLatin1(text));
    return foldersServe;
}

} // namespace vypx
