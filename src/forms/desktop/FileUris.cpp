#include "forms/desktop/FileUris.h"

#include "reader/LoadFile.h"

#include <QUrl>

namespace vypx {

namespace {

/// Longer ones name no file on any system.
constexpr qsizetype LongestUri = 64 * 1024;

bool IsThisMachine(const QString& host)
{
    return host.isEmpty() || host.compare("localhost", Qt::CaseInsensitive) == 0;
}

} // namespace

std::optional<QString> PathOfUri(const QString& uri)
{
    if (uri.size() > LongestUri)
        return std::nullopt;
    const QUrl url(uri, QUrl::StrictMode);
    const bool isFile = url.isValid() && url.scheme() == "file" && IsThisMachine(url.host())
        && !url.hasQuery() && !url.hasFragment() && url.userInfo().isEmpty() && url.port() == -1;
    if (!isFile)
        return std::nullopt;
    const QString path = url.path(QUrl::FullyDecoded);
    // What was no UTF-8 is shown by this character and could name another file.
    const bool isWhole = !path.contains(QChar::Null) && !path.contains(QChar::ReplacementCharacter);
    return path.startsWith('/') && isWhole ? std::optional(path) : std::nullopt;
}

bool HasKnownEnding(const QString& path)
{
    const std::string text = path.toStdString();
    return HasTheRightExtension({ .path = text })
        || HasTheRightExtension({ .path = text, .asTemplate = true });
}

} // namespace vypx
