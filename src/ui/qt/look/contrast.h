// Colours between two others, and colours that must stand out from a background.
#pragma once

#include <QColor>

namespace warhost {

inline constexpr double least_contrast = 4.5; // of a text

QColor mixture(QColor const& one, QColor const& other, int percent_of_other);

/// From 1 (equal) to 21 (black on white), by the relative luminance of the two.
double contrast_ratio(QColor const& one, QColor const& other);

/// Of the mixtures with sufficient contrast to the background, the nearest to one; other if there is none.
QColor contrasting_mixture(QColor const& one, QColor const& other, QColor const& background, double sufficient);

/// The colour itself if its contrast to the background suffices, otherwise the nearest of its mixtures with text that
/// does. text: a colour that is known to be readable there.
QColor readable_colour(QColor const& colour, QColor const& background, QColor const& text);

} // namespace warhost
