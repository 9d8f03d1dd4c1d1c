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

/// The text, or the beginning of one that no control has room for: a caption may be as long as a whole file.
inline QString beginning_of(std::string_view text)
{
    constexpr std::size_t most_bytes = 4000;
    std::size_t end = text.size();
    if (end > most_bytes) {
        end = most_bytes;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) --end; // inside a character
    }
    return end < text.size() ? to_qt(text.substr(0, end)) + QChar{0x2026} : to_qt(text);
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
