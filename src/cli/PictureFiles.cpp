#include "cli/PictureFiles.h"

#include "cli/Extract.h"
#include "cli/WritePng.h"

#include <algorithm>
#include <utility>

namespace vypx {

namespace {

constexpr std::string_view TooMuch = "its pictures have more pixels in all than are extracted";

} // namespace

PictureFiles::PictureFiles(OutputFolder& folder)
    : m_folder(folder)
    , m_pixelsLeft(MostPixelsInAll)
{
}

bool PictureFiles::Wants(const PictureHeader& header)
{
    if (!m_failure.empty())
        return false;
    if (!IsWithinLimits(header)) {
        PassOver(header, "it claims more pixels than are decoded");
        return false;
    }
    m_pixelsLeft -= std::int64_t{ header.width } * header.height;
    if (m_pixelsLeft < 0)
        m_failure = TooMuch;
    return m_failure.empty();
}

void PictureFiles::Take(const PictureHeader& header, Picture picture)
{
    if (picture.IsNull()) {
        PassOver(header, "its record gives no picture");
        return;
    }
    // Keys of what is decoded are a known type and a number: they can't lead out of the folder.
    const std::string density = header.highDensity ? "-high.png" : "-low.png";
    const int times = ++m_times[header.resourceKey + density];
    const std::string name =
        header.resourceKey + (times > 1 ? "-" + std::to_string(times) : "") + density;
    m_failure = WritePng(m_folder.NewFile(name),
        WithOpacity({ std::move(picture), header.transparent }), FileWay::Anew);
    if (m_failure.empty())
        m_pictures.push_back({ .header = header, .file = name });
}

void PictureFiles::NoteMissing(const std::string& resourceKey, std::string whyNot)
{
    const bool came = std::any_of(m_pictures.begin(), m_pictures.end(),
        [&](const ExtractedPicture& picture) { return picture.header.resourceKey == resourceKey; });
    if (!came)
        PassOver({ .resourceKey = resourceKey }, std::move(whyNot));
}

void PictureFiles::PassOver(const PictureHeader& header, std::string whyNot)
{
    m_pictures.push_back({ .header = header, .whyNot = std::move(whyNot) });
}

} // namespace vypx
