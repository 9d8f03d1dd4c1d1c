// The manual's own window.
#pragma once

#include "ui/qt/help/help_contents.h"

#include <QKeySequence>
#include <QList>
#include <QMainWindow>

#include <functional>
#include <vector>

class QMenu;
class QToolBar;

namespace warhost {

class ContentsPane;
class FindBar;
class HelpPage;

/// The place in the room for a window of the given size, frame included: to the right of the other window, or to its
/// left; without room for either, in the corner where it covers the least of the other window.
QPoint place_beside(QRect const& other, QSize size, QRect const& room);

/// Contents on the left, the page on the right. A missing manual, page or topic is reported in the window. The program
/// ends without waiting for it.
class HelpViewer : public QMainWindow {
    Q_OBJECT

public:
    /// folder: of contents.txt and the pages. main_window: the window not to cover, or null.
    explicit HelpViewer(QString const& folder, QWidget const* main_window = nullptr);

    /// Shows the topic, or the contents page for 0, in front of the other windows.
    void open(int topic);
    /// The same for a page, with an optional "#" and anchor.
    void open(QString const& address);

private:
    void read_contents();
    void show_topic(int topic);
    void come_forward();
    void arrange(QWidget const& other);
    void make_actions();
    void make_page_actions(QToolBar& bar);
    void make_find_actions(QToolBar& bar);
    void make_view_actions(QToolBar& bar);
    QAction* add_action(QMenu& menu, char const* name, char const* caption, QList<QKeySequence> const& keys,
                        std::function<void()> act);
    void follow_page(QUrl const& address);

    QString folder_;
    std::vector<HelpEntry> entries_;
    ContentsPane* contents_;
    HelpPage* page_;
    FindBar* find_bar_;
};

} // namespace warhost
