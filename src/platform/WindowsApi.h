#pragma once

/// The system's header for Windows, without its macros that stand in our way. Only what is compiled
/// for Windows includes it.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#undef ReplaceFile
