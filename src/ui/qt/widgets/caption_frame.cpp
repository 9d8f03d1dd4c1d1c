#include "ui/qt/widgets/caption_frame.h"

#include <QStyle>
#include <QStyleOptionGroupBox>

namespace warhost {

CaptionFrame::CaptionFrame(int margin, QWidget* parent) : QGroupBox(parent), margin_(margin) { tighten(); }

int CaptionFrame::caption_height() const
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, this).top();
}

/// The style's own margins, set by the base class, are meant for frames that stand alone on a page.
void CaptionFrame::tighten() { setContentsMargins(margin_, 0, margin_, margin_); }

void CaptionFrame::resizeEvent(QResizeEvent* event)
{
    QGroupBox::resizeEvent(event);
    tighten();
}

void CaptionFrame::changeEvent(QEvent* event)
{
    QGroupBox::changeEvent(event);
    tighten();
}

} // namespace warhost
