#pragma once

#include "forms/PictureBox.h"

#include <QGroupBox>
#include <QLabel>

namespace vypx {

/// The controls of one of the two panels, `LG` (high-res) or `SM` (low-res). One routine over this
/// serves both.
struct Panel {
    std::string_view letters; ///< "LG" or "SM", as names of controls end
    QGroupBox* frame;         ///< frameLG
    PictureBox* box;          ///< picLGfrm, the background
    PictureBox* picture;      ///< picLG, sized to the picture
    QLabel* sizeLimit;        ///< lblLG_Size
    QLabel* size;             ///< lbl_LGsize
    QGroupBox* colourFrame;   ///< frameTC_LG
    PictureBox* swatch;       ///< picColSwatchLG
    QLabel* colour;           ///< lblC_RGB_LG
    QLabel* noColour;         ///< lblNoTransparentLG
};

} // namespace vypx
