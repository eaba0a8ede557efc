#pragma once

#include "imaging/CropRectangle.h"
#include "imaging/CropView.h"

#include <optional>

/// All that the crop window computes, without a window: from the size of the picture and of the
/// slot to the pixels that are cut. A point on the view is given in twips from its left upper
/// corner.
namespace vypx {

/// What one opening of the crop window knows. Used in this order: CropFrmLoad, then drags, choices
/// of aspect, further CropFrmLoad and PicFit, at last Region.
class CropGeometry {
public:
    /// `slot` (IconX, IconY) is the target on entry, in pixels.
    explicit CropGeometry(PixelSize slot);

    /// Builds the view of a picture and its first rectangle, or puts back a saved one. At the first
    /// call a picture above 2400 pixels is halved (see CropPrescaled); later ones are given the
    /// halved picture, and nothing is halved again. A picture that doesn't fit changes nothing
    /// else: what was shown stays.
    CropSize CropFrmLoad(PixelSize picture);
    /// The same on the return from stretching, with the picture as CropFrmLoad left it.
    CropSize PicFit(PixelSize picture);

    /// Whether a picture is shown; without one there is no rectangle and no region.
    bool HasView() const { return m_view.side > 0; }
    const CropView& View() const { return m_view; }
    /// Whether the picture was halved, so that the half takes the source's place on disk.
    bool CropPrescaled() const { return m_CropPrescaled; }
    /// Whether the view has a border whose colour can be chosen; a square picture has none.
    bool HasBorder() const { return m_hasBorder; }

    /// `TargetWidth` and `TargetHeight`: the slot, or a square of its shorter side.
    PixelSize Target() const;
    bool SquareAspect() const { return m_SquareAspect; }
    /// Chooses the target's aspect. The rectangle stays as it is until RebuildRectangle.
    void ChooseAspect(bool square) { m_SquareAspect = square; }
    /// A first rectangle of the target's aspect, as while cropping a choice of aspect brings it.
    void RebuildRectangle();

    const CropRectangle& Rectangle() const { return m_CropRec; }
    /// Keeps the rectangle for the next CropFrmLoad or PicFit.
    void SaveRectangle() { m_CropRecSav = m_CropRec; }
    void ForgetSavedRectangle() { m_CropRecSav.reset(); }

    /// A mouse button goes down on the view; the drags begin there.
    void Press(double x, double y);
    /// The mouse is moved with the left button down: the rectangle moves with it.
    void LeftDrag(double x, double y);
    /// The mouse is moved with the right button down: downward makes the rectangle larger, upward
    /// smaller.
    void RightDrag(double y);
    /// What the drags do, by the length of a motion; for keys.
    void MoveBy(double motionX, double motionY);
    void ResizeBy(double motion);

    /// The pixels under the rectangle, see RegionUnder. The picture is the halved one where it was
    /// halved.
    PixelRegion Region() const { return RegionUnder(m_CropRec, m_view); }

private:
    void ShowView(PixelSize picture);

    PixelSize m_icon; // IconX, IconY
    bool m_SquareAspect = false;
    bool m_CropPrescaled = false;
    bool m_hasBorder = true;
    double m_Pscale = 1;
    CropView m_view;
    CropRectangle m_CropRec;
    std::optional<CropRectangle> m_CropRecSav;
    double m_CropAspect = 1;
    double m_DragX = 0, m_DragY = 0; // the last place of the mouse
};

} // namespace vypx
