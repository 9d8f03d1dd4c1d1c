// The sheet with the two descriptions of a battle.
#pragma once

#include "ui/combat_controls.h"

#include <QWidget>

#include <array>

class QTextEdit;

namespace warhost {

class WidgetMaker;

/// Its upper edge is on the line of its section's head.
class DescriptionSheet : public QWidget {
    Q_OBJECT

public:
    /// top, division, end: heights of the sheet's edges and of the line between the descriptions, in pixels of the base
    /// size.
    DescriptionSheet(CombatControls& controls, WidgetMaker& make, double top, double division, double end);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int division_; // pixels from the sheet's top
    std::array<QTextEdit*, 2> panes_{};
};

} // namespace warhost
