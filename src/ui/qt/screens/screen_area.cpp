#include "ui/qt/screens/screen_area.h"

#include <QApplication>

namespace warhost {

ScreenArea::ScreenArea(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget);
    // Transparent: the page of the tab strip is the background.
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // Also when something other than the Tab key moved the focus.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) show_whole(*now);
    });
}

/// Makes the whole widget visible; the toolkit would only ensure this for its cursor.
void ScreenArea::show_whole(QWidget const& at)
{
    constexpr int around = 4;
    QRect const room{at.mapTo(widget(), QPoint{}), at.size()};
    ensureVisible(room.center().x(), room.center().y(), room.width() / 2 + around, room.height() / 2 + around);
}

/// Skips the scrolling of QScrollArea: the focused widget is already visible.
bool ScreenArea::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}

void ScreenArea::place(QRect const& room, QSize content, bool scrolls)
{
    auto const policy = scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setHorizontalScrollBarPolicy(policy);
    setVerticalScrollBarPolicy(policy);
    widget()->resize(content);
    setGeometry(room);
}

} // namespace warhost
