// Fills whole device pixels, so that all lines are equally thick at a fractional scale.
#pragma once

#include <QColor>
#include <QPainter>
#include <QTransform>

namespace warhost {

class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter) : painter_(painter), to_device_(painter.deviceTransform()) {}

    /// The device pixels of a rectangle, with each edge rounded by itself.
    QRect of(QRectF const& room) const;
    /// The thickness in device pixels of a line that is `logical` pixels thick; at least 1.
    int thickness(double logical) const;

    void fill(QRect const& pixels, QColor const& colour);
    /// Draws a line along the longer edges of a rectangle, from its left or top edge.
    void draw_line(QRectF const& room, QColor const& colour);

private:
    QPainter& painter_;
    QTransform to_device_;
};

} // namespace warhost
