// Filling whole pixels of the device, so that lines are equally strong wherever they lie at a fractional scale.
#pragma once

#include <QColor>
#include <QPainter>
#include <QTransform>

namespace warhost {

class DevicePixels {
public:
    explicit DevicePixels(QPainter& painter) : painter_(painter), to_device_(painter.deviceTransform()) {}

    /// The pixels of a room, each of its edges rounded by itself.
    QRect of(QRectF const& room) const;
    /// Of a line that is `logical` pixels thick; at least 1.
    int thickness(double logical) const;

    void fill(QRect const& pixels, QColor const& colour);
    /// A line along the longer edges of a room, which begins where the room does.
    void draw_line(QRectF const& room, QColor const& colour);

private:
    QPainter& painter_;
    QTransform to_device_;
};

} // namespace warhost
