#include "cli/ReadIconset.h"

#include "catalogs/BuiltInCatalogs.h"
#include "catalogs/CatalogFiles.h"
#include "cli/OpenIconset.h"
#include "companion/Latin1.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

#include <cstdio>
#include <filesystem>

namespace vypx {

namespace {

void UseCatalogs(const std::string& folder)
{
    HoldCatalogs(folder.empty()
            ? folder
            : platform::Utf8Path(std::filesystem::canonical(platform::NativePath(folder))));
    const auto tell = [](std::string_view text) { Tell(Utf8FromLatin1(text)); };
    for (const CutCatalog& cut : ReadCatalogs(tell))
        Tell(NoteOf(cut));
}

} // namespace

bool IsWithinLimits(const PictureHeader& header)
{
    const std::int64_t height = header.height;
    return header.width * height <= MostPixels && header.rowBytes * height <= MostPixels * 2;
}

ReadEnd ReadIconset(const ReadOptions& options, PictureSink& pictures)
{
    SetDefaultSettings();
    SetDefaultColorDepth("16-Bit");
    UseCatalogs(options.appFolder);
    LoadRequest request{
        .path = options.file,
        .asTemplate = true,
        .chosenBefore = true, // whatever its name ends in; and no folder is cleaned
        .pictures = &pictures,
        .largest = LargestIconset,
    };
    request.asTemplate = HasTheRightExtension(request);
    CollectedMessages messages;
    const LoadReport report = LoadFile(request, messages);
    return { report, std::move(messages.texts) };
}

void TellEnd(const ReadEnd& end)
{
    for (const std::string& text : end.messages)
        Tell(Printable(text));
    Tell(NoteOf(end.report));
}

std::string Printable(std::string_view latin1)
{
    std::string printable;
    for (const char letter : latin1) {
        const auto code = static_cast<unsigned char>(letter);
        const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
        if (isControl) {
            char text[sizeof "\\x1B"];
            std::snprintf(text, sizeof text, "\\x%02X", unsigned{ code });
            printable += text;
        } else {
            printable += Utf8FromLatin1({ &letter, 1 });
        }
    }
    return printable;
}

} // namespace vypx
