#include "ui/qt/dialogs/dialog_parts.h"

#include "ui/qt/look/colours.h"
#include "ui/qt/look/device_pixels.h"
#include "ui/qt/look/scale.h"

#include <QLayout>
#include <QPainter>

namespace warhost {

Rule::Rule(Qt::Orientation orientation, QWidget* parent) : QWidget(parent)
{
    int const thickness = scale_of(parent).line();
    if (orientation == Qt::Horizontal) setFixedHeight(thickness);
    else setFixedWidth(thickness);
}

void Rule::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    DevicePixels{painter}.draw_line(rect(), colours().hair);
}

QLabel* selectable_text(QString const& text, char const* spoken)
{
    auto* const label = new QLabel{text};
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Plain); // the ring of the focus
    label->setIndent(0);
    label->setAccessibleName(spoken);
    return label;
}

int move_ring_into_margin(QLayout& layout, QFrame const& text)
{
    QMargins margins = layout.contentsMargins();
    margins.setLeft(margins.left() - text.frameWidth());
    layout.setContentsMargins(margins);
    return text.frameWidth();
}

} // namespace warhost
