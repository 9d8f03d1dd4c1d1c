// The page area of a tab widget whose pages stand elsewhere, and the strip of tabs on its upper edge.
#pragma once

#include <QTabBar>
#include <QWidget>

namespace warhost {

/// A tab strip of a given height.
class TabBar : public QTabBar {
public:
    TabBar(int tab_height, QWidget* parent) : QTabBar(parent), tab_height_(tab_height) {}

protected:
    QSize tabSizeHint(int index) const override { return {QTabBar::tabSizeHint(index).width(), tab_height_}; }
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }

private:
    int tab_height_;
};

class TabPage : public QWidget {
public:
    TabPage(int tab_height, QWidget* parent);

    QTabBar& tabs() const { return *tabs_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTabBar* tabs_;
};

} // namespace warhost
