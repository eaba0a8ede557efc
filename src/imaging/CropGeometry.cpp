#include "imaging/CropGeometry.h"

#include <algorithm>

namespace vypx {

CropGeometry::CropGeometry(PixelSize slot)
    : m_icon(slot)
{
}

CropSize CropGeometry::CropFrmLoad(PixelSize picture)
{
    if (!m_CropRecSav)
        m_Pscale = 1;
    const bool isHalvedNow = !m_CropPrescaled && IsHalvedFirst(picture);
    m_CropPrescaled |= isHalvedNow;
    const PixelSize source = isHalvedNow ? Halved(picture) : picture;
    const CropSize size = TestCropSize(source);
    if (size != CropSize::Fits)
        return size;
    m_hasBorder = source.width != source.height;
    m_Pscale = CropScale(source, m_Pscale);
    ShowView(source);
    return size;
}

CropSize CropGeometry::PicFit(PixelSize picture)
{
    // On purpose: here scale and border are settled before the size is tested.
    m_Pscale = CropScale(picture, m_Pscale);
    m_hasBorder = picture.width != picture.height;
    const CropSize size = TestCropSize(picture);
    if (size == CropSize::Fits)
        ShowView(picture);
    return size;
}

void CropGeometry::ShowView(PixelSize picture)
{
    m_view = BuildCropView(picture, m_Pscale);
    RebuildRectangle();
    if (m_CropRecSav)
        m_CropRec = *m_CropRecSav;
    m_CropRecSav.reset();
}

PixelSize CropGeometry::Target() const
{
    const int shorter = std::min(m_icon.width, m_icon.height);
    return m_SquareAspect ? PixelSize{ shorter, shorter } : m_icon;
}

void CropGeometry::RebuildRectangle()
{
    m_CropAspect = CropAspect(Target());
    if (HasView())
        m_CropRec = FirstCropRectangle(Target(), m_view.side);
}

void CropGeometry::Press(double x, double y)
{
    m_DragX = x;
    m_DragY = y;
}

void CropGeometry::LeftDrag(double x, double y)
{
    MoveBy(x - m_DragX, y - m_DragY);
    Press(x, y);
}

void CropGeometry::RightDrag(double y)
{
    ResizeBy(y - m_DragY);
    Press(0, y);
}

void CropGeometry::MoveBy(double motionX, double motionY)
{
    if (HasView())
        MoveCropRectangle(m_CropRec, motionX, motionY, m_view.side);
}

void CropGeometry::ResizeBy(double motion)
{
    if (HasView())
        ResizeCropRectangle(m_CropRec, motion, m_CropAspect, m_view.side);
}

} // namespace vypx
