#include "ui/qt/widgets/elided_label.h"

#include "ui/qt/widgets/text.h"

#include <QEvent>

namespace warhost {

void tell_whole(QWidget& widget, QString const& text)
{
    if (widget.toolTip() == to_tooltip(text)) return;
    widget.setToolTip(to_tooltip(text));
    widget.setAccessibleDescription(text); // without the markup of the tool tip
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::set_whole_text(QString const& text)
{
    whole_ = text;
    fit();
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    fit();
}

void ElidedLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) fit();
}

void ElidedLabel::fit()
{
    QString const shown = fontMetrics().elidedText(whole_, Qt::ElideRight, contentsRect().width());
    setText(shown);
    tell_whole(*this, shown == whole_ ? QString{} : whole_);
}

} // namespace warhost
