#pragma once

namespace vypx {

/// Numbers of topics of the help.
inline constexpr int HelpOfIconset = 1030, HelpWithoutIconset = 1040, HelpOfAppList = 1080;

inline int HelpContext = HelpOfIconset; ///< the main form's topic

} // namespace vypx
