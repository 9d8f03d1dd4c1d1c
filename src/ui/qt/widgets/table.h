// A table of a screen: cells between hairlines, all of them widgets.
#pragma once

#include <QWidget>

class QGridLayout;

namespace warhost {

class DevicePixels;

/// Paints the background of every cell. A cell with a label is the head of a row or column.
class Table : public QWidget {
    Q_OBJECT

public:
    /// line: the width of the lines in pixels.
    explicit Table(int line);

    QGridLayout& grid() const { return *grid_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect ground_of(QRect const& cell, DevicePixels const& pixels) const;

    QGridLayout* grid_;
    int line_;
};

} // namespace warhost
