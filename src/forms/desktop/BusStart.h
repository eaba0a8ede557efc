#pragma once

#include "forms/common/FileTaker.h"

#include <QtGlobal>

namespace vypx {

/// Whether the bus has started this process, and so has a call for it. Asked once: what tells it
/// goes out of the environment, for it would tell the same to whatever is started from here.
bool TakeStartByBus();

/// Starts the program once more, as if the user had. Gives its process number; 0: it could not be
/// started.
qint64 StartProgram(const Activation& activation);

/// Whether that process still lives. It may be a while after its end that it does not.
bool IsAlive(qint64 process);

} // namespace vypx
