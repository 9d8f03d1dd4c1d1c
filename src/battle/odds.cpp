#include "battle/odds.h"

#include "battle/battle_tables.h"

#include <array>
#include <cstddef>

namespace warhost {

namespace {

constexpr double one_die = 1.0 / die_sides;
constexpr double two_dice = one_die * one_die;

/// By the boxes that a tie would find checked after evaluating the roll shown: chances.
using Shown = std::array<double, box_states>;

/// How the victor's rolls of one battle come out: the share of the loser's percentage, and what the last roll does to
/// the boxes of the next battle.
struct VictorRolls {
    std::array<double, highest_share + 1> share{};
    Shown shown{};

    void roll(unsigned bonus, Boxes boxes)
    {
        for (unsigned die = 1; die <= die_sides; ++die) {
            Judgement const& first = judgements.at(judgement_index(bonus, boxes, die));
            if (first.boxes == 0) {
                weigh(first, one_die);
                continue;
            }
            for (unsigned again = 1; again <= die_sides; ++again) {
                weigh(judgements.at(judgement_index(bonus, first.boxes, again)), two_dice);
            }
        }
    }

private:
    void weigh(Judgement const& judgement, double chance)
    {
        for (unsigned k = 0; k < judgement.span; ++k) share.at(judgement.low + k) += chance / judgement.span;
        shown.at(boxes_after_shown(judgement.roll)) += chance;
    }
};

/// By bonus, then by the boxes before the victor's roll.
using AllVictorRolls = std::array<std::array<VictorRolls, box_states>, highest_bonus + 1>;

/// What one battle carries over to the next: chances by Side B's die and by what the shown roll does to the boxes.
using CarriedChances = std::array<Shown, die_sides>;

/// Calls visit(meeting, die_b, boxes, chance) for each pair of dice and each state of the boxes before the victor's
/// roll. The chance may be 0.
template <class Visitor> void visit_meetings(Results const& results, CarriedChances const& before, Visitor visit)
{
    auto const evaluated_if = [&](auto const& is_tie) {
        Shown chances{};
        for (std::size_t die_b = 0; die_b < die_sides; ++die_b) {
            if (!is_tie(die_b)) continue;
            for (Boxes boxes = 1; boxes < box_states; ++boxes) chances.at(boxes) += before.at(die_b).at(boxes);
        }
        return chances;
    };
    Shown const always = evaluated_if([](std::size_t) { return true; });
    for (std::size_t die_a = 0; die_a < die_sides; ++die_a) {
        Shown const passing =
            evaluated_if([&](std::size_t die_b) { return results.a.at(die_a) == results.b.at(die_b); });
        for (std::size_t die_b = 0; die_b < die_sides; ++die_b) {
            Meeting const meeting = results.meeting(die_a, die_b);
            Shown const& checked = meeting.winner == tie ? always : passing;
            double none = 1;
            for (Boxes boxes = 1; boxes < box_states; ++boxes) {
                none -= checked.at(boxes);
                visit(meeting, die_b, boxes, two_dice * checked.at(boxes));
            }
            visit(meeting, die_b, Boxes{0}, two_dice * none);
        }
    }
}

/// The stationary state: what a battle leaves in the long run, whatever the first one began with. Two histories leave
/// the same roll shown, as far as it matters, in more than nine battles of ten, so each round makes the error ten times
/// smaller.
CarriedChances stationary_state(Results const& results, AllVictorRolls const& rolls)
{
    constexpr int rounds = 18;
    CarriedChances state{};
    for (Shown& chances : state) chances.front() = one_die;
    for (int round = 0; round < rounds; ++round) {
        CarriedChances next{};
        visit_meetings(results, state, [&](Meeting const& meeting, std::size_t die_b, Boxes boxes, double chance) {
            Shown const& shown = rolls.at(static_cast<std::size_t>(meeting.bonus)).at(boxes).shown;
            for (Boxes left = 0; left < box_states; ++left) next.at(die_b).at(left) += chance * shown.at(left);
        });
        state = next;
    }
    return state;
}

} // namespace

Odds::Odds(int modifier_a, int modifier_b)
{
    AllVictorRolls rolls{};
    for (unsigned bonus = 0; bonus <= highest_bonus; ++bonus) {
        for (Boxes boxes = 0; boxes < box_states; ++boxes) rolls.at(bonus).at(boxes).roll(bonus, boxes);
    }
    Results const results{modifier_a, modifier_b};
    visit_meetings(results, stationary_state(results, rolls),
                   [&](Meeting const& meeting, std::size_t /*die_b*/, Boxes boxes, double chance) {
                       std::size_t const place = place_of(meeting.winner, meeting.margin);
                       if (meeting.winner == tie) {
                           values.at(place + tie_percent) += chance;
                           return;
                       }
                       auto const& share = rolls.at(static_cast<std::size_t>(meeting.bonus)).at(boxes).share;
                       for (std::size_t k = 0; k < share.size(); ++k) values.at(place + k) += chance * share.at(k);
                   });
}

} // namespace warhost
