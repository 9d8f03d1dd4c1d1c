// The shapes that tell the sides apart without colour.
#pragma once

#include <QColor>
#include <QPainter>

namespace warhost {

/// A square for Side A (Index 0), a diamond for Side B, as high as wide.
void draw_side_mark(QPainter& painter, int Index, QRectF const& room, QColor const& colour);

} // namespace warhost
