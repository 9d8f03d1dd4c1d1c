// The focus ring around a check box or an option, which has no room for it inside.
#pragma once

#include <QPointer>
#include <QWidget>

class QAbstractButton;

namespace warhost {

/// Lies above all widgets of a ground and follows the focus among them. It is transparent to the mouse.
class FocusRing : public QWidget {
    Q_OBJECT

public:
    explicit FocusRing(QWidget& ground);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(QWidget* focused);
    void watch(bool on);
    void place();

    QPointer<QAbstractButton> target_;
    QRect ring_; // on the ground
};

} // namespace warhost
