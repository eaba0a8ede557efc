#pragma once

#include "companion/Picture.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>

/// What the commands for pictures share: the import in hand, and what an undo goes back to.
namespace vypx {

/// Scratch picture of imports, crop window and low-res pictures, in the working folder.
inline constexpr std::string_view ScratchName = "temp.bmp";

/// The half of a large scratch picture, which the crop window works on.
inline constexpr std::string_view HalfScratchName = "lgtemp.bmp";

inline std::string ImageFile; ///< path of the picture file that is being imported
/// Size of the slot for the import in hand, pixels, and what the crop window aims at. Kept from one
/// import to the next.
inline int TargetWidth = 0, TargetHeight = 0;
inline bool CropResultReady = false; ///< the next import is the return from the crop window
inline bool CropForLG = false, CropForSM = false; ///< which import opened it
/// The picture that passed through last, also what a paste takes when the clipboard has none.
inline MaskedPicture picbuff;
/// The colour that stands for transparent pixels in the scratch picture.
inline std::optional<Rgb> ScratchTransparent;

/// Border colour of the crop window, 0 to 255, kept between its openings.
inline int CropBackR = 255, CropBackG = 255, CropBackB = 255;

/// The transparent colour editor serves the high-res panel, else the low-res one.
inline bool EditingLG = false;
/// The preview colour of the transparent colour editor that was used last, 0 to 255; kept while the
/// program runs.
inline int TCPreviewR = 0, TCPreviewG = 0, TCPreviewB = 0;
inline bool TCPreviewSet = false; ///< there is one

/// The colour that the dropped file declares as transparent, if it must be cut; its own pixels
/// can't tell it.
inline std::optional<Rgb> DroppedTransparent;

/// The slot held no picture before its last change, so undo empties it.
inline bool LGWasEmpty = false, SMWasEmpty = false;
/// Bare names of the working files that undo restores from their ".bak".
inline std::string CurrentImageName, CurrentImageNameSM;
/// Bare names of the working files whose ".bak" was made for this document. The working folder may
/// hold others, of documents before.
inline std::set<std::string> BackedUp;

/// A document begins or ends: no undo and no return from the crop window reaches beyond it.
void ForgetUndo();

/// Puts all of the above back to what it is when the process starts.
void ResetPictureState();

} // namespace vypx
