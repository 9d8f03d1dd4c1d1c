// Texts on their way between the fields and the toolkit.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace warhost {

inline QString to_qt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A caption in which an ampersand is an ampersand, for the widgets that would take it for an access key.
inline QString to_caption(QString text) { return text.replace('&', "&&"); }
inline QString to_caption(std::string_view text) { return to_caption(to_qt(text)); }

/// A tool tip that is never taken for markup.
inline QString to_tooltip(QString const& text)
{
    return text.isEmpty() ? text : "<qt>" + text.toHtmlEscaped() + "</qt>";
}

} // namespace warhost
