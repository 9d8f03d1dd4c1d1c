// How large the window is drawn: twips, pixels and the font, which all grow together.
#pragma once

#include <QFont>
#include <QSize>

#include <algorithm>
#include <cmath>

class QWidget;

namespace warhost {

/// Lengths in pixels, from twips or from pixels of the base size.
class Scale {
public:
    static constexpr double base_twips_per_pixel = 15;
    static constexpr double base_font_pixels = 11;

    Scale() = default;
    explicit Scale(double font_pixels) : twips_per_pixel_(base_twips_per_pixel * base_font_pixels / font_pixels) {}

    /// How many times larger than at the base size.
    double factor() const { return base_twips_per_pixel / twips_per_pixel_; }
    double twips_per_pixel() const { return twips_per_pixel_; }
    int from_twips(double twips) const { return static_cast<int>(std::lround(twips / twips_per_pixel_)); }
    int from_base(double pixels) const { return from_twips(pixels * base_twips_per_pixel); }
    /// The pixels from one height of a column to another, both in pixels of the base size. Each edge is rounded by
    /// itself, so that columns of different parts end together.
    int span(double from, double to) const { return from_base(to) - from_base(from); }
    /// A line between cells, and an outline.
    int line() const { return std::max(1, from_base(1)); }
    QSize from_twips(double width, double height) const { return {from_twips(width), from_twips(height)}; }

private:
    double twips_per_pixel_ = base_twips_per_pixel;
};

/// The font's size in pixels on the main screen; may be fractional if the size is given in points.
double pixel_height(QFont const& font);

/// The factor from the base size to that of a separate window drawn in this font; at least 1.
double growth(QFont const& font);

/// The scale of the widget's window, by its font; at least the base size.
Scale scale_of(QWidget const* widget);

/// The user's font at the size to use: at least the base size, and otherwise no larger than a window of the given size
/// in twips can use without leaving the room.
QFont fitting_font(QFont font, double width, double height, QSize room);

} // namespace warhost
