#pragma once

#include "reader/BitmapDecoder.h"
#include "reader/LoadListener.h"

namespace vypx {

/// Goes through the resource list once more and has every `tAIB` and `Tbmp` resource decoded into
/// the working folder. An `abmp` resource keeps its row without images. Throws BrokenFile
/// where the list or a resource lies outside of the file, and as the decoder does.
void ExtractBitmaps(WalkState& walk, LoadListener& listener);

/// Copies the resource at ResourceOffset, ResourceSize bytes long, into ResourceBytes (from index
/// 1) and decodes it. A size below 0 or above MaxResourceSize is told, and the resource skipped.
void LoadBitmapResource(WalkState& walk, BitmapDecoder& decoder, LoadListener& listener);

} // namespace vypx
