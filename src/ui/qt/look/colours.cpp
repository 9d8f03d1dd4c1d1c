#include "ui/qt/look/colours.h"

#include "ui/qt/look/contrast.h"

#include <QGuiApplication>

#include <optional>

namespace warhost {

namespace {

// The two are equally light, so that neither side looks favoured.
constexpr std::array light_sides{QColor{0x1d, 0x5c, 0xa8}, QColor{0xa0, 0x48, 0x00}};
constexpr std::array dark_sides{QColor{0x84, 0xb6, 0xf4}, QColor{0xf3, 0xa9, 0x5f}};
constexpr QColor light_stripe{240, 240, 240};
constexpr QColor amber{0xe8, 0xa8, 0x14};
constexpr QColor dark_red{0xba, 0x2a, 0x20};
constexpr QColor light_red{0xf4, 0x7c, 0x74};

QColor better_readable_on(QColor const& background)
{
    bool const white = contrast_ratio(Qt::white, background) >= contrast_ratio(Qt::black, background);
    return white ? Qt::white : Qt::black;
}

} // namespace

Colours colours_of(QPalette const& palette)
{
    auto const role = [&](QPalette::ColorRole of) { return palette.color(QPalette::Active, of); };
    QColor const window = role(QPalette::Window);
    QColor const highlight = role(QPalette::Highlight);
    Colours made{};
    made.text = role(QPalette::WindowText);
    made.field = role(QPalette::Base);
    made.dark = window.lightness() < made.text.lightness();
    made.high_contrast = window == made.field && contrast_ratio(made.text, window) >= 15;

    auto const toward_text = [&](int light, int dark, int high_contrast) {
        return mixture(made.page, made.text, made.high_contrast ? high_contrast : made.dark ? dark : light);
    };
    auto const on_page = [&](QColor const& colour, double sufficient) {
        return contrasting_mixture(colour, made.text, made.page, sufficient);
    };
    made.strip = window;
    made.page = mixture(window, made.field, 65);
    made.dim = made.high_contrast
                   ? on_page(made.page, 9)
                   : contrasting_mixture(mixture(made.page, made.text, 50), made.text, toward_text(6, 7, 0), 4.9);
    made.soft = toward_text(24, 26, 55);
    made.hair = toward_text(13, 16, 40);
    made.band = toward_text(5, 6, 6);
    made.stripe = made.high_contrast ? made.page : made.dark ? mixture(made.page, made.text, 7) : light_stripe;
    // On the page or on a stripe, whichever requires more contrast.
    made.firm = contrasting_mixture(on_page(made.page, made.high_contrast ? 9 : 3.15), made.text, made.stripe, 3);
    made.button = made.dark ? mixture(made.page, made.text, 11) : mixture(made.page, made.field, 65);
    for (std::size_t Index = 0; Index < 2; ++Index) {
        QColor const own = (made.dark ? dark_sides : light_sides).at(Index);
        made.side.at(Index) = readable_colour(own, made.page, made.text);
        made.tint.at(Index) = mixture(made.page, made.side.at(Index), made.dark ? 16 : 10);
        made.text_on_side.at(Index) = better_readable_on(made.side.at(Index));
    }
    made.tie = mixture(made.page, made.text, 20);
    made.ring = on_page(highlight, 3);
    made.text_on_strong = role(QPalette::HighlightedText);
    QColor const away = made.text_on_strong.lightness() < highlight.lightness() ? Qt::white : Qt::black;
    made.strong = contrasting_mixture(highlight, away, made.text_on_strong, 4.7);
    made.hint = on_page(highlight, 4.6);
    made.warning = amber;
    made.text_on_warning = better_readable_on(made.warning);
    made.error = made.dark ? light_red : dark_red;
    made.text_on_error = better_readable_on(made.error);
    return made;
}

Colours const& colours()
{
    static std::optional<Colours> latest;
    static QPalette source;
    QPalette const now = QGuiApplication::palette();
    if (!latest || now != source) {
        source = now;
        latest = colours_of(now);
    }
    return *latest;
}

QColor in_state(bool enabled, QColor const& colour) { return enabled ? colour : mixture(colour, colours().page, 50); }

QPalette page_palette()
{
    Colours const& of = colours();
    QPalette made = QGuiApplication::palette();
    made.setColor(QPalette::Window, of.page);
    made.setColor(QPalette::AlternateBase, of.stripe);
    made.setColor(QPalette::Button, of.button);
    made.setColor(QPalette::PlaceholderText, of.dim);
    made.setColor(QPalette::Highlight, of.strong);
    made.setColor(QPalette::Link, of.hint);
    made.setColor(QPalette::LinkVisited, of.hint);
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        made.setColor(QPalette::Disabled, role, in_state(false, of.text));
    }
    return made;
}

QPalette dark_palette()
{
    QPalette made{QColor{0x35, 0x36, 0x3a}, QColor{0x2b, 0x2c, 0x30}};
    made.setColor(QPalette::Base, QColor{0x1e, 0x1f, 0x22});
    for (auto const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        made.setColor(role, QColor{0xe6, 0xe6, 0xe6});
    }
    made.setColor(QPalette::Highlight, QColor{0x4c, 0x8d, 0xd6});
    made.setColor(QPalette::HighlightedText, Qt::white);
    return made;
}

} // namespace warhost
