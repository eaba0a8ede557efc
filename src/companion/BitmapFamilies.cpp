#include "companion/BitmapFamilies.h"

#include "companion/BmpFile.h"
#include "companion/Numbers.h"
#include "platform/Platform.h"

namespace vypx {

namespace {

CompileFailure Failure(
    const std::string& workFolder, const std::string& name, const std::string& reason)
{
    return { .file = workFolder + name, .reason = reason };
}

/// Either may be empty.
Bytes Joined(Bytes low, const Bytes& high)
{
    if (high.empty())
        return low;
    const Bytes mark = HighDensityMark();
    low.insert(low.end(), mark.begin(), mark.end());
    low.insert(low.end(), high.begin(), high.end());
    return low;
}

} // namespace

Bytes ReadWorkingBytes(const std::string& workFolder, const std::string& name)
{
    std::optional<Bytes> bytes = platform::ReadWholeFile(workFolder + name);
    if (!bytes)
        throw Failure(workFolder, name, "it is missing or can't be read");
    return *std::move(bytes);
}

PictureFamilies::PictureFamilies(std::span<const TransparencyRow> transparency,
    const RecordForm& form, const std::string& workFolder)
    : m_form(form)
    , m_workFolder(workFolder)
{
    for (const TransparencyRow& row : transparency)
        if (!row.file.empty())
            m_transparency[row.file] = &row; // a later row overrides an earlier one
}

Bytes PictureFamilies::Of(const ResourceRow& row) const
{
    Bytes low, high;
    if (!row.lowFile.empty())
        low = Encoded(row.lowFile, [&](const Picture& picture, const Colour& colour) {
            return EncodeLowDensity(picture, m_form, colour, !row.highFile.empty());
        });
    if (!row.highFile.empty())
        high = Encoded(row.highFile, [&](const Picture& picture, const Colour& colour) {
            return EncodeHighDensity(picture, m_form, colour);
        });
    return Joined(std::move(low), high);
}

template <typename Encode>
Bytes PictureFamilies::Encoded(const std::string& name, const Encode& encode) const
{
    const Picture picture = ReadPicture(name);
    try {
        return encode(picture, ColourOf(name));
    } catch (const RecordTooLarge& failure) {
        throw Failure(m_workFolder, name, failure.what());
    }
}

Picture PictureFamilies::ReadPicture(const std::string& name) const
{
    std::optional<Picture> picture = DecodeBmp(ReadWorkingBytes(m_workFolder, name));
    if (!picture)
        throw Failure(m_workFolder, name, "it can't be read as a picture");
    return *std::move(picture);
}

PictureFamilies::Colour PictureFamilies::ColourOf(const std::string& file) const
{
    const auto found = m_transparency.find(file);
    if (found == m_transparency.end() || found->second->flag != "1")
        return std::nullopt;
    const TransparencyRow& row = *found->second;
    const auto component = [](const std::string& text) { return LeadingWhole(text, 0, 255); };
    const auto red = component(row.red), green = component(row.green), blue = component(row.blue);
    if (!red || !green || !blue)
        return std::nullopt;
    return Rgb{ *red, *green, *blue };
}

Bytes FamilyWithoutPictures(const ResourceRow& row, Palette palette4)
{
    Picture pixel(1, 1);
    pixel.Set(0, 0, { 255, 255, 255 });
    const RecordForm form{ .depth = 4, .palette4 = palette4 };
    Bytes low, high;
    if (!row.lowFile.empty())
        low = EncodeLowDensity(pixel, form, std::nullopt, !row.highFile.empty());
    if (!row.highFile.empty())
        high = EncodeHighDensity(pixel, form, std::nullopt);
    return Joined(std::move(low), high);
}

} // namespace vypx
