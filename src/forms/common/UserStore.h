#pragma once

class QString;

namespace vypx {

/// The per-user setting `Options`, `Show Tips at Startup` in the platform's own store for users'
/// settings, under the program's name: "1" or "0"; 1 where it is missing.
bool ShowTipsAtStartup();
void SaveShowTipsAtStartup(bool show);

} // namespace vypx
