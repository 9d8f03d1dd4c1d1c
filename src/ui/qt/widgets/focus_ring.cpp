#include "ui/qt/widgets/focus_ring.h"

#include "ui/qt/look/page_style.h"

#include <QApplication>
#include <QCheckBox>
#include <QEvent>
#include <QPainter>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyleOptionButton>

namespace warhost {

FocusRing::FocusRing(QWidget& ground) : QWidget(&ground)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    leave_rings_to_others(*window());
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

void FocusRing::follow(QWidget* focused)
{
    watch(false);
    bool const takes_ring =
        qobject_cast<QCheckBox*>(focused) != nullptr || qobject_cast<QRadioButton*>(focused) != nullptr;
    target_ = takes_ring && parentWidget()->isAncestorOf(focused) ? qobject_cast<QAbstractButton*>(focused) : nullptr;
    watch(true);
    place();
}

/// Also follows an ancestor of the target that is scrolled.
void FocusRing::watch(bool on)
{
    for (QWidget* at = target_; at != nullptr && at != parentWidget(); at = at->parentWidget()) {
        at->removeEventFilter(this);
        if (on) at->installEventFilter(this);
    }
}

void FocusRing::place()
{
    if (target_ == nullptr || !target_->isVisible()) return hide();
    QStyleOptionButton option;
    option.initFrom(target_);
    option.text = target_->text();
    auto const part =
        qobject_cast<QCheckBox*>(target_) != nullptr ? QStyle::SE_CheckBoxFocusRect : QStyle::SE_RadioButtonFocusRect;
    QRect const on_target = style()->subElementRect(part, &option, target_);
    ring_ = {target_->mapTo(parentWidget(), on_target.topLeft()), on_target.size()};
    QRect shown = ring_;
    for (QWidget* at = target_; at != parentWidget(); at = at->parentWidget()) {
        if (qobject_cast<QScrollArea*>(at) == nullptr) continue;
        int const around = target_->mapTo(parentWidget(), QPoint{}).x() - ring_.left();
        shown &= at->geometry().adjusted(-around, -around, around, around);
    }
    setGeometry(shown);
    setVisible(!shown.isEmpty());
    raise();
    update();
}

void FocusRing::paintEvent(QPaintEvent* /*event*/)
{
    QStyleOption option;
    option.initFrom(this);
    option.rect = ring_.translated(-pos());
    QPainter painter{this};
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::FontChange: place(); break;
    default: break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace warhost
