#include "ui/qt/screens/screen_area.h"

namespace warhost {

ScreenArea::ScreenArea(QWidget* parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(new QWidget);
    // The tab strip's page shows through.
    widget()->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
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
