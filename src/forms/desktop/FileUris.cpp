#include "forms/desktop/FileUris.h"

#include "forms/common/ThisMachine.h"
#include "reader/LoadFile.h"

#include <QByteArray>
#include <QObject>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QUrl>
#include <algorithm>

namespace vypx {

namespace {

/// Longer ones name no file on any system.
constexpr qsizetype LongestUri = 64 * 1024;

constexpr qsizetype LongestShown = 200; // characters of a name
constexpr qsizetype MostShown = 10;     // names

/// QUrl would take a percent sign without its two digits for itself.
bool HasBadPercentSign(const QString& uri)
{
    static const QRegularExpression bad("%(?![0-9A-Fa-f]{2})");
    return uri.contains(bad);
}

/// The bytes of the path; nothing where the URI is none of a file of this machine.
std::optional<QByteArray> PathBytes(const QString& uri)
{
    if (uri.size() > LongestUri || HasBadPercentSign(uri))
        return std::nullopt;
    // Tolerant: some desktops send blanks and the like as they are.
    const QUrl url(uri, QUrl::TolerantMode);
    const bool isFile = url.isValid() && url.scheme() == "file" && IsThisMachine(url.host())
        && !url.hasQuery() && !url.hasFragment() && url.userInfo().isEmpty() && url.port() == -1;
    if (!isFile)
        return std::nullopt;
    QByteArray path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8());
    return path.startsWith('/') && !path.contains('\0') ? std::optional(std::move(path))
                                                        : std::nullopt;
}

/// Nothing where the bytes are no UTF-8.
std::optional<QString> Decoded(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

} // namespace

std::optional<QString> PathOfUri(const QString& uri)
{
    const auto path = PathBytes(uri);
    return path ? Decoded(*path) : std::nullopt;
}

bool HasUnreadableName(const QString& uri)
{
    const auto path = PathBytes(uri);
    return path && !Decoded(*path);
}

bool HasKnownEnding(const QString& path)
{
    const std::string text = path.toStdString();
    return HasTheRightExtension({ .path = text })
        || HasTheRightExtension({ .path = text, .asTemplate = true });
}

QString ShownNames(const QStringList& names)
{
    QStringList lines;
    for (const QString& name : names.first(std::min(names.size(), MostShown)))
        lines << (name.size() > LongestShown ? name.left(LongestShown) + "..." : name);
    if (names.size() > MostShown)
        lines << QObject::tr("and %1 more").arg(names.size() - MostShown);
    return lines.join('\n');
}

} // namespace vypx
