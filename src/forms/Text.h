#pragma once

#include <QString>
#include <QTextDocument>
#include <string>
#include <string_view>

namespace vypx {

/// Texts of iconsets and catalogs are single bytes (Latin-1) inside and Unicode here; what Latin-1
/// lacks is lost on the way in. Paths are UTF-8.
inline QString Shown(std::string_view latin1)
{
    return QString::fromLatin1(latin1.data(), static_cast<qsizetype>(latin1.size()));
}

inline std::string Inner(const QString& text) { return text.toLatin1().toStdString(); }

inline QString ShownPath(const std::string& path) { return QString::fromStdString(path); }

/// For a tool tip, which has no plain mode: a text that may look like tags, as it is.
inline QString TipText(const QString& text)
{
    return Qt::mightBeRichText(text) ? "<p>" + text.toHtmlEscaped() + "</p>" : text;
}

} // namespace vypx
