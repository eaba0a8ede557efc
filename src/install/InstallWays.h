#pragma once

#include "install/InstallWay.h"

namespace vypx {

/// The queue of palm-sync: the file is copied to `<folder>/<user>/install/`.
///
/// The file is judged first: FileMissing, whoever the user is. No folder of that user, or a name
/// that would leave `folder`: WrongUser. A missing `install` is made. The copy bears the file's
/// name; an ending .prc or .pdb is put in lower case, behind any other ".prc" is put, since the
/// tool takes no others. A file that waits under that name is replaced where it is a database of
/// the same name (as readers see it), and counts as queued where it is the very file; whatever else
/// stands there, a link too, stays: AlreadyWaiting. A file of less than a database header is
/// Unknown.
std::unique_ptr<InstallWay> MakePalmSyncWay(const std::string& folder);

/// The queue of J-Pilot: the file's absolute path as a line of `jpilot.install` in `folder`. A line
/// that is there already is a success. Unknown: a path with a line break, one that makes a line of
/// 1000 bytes or more, a list that can't be read (it is never replaced), a folder that has gone.
///
/// In both queues copies of this program take turns (platform/Turn.h); J-Pilot's own changes of its
/// list are taken in up to the moment when the new one takes its place.
std::unique_ptr<InstallWay> MakeJPilotWay(const std::string& folder);

} // namespace vypx
