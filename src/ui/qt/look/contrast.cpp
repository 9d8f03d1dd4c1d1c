#include "ui/qt/look/contrast.h"

#include <algorithm>
#include <cmath>

namespace warhost {

namespace {

double luminance(QColor const& colour)
{
    auto const linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

} // namespace

QColor mixture(QColor const& one, QColor const& other, int percent_of_other)
{
    auto const mix = [&](int a, int b) { return a + (b - a) * percent_of_other / 100; };
    return {mix(one.red(), other.red()), mix(one.green(), other.green()), mix(one.blue(), other.blue())};
}

double contrast_ratio(QColor const& one, QColor const& other)
{
    auto const [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor contrasting_mixture(QColor const& one, QColor const& other, QColor const& background, double sufficient)
{
    for (int percent = 0; percent < 100; ++percent) {
        QColor const mixed = mixture(one, other, percent);
        if (contrast_ratio(mixed, background) >= sufficient) return mixed;
    }
    return other;
}

QColor readable_colour(QColor const& colour, QColor const& background, QColor const& text)
{
    return contrasting_mixture(colour, text, background, least_contrast);
}

} // namespace warhost
