#include "ui/qt/tab_page.h"

#include <QStyle>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

namespace warhost {

TabPage::TabPage(int tab_height, QWidget* parent) : QWidget(parent), tabs_(new TabBar{tab_height, this})
{
    tabs_->setDrawBase(false);
    tabs_->setExpanding(false);
    tabs_->move(0, 0);
}

void TabPage::paintEvent(QPaintEvent*)
{
    QStyleOptionTabWidgetFrame option;
    option.initFrom(this);
    option.shape = tabs_->shape();
    option.tabBarSize = tabs_->size();
    option.tabBarRect = tabs_->geometry();
    option.selectedTabRect = tabs_->tabRect(tabs_->currentIndex());
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    option.rect.setTop(tabs_->height() - style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, &option, this));
    QStylePainter{this}.drawPrimitive(QStyle::PE_FrameTabWidget, option);
}

} // namespace warhost
