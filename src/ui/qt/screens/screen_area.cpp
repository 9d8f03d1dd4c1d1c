#include "ui/qt/screens/screen_area.h"

#include <QApplication>

namespace warhost {

ScreenArea::ScreenArea(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget);
    // The tab strip's page shows through.
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    // Also where the Tab key had no part in it.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) show_whole(*now);
    });
}

/// The toolkit would be content with the place of the cursor.
void ScreenArea::show_whole(QWidget const& at)
{
    constexpr int around = 4;
    QRect const room{at.mapTo(widget(), QPoint{}), at.size()};
    ensureVisible(room.center().x(), room.center().y(), room.width() / 2 + around, room.height() / 2 + around);
}

/// Without the scrolling of QScrollArea: what has got the focus is in sight already.
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
