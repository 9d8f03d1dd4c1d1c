#include "ui/qt/look/scale.h"

#include <QApplication>
#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace warhost {

namespace {

constexpr double points_per_inch = 72;

double dots_per_inch() { return QGuiApplication::primaryScreen()->logicalDotsPerInchY(); }

} // namespace

double pixel_height(QFont const& font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * dots_per_inch() / points_per_inch;
}

double growth(QFont const& font) { return std::max(1.0, QFontInfo{font}.pixelSize() / Scale::base_font_pixels); }

Scale scale_of(QWidget const* widget)
{
    QFont const font = widget != nullptr ? widget->window()->font() : QApplication::font();
    return Scale{std::max(pixel_height(font), Scale::base_font_pixels)};
}

QFont fitting_font(QFont font, double width, double height, QSize room)
{
    double const twips_per_pixel = std::max(width / room.width(), height / room.height());
    double const largest = Scale::base_twips_per_pixel * Scale::base_font_pixels / twips_per_pixel;
    double const wanted = pixel_height(font);
    double const fitting = std::max(Scale::base_font_pixels, std::min(wanted, largest));
    if (fitting != wanted) font.setPointSizeF(fitting * points_per_inch / dots_per_inch());
    return font;
}

} // namespace warhost
