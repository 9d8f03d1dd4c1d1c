// Colours between two others, and colours that must stand out from a background.
#pragma once

#include <QColor>

namespace warhost {

inline constexpr double least_contrast = 4.5; // of a text

QColor mixture(QColor const& one, QColor const& other, int percent_of_other);

/// From 1 (equal) to 21 (black on white), by the relative luminance of the two.
double contrast_ratio(QColor const& one, QColor const& other);

/// The mixture nearest to one whose contrast to the background is sufficient; other when none is.
QColor contrasting_mixture(QColor const& one, QColor const& other, QColor const& background, double sufficient);

/// The colour itself when its contrast to the background suffices, else the nearest of its mixtures with text, a
/// colour that is known to be readable there, that does.
QColor readable_colour(QColor const& colour, QColor const& background, QColor const& text);

} // namespace warhost
