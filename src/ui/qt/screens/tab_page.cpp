#include "ui/qt/screens/tab_page.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/contrast.h"
#include "ui/qt/look/device_pixels.h"
#include "ui/qt/look/marks.h"
#include "ui/qt/look/scale.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace warhost {

namespace {

constexpr int side_tabs = 2; // the first two

// Pixels of the base size.
constexpr double behind_mark = 6.5;
constexpr double corner = 4;
constexpr double accent_height = 2;
constexpr double ring_width = 2;
constexpr int beside_mark = 12;
constexpr int beside_text = 20;

} // namespace

TabPage::TabPage(int tab_height, QWidget* parent) : QTabBar(parent), tab_height_(tab_height)
{
    setDrawBase(false);
    setExpanding(false);
    setMouseTracking(true);
}

QSize TabPage::tabSizeHint(int index) const
{
    bool const marked = index < side_tabs;
    double const beside = marked ? 2 * beside_mark + mark_size + behind_mark : 2 * beside_text;
    int const text = fontMetrics().horizontalAdvance(tabText(index).replace("&&", "&"));
    return {text + scale_of(this).from_base(beside), tab_height_};
}

void TabPage::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    for (int place = 0; place < count(); ++place) paint_tab(painter, place);
}

void TabPage::paint_tab(QPainter& painter, int place) const
{
    Colours const& of = colours();
    Scale const scale = scale_of(this);
    auto const length = [&](double base) { return base * scale.factor(); };
    bool const marked = place < side_tabs;
    bool const chosen = place == currentIndex();
    QColor const own = in_state(isEnabled(), marked ? of.side.at(static_cast<std::size_t>(place)) : of.ring);
    QRectF const tab = tabRect(place);
    double const line = scale.line();
    if (chosen) { // without a lower edge, because the page continues it
        painter.save();
        painter.setClipRect(tab);
        QRectF const shape = tab.adjusted(line / 2, line / 2, -line / 2, length(corner) * 2);
        painter.setPen(QPen{of.soft, line});
        painter.setBrush(of.page);
        painter.drawRoundedRect(shape, length(corner), length(corner));
        painter.setClipRect(QRectF{tab.left(), tab.top(), tab.width(), length(accent_height)});
        painter.setPen(Qt::NoPen);
        painter.setBrush(own);
        painter.drawRoundedRect(tab.adjusted(0, 0, 0, length(corner) * 2), length(corner), length(corner));
        painter.restore();
    } else if (place == hovered_) {
        double const free = length(2);
        painter.setPen(Qt::NoPen);
        painter.setBrush(mixture(of.strip, of.text, 7));
        painter.drawRoundedRect(tab.adjusted(free, free, -free, -free - line), length(corner), length(corner));
    }
    if (chosen && hasFocus()) {
        double const free = length(3) + length(ring_width) / 2;
        painter.setPen(QPen{of.ring, length(ring_width)});
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(tab.adjusted(free, free, -free, -free + line), length(corner) / 2, length(corner) / 2);
    }
    QRectF text = tab.adjusted(length(marked ? beside_mark : beside_text), line, 0, 0);
    if (marked) {
        double const size = length(mark_size);
        draw_side_mark(painter, place, {text.left(), text.center().y() - size / 2, size, size}, own);
        text.setLeft(text.left() + size + length(behind_mark));
    }
    painter.setPen(in_state(isEnabled(), chosen ? of.text : of.dim));
    painter.drawText(text, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), tabText(place).replace("&&", "&"));
}

void TabPage::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) QTabBar::mousePressEvent(event);
    else event->ignore();
}

void TabPage::mouseMoveEvent(QMouseEvent* event)
{
    QTabBar::mouseMoveEvent(event);
    set_hovered(tabAt(event->position().toPoint()));
}

void TabPage::leaveEvent(QEvent* event)
{
    QTabBar::leaveEvent(event);
    set_hovered(-1);
}

void TabPage::set_hovered(int place)
{
    if (hovered_ == place) return;
    hovered_ = place;
    update(0, 0, width(), tab_height_);
}

/// Ignored: scrolling over the strip must not change the tab.
void TabPage::wheelEvent(QWheelEvent* event) { event->ignore(); }

void PageGround::paintEvent(QPaintEvent* event)
{
    Colours const& of = colours();
    Scale const scale = scale_of(this);
    int const line_top = scale.from_base(strip_height_) - scale.line();
    QPainter painter{this};
    painter.setClipRect(event->rect());
    painter.fillRect(rect(), of.page);
    painter.fillRect(0, 0, width(), line_top, of.strip);
    DevicePixels{painter}.draw_line(QRect{0, line_top, width(), scale.line()}, of.soft);
}

} // namespace warhost
