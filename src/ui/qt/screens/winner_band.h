// The line that shows who has won, readable from across a table.
#pragma once

#include "battle/battle_state.h"
#include "ui/combat_controls.h"

#include <QTimer>
#include <QWidget>

#include <array>
#include <functional>
#include <optional>

class QLabel;

namespace warhost {

class ElidedLabel;
class WidgetMaker;

/// The winner of the battle on the screen; none before the first result.
std::optional<BattleWinner> shown_winner(CombatControls const& controls);

class WinnerBand : public QWidget {
    Q_OBJECT

public:
    WinnerBand(CombatControls& controls, WidgetMaker const& make);

    /// Empty for an army without a name.
    void show_army_names(std::array<QString, 2> const& names);

    /// In the winner's colour.
    void show_winner();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void announce();

    CombatControls const& controls_;
    QLabel* winner_;
    QLabel* margin_;
    std::array<QLabel*, 3> words_;
    ElidedLabel* name_;
    std::array<QString, 2> names_;
    QTimer announcement_; // after all fields of a roll have been shown
};

} // namespace warhost
