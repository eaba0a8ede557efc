#pragma once

namespace vypx {

/// How an import or a paste ended.
enum class ImportResult {
    Stored,    ///< the slot holds the picture
    Cropping,  ///< it is larger than the slot: the scratch picture waits for the crop window
    Cancelled, ///< no file was chosen, or there was nothing to paste
    Refused,   ///< a box told why; the slot is as it was
    Failed,    ///< a note tells why; the slot is as it was
    NoHalf,    ///< the same, of a low-res picture: the high-res one is too small to be halved
};

} // namespace vypx
