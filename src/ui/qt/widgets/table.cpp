#include "ui/qt/widgets/table.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/device_pixels.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>

namespace warhost {

Table::Table(int line) : grid_(new QGridLayout{this}), line_(line)
{
    grid_->setContentsMargins(line, line, line, line);
    grid_->setSpacing(line);
}

void Table::paintEvent(QPaintEvent* event)
{
    Colours const& of = colours();
    QPainter painter{this};
    painter.setClipRect(event->rect());
    DevicePixels pixels{painter};
    int const line = pixels.thickness(line_);
    QRect const whole = pixels.of(rect());
    QRect const inside = whole.adjusted(line, line, -line, -line);
    pixels.fill(whole, of.soft);
    pixels.fill(inside, of.hair);
    for (int k = 0; k < grid_->count(); ++k) {
        QLayoutItem* const item = grid_->itemAt(k);
        auto const* const box = qobject_cast<QLineEdit const*>(item->widget());
        pixels.fill(ground_of(item->geometry(), pixels) & inside, box == nullptr      ? of.band
                                                                  : box->isReadOnly() ? of.page
                                                                                      : of.field);
    }
}

/// The background of a cell, up to the lines around it: rounding can make the space between cells wider than a line.
QRect Table::ground_of(QRect const& cell, DevicePixels const& pixels) const
{
    QRect const next =
        pixels.of(cell.adjusted(cell.left() == line_ ? -line_ : 0, cell.top() == line_ ? -line_ : 0, line_, line_));
    int const line = pixels.thickness(line_);
    return next.adjusted(0, 0, -line, -line);
}

} // namespace warhost
