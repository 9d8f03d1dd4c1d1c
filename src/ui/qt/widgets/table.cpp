#include "ui/qt/widgets/table.h"

#include "ui/qt/look/colours.h"

#include <QGridLayout>
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
    painter.fillRect(rect(), of.soft);
    painter.fillRect(rect().adjusted(line_, line_, -line_, -line_), of.hair);
    for (int k = 0; k < grid_->count(); ++k) painter.fillRect(grid_->itemAt(k)->geometry(), of.band);
}

} // namespace warhost
