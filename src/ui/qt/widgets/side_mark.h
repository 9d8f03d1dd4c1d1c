// The shape of a side, placed before a text about it.
#pragma once

#include <QWidget>

namespace warhost {

class SideMark : public QWidget {
    Q_OBJECT

public:
    /// Index: 0 for Side A, 1 for Side B.
    explicit SideMark(int Index, QWidget* parent = nullptr) : QWidget(parent), Index_(Index) {}

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int Index_;
};

} // namespace warhost
