#include "ui/qt/widgets/side_mark.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/marks.h"
#include "ui/qt/look/scale.h"

#include <QPainter>

namespace warhost {

QSize SideMark::sizeHint() const
{
    Scale const scale = scale_of(this);
    return {scale.from_base(mark_room), scale.from_base(mark_room)};
}

void SideMark::paintEvent(QPaintEvent* /*event*/)
{
    double const factor = scale_of(this).factor();
    double const size = mark_size * factor;
    QPainter painter{this};
    draw_side_mark(painter, Index_, {mark_left * factor, (height() - size) / 2, size, size},
                   in_state(isEnabled(), colours().side.at(static_cast<std::size_t>(Index_))));
}

} // namespace warhost
