#include "ui/qt/look/line_icons.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/contrast.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

#include <vector>

namespace warhost {

namespace {

constexpr double side = 16; // of the square that holds each drawing
constexpr double line_width = 1.5;

using Line = std::vector<QPointF>; // of one point: a dot

struct Drawing {
    std::vector<Line> lines;
    QRectF circle;
};

Drawing drawing_of(QStyle::StandardPixmap which)
{
    switch (which) {
    case QStyle::SP_ArrowBack: return {{{{14, 8}, {2.5, 8}}, {{7.5, 3}, {2.5, 8}, {7.5, 13}}}, {}};
    case QStyle::SP_ArrowForward: return {{{{2, 8}, {13.5, 8}}, {{8.5, 3}, {13.5, 8}, {8.5, 13}}}, {}};
    case QStyle::SP_FileDialogToParent: return {{{{8, 14}, {8, 2.5}}, {{3, 7.5}, {8, 2.5}, {13, 7.5}}}, {}};
    case QStyle::SP_FileDialogNewFolder:
        return {{{{1.5, 13}, {1.5, 3}, {6, 3}, {7.5, 5}, {14.5, 5}, {14.5, 13}, {1.5, 13}},
                 {{8, 7}, {8, 11}},
                 {{6, 9}, {10, 9}}},
                {}};
    case QStyle::SP_FileDialogDetailedView:
        return {{{{1.5, 3.5}, {14.5, 3.5}}, {{1.5, 8}, {14.5, 8}}, {{1.5, 12.5}, {14.5, 12.5}}}, {}};
    case QStyle::SP_FileDialogListView: {
        Drawing list;
        for (double const y : {3.5, 8.0, 12.5}) {
            list.lines.push_back(Line{QPointF{1.5, y}});
            list.lines.push_back(Line{QPointF{5, y}, QPointF{14.5, y}});
        }
        return list;
    }
    case QStyle::SP_FileDialogContentsView:
        return {{Line{QPointF{10, 10}, QPointF{14.5, 14.5}}}, {1.75, 1.75, 9.5, 9.5}};
    case QStyle::SP_MessageBoxWarning: return {{Line{QPointF{8, 6}, QPointF{8, 9.4}}, Line{QPointF{8, 12}}}, {}};
    case QStyle::SP_MessageBoxCritical:
        return {{Line{QPointF{5.5, 5.5}, QPointF{10.5, 10.5}}, Line{QPointF{10.5, 5.5}, QPointF{5.5, 10.5}}}, {}};
    default: return {};
    }
}

/// Draws the background of a sign; returns the colour of its lines.
QColor draw_ground(QPainter& painter, QStyle::StandardPixmap which, QIcon::Mode mode)
{
    Colours const& of = colours();
    if (which == QStyle::SP_MessageBoxWarning) {
        painter.setPen(QPen{of.warning, line_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter.setBrush(of.warning);
        painter.drawPolygon(QPolygonF{{{8, 2}, {14.75, 13.75}, {1.25, 13.75}}});
        return of.text_on_warning;
    }
    if (which == QStyle::SP_MessageBoxCritical) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(of.error);
        painter.drawEllipse(QRectF{1, 1, 14, 14});
        return of.text_on_error;
    }
    return in_state(mode != QIcon::Disabled, of.text);
}

class LineIcon : public QIconEngine {
public:
    explicit LineIcon(QStyle::StandardPixmap which) : which_(which) {}

    void paint(QPainter* painter, QRect const& room, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(room.topLeft());
        painter->scale(room.width() / side, room.height() / side);
        QColor const colour = draw_ground(*painter, which_, mode);
        painter->setPen(QPen{colour, line_width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter->setBrush(Qt::NoBrush);
        Drawing const drawing = drawing_of(which_);
        for (Line const& line : drawing.lines) {
            if (line.size() == 1) painter->drawPoint(line[0]);
            else painter->drawPolyline(line.data(), static_cast<int>(line.size()));
        }
        if (!drawing.circle.isNull()) painter->drawEllipse(drawing.circle);
        painter->restore();
    }

    QPixmap pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap made{size};
        made.fill(Qt::transparent);
        QPainter painter{&made};
        paint(&painter, {{0, 0}, size}, mode, state);
        return made;
    }

    QIconEngine* clone() const override { return new LineIcon{which_}; }

private:
    QStyle::StandardPixmap which_;
};

} // namespace

QIcon line_icon(QStyle::StandardPixmap which)
{
    return drawing_of(which).lines.empty() ? QIcon{} : QIcon{new LineIcon{which}};
}

} // namespace warhost
