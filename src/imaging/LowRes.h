#pragma once

#include "imaging/Import.h"

namespace vypx {

/// Makes the scratch picture and TargetWidth, TargetHeight from the picture HighResPath: half its
/// size, rounded down, its transparent pixels kept apart from the others. False: it has no half,
/// and there is no scratch picture. Throws PictureFault where the high-res picture can't be read or
/// the scratch picture not be written.
bool CreateLowRes(ColorDepth depth);

/// Makes the low-res picture of the selected icon from its high-res one, through an import.
/// Throws PictureFault as above.
ImportResult ImportLowRes(PictureHost& host);

/// The same for the command, which leaves a scratch picture behind where it can.
void ReplaceLowRes(PictureHost& host);

} // namespace vypx
