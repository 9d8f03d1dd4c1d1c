#include "ui/qt/look/device_pixels.h"

#include <algorithm>
#include <cmath>

namespace warhost {

QRect DevicePixels::of(QRectF const& room) const
{
    QRectF const at = to_device_.mapRect(room);
    QPoint const first{qRound(at.left()), qRound(at.top())};
    return {first, QSize{qRound(at.right()) - first.x(), qRound(at.bottom()) - first.y()}};
}

int DevicePixels::thickness(double logical) const
{
    constexpr double rounding = 0.01; // of the transformation
    return std::max(1, static_cast<int>(std::floor(logical * to_device_.m11() + rounding)));
}

void DevicePixels::fill(QRect const& pixels, QColor const& colour)
{
    painter_.fillRect(to_device_.inverted().mapRect(QRectF{pixels}), colour);
}

void DevicePixels::draw_line(QRectF const& room, QColor const& colour)
{
    QRect pixels = of(room);
    if (room.width() > room.height()) pixels.setHeight(thickness(room.height()));
    else pixels.setWidth(thickness(room.width()));
    fill(pixels, colour);
}

} // namespace warhost
