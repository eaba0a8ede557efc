#include "cli/Import.h"

#include "cli/PictureList.h"
#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "document/Selection.h"
#include "document/WorkingFolder.h"
#include "imaging/CropResult.h"
#include "imaging/Import.h"
#include "imaging/SizeChecks.h"
#include "pictures/PictureLoader.h"
#include "settings/Settings.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace vypx {

namespace {

/// Finds the icons of the open document by what lists call them.
class IconFinder {
public:
    /// A label comes before a resource; of the icons that share one, the first that takes pictures.
    IconFinder()
    {
        for (const IconRow& row : IconTable)
            Add(row.IconLabel, row);
        for (const IconRow& row : IconTable)
            if (SizeToImport(row.IconLabel))
                Add(row.ResourceKey, row);
        for (const IconRow& row : IconTable)
            Add(row.ResourceKey, row);
    }

    /// Null: there is no such icon.
    const IconRow* Find(const std::string& utf8) const
    {
        const auto found = m_rows.find(utf8);
        return found == m_rows.end() ? nullptr : found->second;
    }

private:
    void Add(const std::string& name, const IconRow& row)
    {
        if (!row.IconLabel.empty())
            m_rows.emplace(Utf8FromLatin1(name), &row);
    }

    std::unordered_map<std::string, const IconRow*> m_rows;
};

std::string SizeText(const Picture& picture)
{
    return std::to_string(picture.Width()) + " x " + std::to_string(picture.Height());
}

bool IsInside(const PixelRegion& region, const Picture& picture)
{
    const auto fits = [](int start, int length, int whole) {
        return start < whole && length <= whole - start;
    };
    return fits(region.left, region.width, picture.Width())
        && fits(region.top, region.height, picture.Height());
}

/// Takes the place of the windows, the crop window among them. Of what an import tells, the last
/// counts, as on a note line.
class ToolHost : public PictureHost {
public:
    ToolHost(const PictureLine& line, bool stretches)
        : m_line(&line)
        , m_stretches(stretches)
    {
    }

    LoadedPicture Load(const std::string& path) override
    {
        LoadedPicture loaded = LoadPicture(path);
        // The picture of the line comes first; behind it the half of what was stored.
        const PictureLine* const line = std::exchange(m_line, nullptr);
        if (line && !loaded.picture.pixels.IsNull())
            BringToSlot(line->region, loaded);
        return loaded;
    }
    void Message(std::string_view text, std::string_view) override { m_told = text; }
    void Note(const std::string& text) override { m_told = text; }
    void ShowCrop(const Slot&) override
    {
        m_told = "The picture has " + SizeText(picbuff.pixels) + " pixels; this slot takes "
            + std::to_string(TargetWidth) + " x " + std::to_string(TargetHeight) + " at most.";
    }

    void LowResFailed() override { m_lowResFailed = true; }

    bool HasLowResFailed() const { return m_lowResFailed; }
    const std::string& Told() const { return m_told; }

private:
    /// Cuts the region, if there is one, or leaves no picture.
    void BringToSlot(const std::optional<PixelRegion>& region, LoadedPicture& loaded) const
    {
        MaskedPicture& picture = loaded.picture;
        const int width = picture.pixels.Width(), height = picture.pixels.Height();
        if (region && !IsInside(*region, picture.pixels)) {
            loaded = { .whyNot = "the region is not wholly inside of its "
                    + SizeText(picture.pixels) + " pixels" };
            return;
        }
        if (region)
            picture = CutRegion(std::move(picture), *region, Black);
        if (region || (m_stretches && ExceedsTarget(width, height)))
            picture = ScaleCropResult(picture, { TargetWidth, TargetHeight }, Depth());
    }

    const PictureLine* m_line; // until its picture was loaded
    bool m_stretches;
    std::string m_told;
    bool m_lowResFailed = false;
};

/// What a list or a name in it says must not move the cursor of a terminal, nor fill it.
std::string Printable(std::string_view utf8)
{
    constexpr std::size_t longest = 500;
    std::size_t length = std::min(longest, utf8.size());
    while (length < utf8.size() && (utf8[length] & 0xC0) == 0x80)
        --length; // back to where a character begins
    std::string printable(utf8.substr(0, length));
    for (std::size_t i = 0; i < printable.size(); ++i) {
        const auto letter = static_cast<unsigned char>(printable[i]);
        if (letter < ' ' || letter == 0x7F)
            printable[i] = '?';
        // U+0080 to U+009F, C2 80 to C2 9F in UTF-8, are control characters to some.
        if (letter == 0xC2 && i + 1 < printable.size()
            && static_cast<unsigned char>(printable[i + 1]) < 0xA0)
            printable.replace(i, 2, "?");
    }
    return length < utf8.size() ? printable + "..." : printable;
}

void TellOfLine(const PictureLine& line, std::string_view text)
{
    Tell("line " + std::to_string(line.number) + ": " + Printable(text));
}

/// False, and a word to standard error, when the line can't be followed.
bool Follow(const PictureLine& line, const IconRow& icon, bool stretches)
{
    SelectNode(icon.IconLabel, Tree.Root());
    TargetWidth = TargetHeight = 0; // what stands in a line counts for it alone
    DroppedFile = true;
    DroppedFileName = line.path;
    ToolHost host(line, stretches);
    const ImportResult result = ImportPicture(*line.slot, host);
    // A picture that came in may have no half to make a low-res one of.
    if (!host.Told().empty())
        TellOfLine(line, host.Told());
    return result == ImportResult::Stored && !host.HasLowResFailed();
}

/// The same, of a line that nothing is known of.
bool ImportLine(const PictureLine& line, const IconFinder& icons, bool stretches)
{
    try {
        if (!line.whyNot.empty())
            throw PictureFault(line.whyNot);
        const IconRow* const icon = icons.Find(line.icon);
        if (!icon)
            throw PictureFault("No icon has the label or resource \"" + line.icon + "\".");
        if (!SizeToImport(icon->IconLabel))
            throw PictureFault("The icon \"" + line.icon + "\" takes no pictures.");
        return Follow(line, *icon, stretches);
    } catch (const PictureFault& fault) {
        TellOfLine(line, fault.what());
        return false;
    }
}

bool ImportAll(const std::vector<PictureLine>& lines, bool stretches)
{
    const IconFinder icons;
    bool all = true;
    for (const PictureLine& line : lines)
        all = ImportLine(line, icons, stretches) && all;
    return all;
}

} // namespace

int Import(const ImportOptions& options)
{
    const auto lines = ReadPictureList(options.list);
    if (!lines) {
        Tell("the list can't be read: " + options.list);
        return 2;
    }
    if (!OpenAndTell(options.open))
        return 2;
    AutoCreateLowRes = options.lowRes;
    if (FileLoaded && !ImportAll(*lines, options.stretch))
        return 1;
    return SaveIconset(options.save);
}

} // namespace vypx
