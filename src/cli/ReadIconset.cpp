#include "cli/ReadIconset.h"

#include "catalogs/BuiltInCatalogs.h"
#include "catalogs/CatalogFiles.h"
#include "cli/OpenIconset.h"
#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/LetterCase.h"
#include "settings/Settings.h"

#include <filesystem>
#include <map>
#include <utility>

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

/// Collects the boxes' texts, and the file's bytes before a failure can take them away.
class ReadListener : public CollectedMessages {
public:
    explicit ReadListener(bool keepBytes)
        : m_keepBytes(keepBytes)
    {
    }

    void DuplicateResource(const std::string& resource) override { duplicates.push_back(resource); }
    void DocumentNamed() override
    {
        if (m_keepBytes)
            file.assign(FileCashe.begin() + 1, FileCashe.end() - 1);
    }

    std::vector<std::string> duplicates;
    Bytes file;

private:
    bool m_keepBytes;
};

} // namespace

bool IsWithinLimits(std::int64_t width, std::int64_t height, std::int64_t rowBytes)
{
    return width * height <= MostPixels && rowBytes * height <= MostPixels * 2;
}

bool IsTemplate(const ReadOptions& options) { return LowerCase(options.file).ends_with(".vpt"); }

ReadEnd ReadIconset(const ReadOptions& options, PictureSink& pictures, bool keepBytes)
{
    SetDefaultSettings();
    SetDefaultColorDepth("16-Bit");
    UseCatalogs(options.appFolder);
    const LoadRequest request{
        .path = options.file,
        .asTemplate = IsTemplate(options),
        .chosenBefore = true, // whatever its name ends in; and no folder is cleaned
        .pictures = &pictures,
        .largest = LargestIconset,
    };
    ReadListener listener(keepBytes);
    const LoadReport report = LoadFile(request, listener);
    return { report, std::move(listener.texts), std::move(listener.duplicates),
        std::move(listener.file) };
}

void TellEnd(const ReadEnd& end)
{
    std::map<std::string_view, int> times;
    for (const std::string& text : end.messages)
        ++times[text];
    for (const std::string& text : end.messages) {
        const int count = std::exchange(times[text], 0);
        if (count > 0)
            Tell(Printable(text) + (count > 1 ? " (" + std::to_string(count) + " times)" : ""));
    }
    Tell(NoteOf(end.report));
}

std::string Printable(std::string_view latin1)
{
    std::string printable = WithoutControls(Utf8FromLatin1(latin1));
    for (std::size_t at = 0; (at = printable.find('\n', at)) != std::string::npos;)
        printable.replace(at, 1, "\\x0A");
    return printable;
}

} // namespace vypx
