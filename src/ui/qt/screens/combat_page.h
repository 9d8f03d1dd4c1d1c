// The combat screen: the battle roll and the casualties at the left, the description of the battle at the right.
#pragma once

#include "ui/combat_controls.h"
#include "ui/qt/screens/battle_signs.h"
#include "ui/qt/screens/screen_area.h"
#include "ui/qt/widgets/widget_maker.h"

#include <array>

class QLayout;

namespace warhost {

class ElidedLabel;
class SidePanel;
class WinnerBand;

class CombatPage : public ScreenArea {
    Q_OBJECT

public:
    /// content: the part of the screen that is laid out, in pixels.
    CombatPage(CombatControls& controls, Scale const& scale, QSize content, QWidget* parent);

    /// Index: 0 for Side A, 1 for Side B. Empty for an army without a name.
    void show_army_names(std::array<QString, 2> const& names);

    /// Moves the focus to the button that begins a battle.
    void focus_first_step();

private:
    QLayout* totals();
    QWidget* battle_roll();
    QLayout* result(int Index);
    QWidget* casualties();
    QLayout* loser_line();
    QLayout* victor_roll_line();
    QLayout* victor_percent_line();
    QWidget* description();
    void follow_battle();
    void follow_box(CheckBox& field, QCheckBox* box);
    void show_signs();

    CombatControls& controls_;
    WidgetMaker make_;
    BattleSigns signs_;
    QPushButton* roll_all_ = nullptr;
    QPushButton* roll_casualty_ = nullptr;
    QPushButton* roll_share_ = nullptr;
    QLabel* note_ = nullptr;
    CaptionFrame* roll_frame_ = nullptr;
    CaptionFrame* casualty_frame_ = nullptr;
    WinnerBand* band_ = nullptr;
    std::array<ElidedLabel*, 2> names_{};
    std::array<EntryBox*, 2> totals_{};
    std::array<EntryBox*, 2> results_{};
    std::array<SidePanel*, 2> sides_{};
};

} // namespace warhost
