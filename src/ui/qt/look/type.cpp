#include "ui/qt/look/type.h"

#include "ui/qt/look/scale.h"

namespace warhost {

QFont in_type(QFont own, Type type)
{
    if (type == type::plain) return own;
    double const factor = type.pixels / Scale::base_font_pixels;
    if (own.pixelSize() > 0) own.setPixelSize(qRound(own.pixelSize() * factor));
    else own.setPointSizeF(own.pointSizeF() * factor);
    own.setWeight(type.weight);
    return own;
}

void set_type(QWidget& widget, QFont const& own, Type type) { widget.setFont(in_type(own, type)); }

} // namespace warhost
