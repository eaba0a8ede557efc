#pragma once

#include "document/Slot.h"
#include "forms/PictureBox.h"

#include <QGroupBox>
#include <QLabel>

namespace vypx {

/// The controls of one of the two panels, `LG` (high-res) or `SM` (low-res). One routine over this
/// serves both.
struct Panel {
    const Slot* slot;       ///< what it shows
    QGroupBox* frame;       ///< frameLG
    PictureBox* box;        ///< picLGfrm, the background
    PictureBox* picture;    ///< picLG, sized to the picture
    QLabel* sizeLimit;      ///< lblLG_Size
    QLabel* size;           ///< lbl_LGsize
    QGroupBox* colourFrame; ///< frameTC_LG
    PictureBox* swatch;     ///< picColSwatchLG
    QLabel* colour;         ///< lblC_RGB_LG
    QLabel* noColour;       ///< lblNoTransparentLG
};

} // namespace vypx
