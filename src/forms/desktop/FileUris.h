#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace vypx {

/// The path that a file's URI names: scheme "file", no host or this machine, an absolute path whose
/// percent signs are decoded to UTF-8. What should be escaped and is not, as blanks, is taken as it
/// is. Nothing for anything else, a plain path among it.
std::optional<QString> PathOfUri(const QString& uri);

/// Whether the URI is that of a file of this machine whose name is no UTF-8: it can't be read.
bool HasUnreadableName(const QString& uri);

/// Whether a file of that path can be opened, by the last three characters: iconsets and templates.
bool HasKnownEnding(const QString& path);

/// For a box: the first of them, a line each, and how many more there are.
QString ShownNames(const QStringList& names);

} // namespace vypx
