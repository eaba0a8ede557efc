#include "cli/JudgedPictures.h"

#include "companion/PalmRecord.h"
#include "document/Document.h"
#include "document/Slot.h"
#include "settings/Settings.h"

namespace vypx {

namespace {

std::string PlaceOf(const PictureHeader& header)
{
    return header.file.substr(0, header.file.rfind('.'));
}

std::string SizeText(int width, int height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

JudgedPictures::Record Encoded(const PictureHeader& header, const Picture& picture)
{
    const RecordForm form{ .depth = BitsOf(DefaultColorDepth),
        .packed = UsePackbits,
        .palette8 = Palette8,
        .palette4 = Palette4 };
    try {
        const Bytes record = header.highDensity
            ? EncodeHighDensity(picture, form, header.transparent)
            : EncodeLowDensity(picture, form, header.transparent, false);
        return { .bytes = record.size() };
    } catch (const RecordTooLarge&) {
        return { .isTooLarge = true };
    }
}

} // namespace

bool JudgedPictures::Wants(const PictureHeader& header)
{
    if (!m_ofTemplate)
        JudgeSize(header);
    if (IsWithinLimits(header))
        return true;
    m_findings.Add(PlaceOf(header), "it claims more pixels than are looked at");
    m_records[header.file] = { .isUnknown = true };
    return false;
}

void JudgedPictures::Take(const PictureHeader& header, Picture picture)
{
    if (m_ofTemplate)
        JudgeTemplatePicture(header, picture);
    else if (!picture.IsNull()) // else the file of a repeated resource stays, if there is one
        m_records[header.file] = Encoded(header, picture);
}

std::optional<JudgedPictures::Record> JudgedPictures::RecordOf(const std::string& file) const
{
    const auto found = m_records.find(file);
    return found == m_records.end() ? std::nullopt : std::optional(found->second);
}

/// Against the slots of the icons that show it.
void JudgedPictures::JudgeSize(const PictureHeader& header)
{
    const Slot& slot = header.highDensity ? SlotLG : SlotSM;
    for (const IconRow& row : IconTable) {
        if (row.ResourceKey != header.resourceKey)
            continue;
        const std::optional<SizeClass> size = SizeToImport(row.IconLabel);
        if (!size)
            continue;
        const PixelSize limit = slot.LimitOf(*size);
        if (header.width > limit.width || header.height > limit.height)
            m_findings.Add(PlaceOf(header),
                "it has " + SizeText(header.width, header.height) + " pixels, more than the "
                    + SizeText(limit.width, limit.height) + " of \"" + row.IconLabel + "\"");
    }
}

void JudgedPictures::JudgeTemplatePicture(const PictureHeader& header, const Picture& picture)
{
    constexpr Rgb White{ 255, 255, 255 };
    const bool isOnePixel = picture.Width() == 1 && picture.Height() == 1;
    if (!isOnePixel || picture.At(0, 0) != White)
        m_findings.Add(PlaceOf(header),
            "it has " + SizeText(header.width, header.height)
                + " pixels, where a template has one white one: a load forgets it");
}

} // namespace vypx
