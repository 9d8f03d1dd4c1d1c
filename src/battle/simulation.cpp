#include "battle/simulation.h"

#include <algorithm>
#include <cmath>

namespace warhost {

namespace {

constexpr double normal_95 = 1.96; // z value of a two-sided 95 % interval

} // namespace

void Tally::count(BattleWinner winner, int margin, int share)
{
    ++values[place_of(winner, margin) + static_cast<std::size_t>(std::clamp(share, 0, highest_share))];
}

double Tally::casualty_margin(int Index) const
{
    auto const number = static_cast<double>(battles());
    double const mean = mean_casualties(Index);
    double squares = 0;
    visit_casualties(Index,
                     [&](double count, double percent) { squares += count * (percent - mean) * (percent - mean); });
    // A few battles say little of how much they vary; half the scale bounds it.
    constexpr int few = 30;
    double const deviation = number < few ? highest_share / 2.0 : std::sqrt(squares / (number - 1));
    return normal_95 * deviation / std::sqrt(number);
}

double share_margin(std::int64_t battles) { return normal_95 * 50 / std::sqrt(static_cast<double>(battles)); }

Simulation::Simulation(int modifier_a, int modifier_b, CarriedOver before)
    : results_{modifier_a, modifier_b},
      carried_over_{before.result_b, std::clamp(before.victor_roll, lowest_roll, highest_roll)}
{
    for (std::size_t a = 0; a < die_sides; ++a) {
        for (std::size_t b = 0; b < die_sides; ++b) {
            auto const [winner, margin, bonus] = results_.meeting(a, b);
            meetings_.at(a).at(b) = {static_cast<std::uint16_t>(Tally::place_of(winner, margin)),
                                     static_cast<std::uint8_t>(bonus), winner == tie};
        }
    }
}

void Simulation::fight(RandomSource& random, std::int32_t battles)
{
    if (auto* const generator = dynamic_cast<Generator*>(&random)) {
        Generator local = *generator;
        run(local, battles);
        *generator = local;
    } else {
        run(random, battles);
    }
}

template <class Source> void Simulation::run(Source& source, std::int32_t battles)
{
    auto const roll = [&] { return static_cast<unsigned>(roll_d20(source)); };
    auto const share_of = [&](Meeting meeting, int low, int span) {
        if (meeting.tie) [[unlikely]] { // the evaluation draws one percentage, the roll for it another
            roll_between(source, tie_percent, tie_percent);
            return roll_between(source, tie_percent, tie_percent);
        }
        return roll_between(source, low, low + span - 1);
    };
    for (std::int32_t fought = 0; fought < battles; ++fought) {
        Boxes boxes = 0;
        // A tie of the two results evaluates the victor's roll still shown from before, and draws the percentage, which
        // can only be 100. Side A's new result meets Side B's old one first.
        auto const evaluate_shown_roll = [&] {
            boxes = boxes_after_shown[shown_index(carried_over_.victor_roll, boxes)];
            roll_between(source, tie_percent, tie_percent);
        };
        unsigned const die_a = roll();
        if (results_.a[die_a - 1] == carried_over_.result_b) [[unlikely]]
            evaluate_shown_roll();
        unsigned const die_b = roll();
        carried_over_.result_b = results_.b[die_b - 1];
        Meeting const meeting = meetings_[die_a - 1][die_b - 1];
        if (meeting.tie) [[unlikely]]
            evaluate_shown_roll();

        Judgement judgement = judgements[judgement_index(meeting.bonus, boxes, roll())];
        int share = share_of(meeting, judgement.low, judgement.span);
        if (judgement.boxes != 0) [[unlikely]] {
            judgement = judgements[judgement_index(meeting.bonus, judgement.boxes, roll())];
            share = share_of(meeting, judgement.low, judgement.span);
        }
        carried_over_.victor_roll = judgement.roll;
        ++tally_.values[meeting.place + static_cast<std::size_t>(share)];
    }
}

} // namespace warhost
