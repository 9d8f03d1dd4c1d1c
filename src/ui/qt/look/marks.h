// The shapes that distinguish the sides without colour.
#pragma once

#include <QColor>
#include <QPainter>

namespace warhost {

// Pixels of the base size.
inline constexpr double mark_size = 7.5;
inline constexpr double mark_left = 1; // how far a diamond extends beyond its room
inline constexpr int mark_room = 15;   // of a mark in front of a text

/// A square for Side A (Index 0), a diamond for Side B; both as high as wide.
void draw_side_mark(QPainter& painter, int Index, QRectF const& room, QColor const& colour);

} // namespace warhost
