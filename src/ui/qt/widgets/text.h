// Conversion of texts between the fields and the toolkit.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace warhost {

inline QString to_qt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The text, or the beginning of a text too long for any control: a caption may be as long as a whole file.
inline QString beginning_of(std::string_view text)
{
    constexpr std::size_t most_bytes = 4000;
    std::size_t end = text.size();
    if (end > most_bytes) {
        end = most_bytes;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80) --end; // not inside a character
    }
    return end < text.size() ? to_qt(text.substr(0, end)) + QChar{0x2026} : to_qt(text);
}

/// A caption with literal ampersands, for widgets that would interpret them as access keys.
inline QString to_caption(QString text) { return text.replace('&', "&&"); }
inline QString to_caption(std::string_view text) { return to_caption(to_qt(text)); }

/// A tool tip whose text is never interpreted as markup.
inline QString to_tooltip(QString const& text)
{
    return text.isEmpty() ? text : "<qt>" + text.toHtmlEscaped() + "</qt>";
}

} // namespace warhost
