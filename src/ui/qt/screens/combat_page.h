// The combat screen: the battle roll and the casualties at the left, the description of the battle at the right.
#pragma once

#include "ui/combat_controls.h"
#include "ui/qt/screens/screen_area.h"
#include "ui/qt/widgets/widget_maker.h"

class QLayout;

namespace warhost {

class CombatPage : public ScreenArea {
    Q_OBJECT

public:
    /// content: the part of the screen that is laid out, in pixels.
    CombatPage(CombatControls& controls, Scale const& scale, QSize content, QWidget* parent);

private:
    QLayout* totals();
    QWidget* battle_roll();
    QLayout* winner_line();
    QWidget* casualties();
    QLayout* loser_line();
    QLayout* victor_roll_line();
    QLayout* victor_percent_line();
    QWidget* side(int Index);
    QWidget* description();

    CombatControls& controls_;
    WidgetMaker make_;
};

} // namespace warhost
