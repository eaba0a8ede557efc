#pragma once

#include <QString>
#include <optional>

namespace vypx {

/// The path that a file's URI names: scheme "file", no host or "localhost", an absolute path whose
/// percent signs are decoded to UTF-8. Nothing for anything else, a plain path among it.
std::optional<QString> PathOfUri(const QString& uri);

/// Whether a file of that path can be opened, by the last three characters: iconsets and templates.
bool HasKnownEnding(const QString& path);

} // namespace vypx
