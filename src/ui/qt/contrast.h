// Colours that must stay readable on a background that the user's theme chose.
#pragma once

#include <QColor>

namespace warhost {

inline constexpr double least_contrast = 4.5;

/// From 1 (equal) to 21 (black on white), by the relative luminance of the two.
double contrast_ratio(QColor const& one, QColor const& other);

/// The colour itself when its contrast to the background suffices, else the nearest of its mixtures with text, a
/// colour that is known to be readable there, that does.
QColor readable_colour(QColor const& colour, QColor const& background, QColor const& text);

} // namespace warhost
