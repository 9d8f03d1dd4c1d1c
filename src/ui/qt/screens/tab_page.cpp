#include "ui/qt/screens/tab_page.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QWheelEvent>

namespace warhost {

TabPage::TabPage(int tab_height, QWidget* parent) : QTabBar(parent), tab_height_(tab_height)
{
    setDrawBase(false);
    setExpanding(false);
}

void TabPage::draw_page(QRect const& part)
{
    QStyleOptionTabWidgetFrame option;
    option.initFrom(this);
    option.shape = shape();
    option.tabBarSize = sizeHint();
    option.tabBarRect = QRect{QPoint{}, option.tabBarSize};
    option.selectedTabRect = tabRect(currentIndex());
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    option.rect.setTop(tab_height_ - style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, &option, this));
    QStylePainter painter{this};
    painter.setClipRect(part);
    painter.drawPrimitive(QStyle::PE_FrameTabWidget, option);
}

void TabPage::paintEvent(QPaintEvent* event)
{
    draw_page(rect());
    QTabBar::paintEvent(event);
    // Styles let the chosen tab reach down, and count on a strip's end.
    draw_page(rect().adjusted(0, tab_height_, 0, 0));
}

void TabPage::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) QTabBar::mousePressEvent(event);
    else event->ignore();
}

/// A wheel that passes over the strip on its way elsewhere changes no tab.
void TabPage::wheelEvent(QWheelEvent* event) { event->ignore(); }

} // namespace warhost
