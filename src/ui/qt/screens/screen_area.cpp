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
        if (now != nullptr && isAncestorOf(now)) ensureWidgetVisible(now, 0, 0);
    });
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
