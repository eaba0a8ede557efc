#pragma once

#include <QString>
#include <QTextDocument>
#include <string>
#include <string_view>

namespace vypx {

/// Texts of iconsets and catalogs are single bytes (Latin-1) downstairs and Unicode here; what
/// Latin-1 lacks is lost on the way down. Paths are UTF-8.
inline QString FromLatin1(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string ToLatin1(const QString& text) { return text.toLatin1().toStdString(); }

inline QString PathText(const std::string& path) { return QString::fromStdString(path); }

/// For a tool tip, which has no plain mode: a text that may look like tags, as it is.
inline QString TipText(const QString& text)
{
    return Qt::mightBeRichText(text) ? "<p>" + text.toHtmlEscaped() + "</p>" : text;
}

} // namespace vypx
