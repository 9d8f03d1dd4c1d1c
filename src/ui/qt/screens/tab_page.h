// A strip of tabs over the page area below it; the pages stand elsewhere.
#pragma once

#include <QTabBar>

namespace warhost {

/// The strip keeps its height whatever the widget's; the rest of the widget is the page's frame. Only the left button
/// chooses a tab; the wheel does not.
class TabPage : public QTabBar {
    Q_OBJECT

public:
    TabPage(int tab_height, QWidget* parent);

protected:
    QSize tabSizeHint(int index) const override { return {QTabBar::tabSizeHint(index).width(), tab_height_}; }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void draw_page(QRect const& part);

    int tab_height_;
};

} // namespace warhost
