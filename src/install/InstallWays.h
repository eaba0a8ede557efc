#pragma once

#include "install/InstallWay.h"

namespace vypx {

/// The queue of palm-sync: the file is copied to `<folder>/<user>/install/`.
///
/// No folder of that user, or a name that would leave `folder`: WrongUser. A missing `install` is
/// made. The copy bears the file's name; an ending .prc or .pdb is put in lower case, behind any
/// other ".prc" is put, since the tool takes no others. A file that waits under that name is
/// replaced where it is a database of the same name; else AlreadyWaiting.
std::unique_ptr<InstallWay> MakePalmSyncWay(const std::string& folder);

/// The queue of J-Pilot: the file's absolute path as a line of `jpilot.install` in `folder`. A line
/// that is there already is a success. With its line feed a line has less than 1000 bytes.
std::unique_ptr<InstallWay> MakeJPilotWay(const std::string& folder);

} // namespace vypx
