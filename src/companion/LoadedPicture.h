#pragma once

#include "companion/Picture.h"

#include <string>

namespace vypx {

/// A picture that was read from a file, or why there is none.
struct LoadedPicture {
    MaskedPicture picture; ///< null pixels after a failure
    std::string whyNot;    ///< in words for the user, without a full stop; empty after a success
};

} // namespace vypx
