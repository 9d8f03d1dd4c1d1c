#include "ui/qt/look/marks.h"

#include <QPolygonF>

namespace warhost {

void draw_side_mark(QPainter& painter, int Index, QRectF const& room, QColor const& colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    if (Index == 0) {
        double const corner = room.width() / 7;
        painter.drawRoundedRect(room, corner, corner);
    } else {
        double const over = room.width() / 7; // a diamond of the same width looks smaller than a square
        QRectF const at = room.adjusted(-over, -over, over, over);
        QPointF const centre = at.center();
        painter.drawPolygon(QPolygonF{
            {{centre.x(), at.top()}, {at.right(), centre.y()}, {centre.x(), at.bottom()}, {at.left(), centre.y()}}});
    }
    painter.restore();
}

} // namespace warhost
