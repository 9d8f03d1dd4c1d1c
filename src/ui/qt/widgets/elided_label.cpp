#include "ui/qt/widgets/elided_label.h"

#include "ui/qt/widgets/text.h"

#include <QEvent>

namespace warhost {

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
    setToolTip(shown == whole_ ? QString{} : to_tooltip(whole_));
}

} // namespace warhost
