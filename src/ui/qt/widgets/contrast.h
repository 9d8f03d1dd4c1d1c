// Colours between those of the user's theme, and colours that must stay readable on its background.
#pragma once

#include <QColor>

namespace warhost {

inline constexpr double least_contrast = 4.5;

QColor mixture(QColor const& one, QColor const& other, int percent_of_other);

/// From 1 (equal) to 21 (black on white), by the relative luminance of the two.
double contrast_ratio(QColor const& one, QColor const& other);

/// The colour itself when its contrast to the background suffices, else the nearest of its mixtures with text, a
/// colour that is known to be readable there, that does.
QColor readable_colour(QColor const& colour, QColor const& background, QColor const& text);

} // namespace warhost
