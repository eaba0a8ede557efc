#pragma once

#include "document/Product.h"
#include "forms/common/Text.h"

namespace vypx {

/// How the program is found on D-Bus. The main name is owned by one copy; the others stand in line
/// for it. Each also owns a name of its own.

inline QString BusName() { return FromLatin1(ApplicationId); }

/// As the desktop makes it of the name.
inline QString BusPath() { return '/' + BusName().replace('.', '/'); }

/// Of one copy, by its process number. An element of a name must not begin with a digit.
inline QString CopyPrefix() { return BusName() + ".Copy"; }
inline QString CopyName(qint64 process) { return CopyPrefix() + QString::number(process); }

inline const QString ApplicationInterface = "org.freedesktop.Application";
/// What copies say to each other:
///   IsFree() -> b            whether it would take a file now
///   Take(s path, s activation-token, s desktop-startup-id) -> b   whether it has taken it
inline QString CopyInterface() { return BusName() + ".Copy"; }

} // namespace vypx
