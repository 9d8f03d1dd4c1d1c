// The state of a battle that the combat screen shows beside its fields.
#pragma once

#include "battle/battle_state.h"

#include <array>
#include <optional>

namespace warhost {

/// Tracks the fields as they are shown; the caller that reports an event then shows the new state.
class BattleSigns {
public:
    /// The button to press for a due reroll.
    enum class Reroll { none, casualty_roll, share };

    Reroll reroll() const { return reroll_; }
    /// The battle on the screen is the last of a simulation.
    bool simulated() const { return simulated_; }
    /// Index: 0 for Side A, 1 for Side B. The losses on the screen have already been subtracted from the army.
    bool applied(int Index) const { return applied_.at(static_cast<std::size_t>(Index)); }

    /// The victor's casualties have been computed since that side became the victor.
    bool victor_known() const { return victor_known_; }

    void result_set() { begin_anew(); }
    void winner_set(std::optional<BattleWinner> winner)
    {
        if (winner != winner_) victor_known_ = false;
        winner_ = winner;
    }
    void loser_percentage_set() { applied_ = {}; }
    void victor_percentage_set()
    {
        applied_ = {};
        victor_known_ = true;
    }
    void loss_set(int Index) { applied_.at(static_cast<std::size_t>(Index)) = false; }
    void casualties_applied(int Index) { applied_.at(static_cast<std::size_t>(Index)) = true; }
    void battles_simulated() { simulated_ = true; }

    /// A natural 1 or 20 has checked a box that requires a reroll.
    void reroll_asked() { reroll_ = Reroll::casualty_roll; }
    void boxes_unchecked() { reroll_ = Reroll::none; }

    void casualty_roll_set()
    {
        begin_anew();
        if (reroll_ == Reroll::casualty_roll) reroll_ = Reroll::share;
    }
    void share_set()
    {
        begin_anew();
        if (reroll_ == Reroll::share) reroll_ = Reroll::none;
    }

private:
    void begin_anew()
    {
        simulated_ = false;
        applied_ = {};
    }

    Reroll reroll_ = Reroll::none;
    bool simulated_ = false;
    std::array<bool, 2> applied_{};
    std::optional<BattleWinner> winner_;
    bool victor_known_ = false;
};

} // namespace warhost
