#include "imaging/CropTask.h"

#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "imaging/WorkingPicture.h"

#include <utility>

namespace vypx {

namespace {

std::string_view MessageFor(CropSize size)
{
    switch (size) {
    case CropSize::ToLarge:
        return ImageToLarge;
    case CropSize::ToSmall:
        return ImageToSmall;
    default:
        return {};
    }
}

/// Enlarged pixels stay squares, so that the user sees which of them are under the rectangle.
MaskedPicture Enlarged(const MaskedPicture& source, PixelSize size)
{
    MaskedPicture enlarged{ Picture(size.width, size.height), source.transparent };
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            enlarged.pixels.Set(x, y,
                source.pixels.At(x * source.pixels.Width() / size.width,
                    y * source.pixels.Height() / size.height));
    return enlarged;
}

MaskedPicture InSize(const MaskedPicture& source, PixelSize size)
{
    if (size.width >= source.pixels.Width() && size.height >= source.pixels.Height())
        return Enlarged(source, size);
    return ScaleCropResult(source, size, ColorDepth::Bits16);
}

} // namespace

CropTask::CropTask(const Slot& slot, ColorDepth depth)
    : m_slot(slot)
    , m_depth(depth)
    , m_label(SelectedText())
    , m_path(slot.path)
    , m_transparent(ScratchTransparent)
    , m_geometry({ TargetWidth, TargetHeight })
{
    CropBackR = CropBackG = CropBackB = 255;
}

std::string_view CropTask::CropFrmLoad()
{
    MaskedPicture source = FileExists(ImageFile) ? Source() : MaskedPicture();
    if (source.pixels.IsNull()) {
        m_geometry.ForgetSavedRectangle();
        return WhyNoSource();
    }
    const PixelSize whole{ source.pixels.Width(), source.pixels.Height() };
    const bool isHalvedNow = !m_geometry.CropPrescaled() && IsHalvedFirst(whole);
    if (isHalvedNow)
        Halve(source);
    const CropSize size = m_geometry.CropFrmLoad(whole);
    if (isHalvedNow && size == CropSize::Fits)
        WriteScratch(source);
    return View(size, source);
}

void CropTask::Halve(MaskedPicture& source)
{
    const PixelSize half = Halved({ source.pixels.Width(), source.pixels.Height() });
    m_hasNoHalf = half.width < 1 || half.height < 1;
    if (m_hasNoHalf)
        return;
    source = ScaleCropResult(source, half, ColorDepth::Bits16);
    WriteWorkingBmp24(HalfScratchName, source.pixels);
}

std::string_view CropTask::PicFit()
{
    m_shown = {};
    // On purpose: the border is white again.
    CropBackR = CropBackG = CropBackB = 255;
    const MaskedPicture source = Source();
    if (source.pixels.IsNull())
        return WhyNoSource();
    return View(m_geometry.PicFit({ source.pixels.Width(), source.pixels.Height() }), source);
}

std::string_view CropTask::View(CropSize size, const MaskedPicture& source)
{
    if (size == CropSize::Fits)
        Show(InSize(source, m_geometry.View().shown), source);
    return MessageFor(size);
}

void CropTask::Show(MaskedPicture shown, const MaskedPicture& source)
{
    m_shown = std::move(shown);
    m_sourceSize = { source.pixels.Width(), source.pixels.Height() };
}

std::string_view CropTask::StretchPreview()
{
    const MaskedPicture source = Read(ScratchPath());
    if (source.pixels.IsNull())
        return UnableToLoad;
    m_shown = {};
    const PixelSize target{ TargetWidth, TargetHeight };
    const CropSize size = TestCropSize(target);
    if (size == CropSize::Fits)
        Show(ScaleCropResult(source, target, m_depth), source);
    return MessageFor(size);
}

void CropTask::ChooseAspect(bool square)
{
    m_geometry.ChooseAspect(square);
    const PixelSize target = m_geometry.Target();
    TargetWidth = target.width;
    TargetHeight = target.height;
}

std::string_view CropTask::Crop()
{
    MaskedPicture source = m_shown.pixels.IsNull() ? MaskedPicture() : Source();
    if (source.pixels.IsNull())
        return ErrorProcessing;
    const Rgb border{ CropBackR, CropBackG, CropBackB };
    const MaskedPicture cut = CutRegion(std::move(source), m_geometry.Region(), border);
    WriteScratch(ScaleCropResult(cut, { TargetWidth, TargetHeight }, m_depth));
    return {};
}

std::string_view CropTask::Stretch()
{
    const MaskedPicture source = Read(ScratchPath());
    if (source.pixels.IsNull())
        return UnableToLoad;
    WriteScratch(ScaleCropResult(source, { TargetWidth, TargetHeight }, m_depth));
    return {};
}

bool CropTask::HandOver() const
{
    const bool isAwaited = m_slot.cropFor && SelectedText() == m_label && m_slot.path == m_path;
    CropForLG = CropForSM = false;
    CropResultReady = isAwaited;
    if (isAwaited)
        ImageFile = ScratchPath();
    return isAwaited;
}

/// What is cropped: the half where there is one.
MaskedPicture CropTask::Source() const
{
    if (m_hasNoHalf)
        return {};
    return Read(m_geometry.CropPrescaled() ? WorkPath(HalfScratchName) : ScratchPath());
}

std::string_view CropTask::WhyNoSource() const { return m_hasNoHalf ? ImageToSmall : UnableToLoad; }

/// Null for a file that is not there or is none of our pictures.
MaskedPicture CropTask::Read(const std::string& path) const
{
    std::optional<Picture> picture = ReadWorkingPicture(path);
    return picture ? MaskedPicture{ std::move(*picture), m_transparent } : MaskedPicture();
}

} // namespace vypx
