// The strip of tabs; the pages are elsewhere.
#pragma once

#include <QTabBar>

namespace warhost {

/// The strip keeps its height whatever the height of the widget. A side's tab shows the mark of the side. Only the left
/// button selects a tab; the wheel does not.
class TabPage : public QTabBar {
    Q_OBJECT

public:
    TabPage(int tab_height, QWidget* parent);

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void paint_tab(QPainter& painter, int place) const;
    void set_hovered(int place);

    int tab_height_;
    int hovered_ = -1;
};

/// The background of the tabs: their strip above, the page below.
class PageGround : public QWidget {
    Q_OBJECT

public:
    /// strip_height: includes the line below it, in pixels of the base size.
    explicit PageGround(int strip_height) : strip_height_(strip_height) {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int strip_height_;
};

} // namespace warhost
