#include "battle/simulation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <type_traits>

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
    visit_casualties(Index, [&](double count, double percent) { squares += count * std::pow(percent - mean, 2); });
    // A small sample underestimates the deviation; half the scale is its upper bound.
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
                                     static_cast<std::uint16_t>(judgements_from(static_cast<unsigned>(bonus), 0)),
                                     winner == tie};
        }
    }
}

void Simulation::fight(RandomSource& random, std::int32_t battles)
{
    if (auto* const generator = dynamic_cast<Generator*>(&random)) run(*generator, battles);
    else run(random, battles);
}

template <class Source> void Simulation::run(Source& random, std::int32_t battles)
{
    // Local copies of the state stay in registers.
    std::conditional_t<std::is_abstract_v<Source>, Source&, Source> source = random;
    int result_b = carried_over_.result_b;
    Judgement before{};
    before.roll = static_cast<std::int8_t>(carried_over_.victor_roll);
    Judgement const* shown = &before;

    auto const roll = [&] { return static_cast<std::size_t>(roll_d20(source) - 1); };
    // A tie of the two results evaluates the victor's roll still shown from before, and draws the percentage, which can
    // only be 100. Side A's new result meets Side B's old one first.
    auto const evaluate_shown_roll = [&] {
        roll_between(source, tie_percent, tie_percent);
        return judgements_from(0, boxes_after_shown(shown->roll));
    };
    auto const share_of_tie = [&] { // the evaluation draws one percentage, the roll for it another
        roll_between(source, tie_percent, tie_percent);
        return roll_between(source, tie_percent, tie_percent);
    };
    auto const share_in_range = [&] { return roll_between(source, shown->low, shown->low + shown->span - 1); };
    auto const roll_victor = [&](Meeting const& meeting, std::size_t of_boxes, auto const& draw_share) {
        shown = &judgements[meeting.judgements + of_boxes + roll()];
        int share = draw_share();
        if (shown->boxes != 0) [[unlikely]] {
            shown = &judgements[meeting.judgements + judgements_from(0, shown->boxes) + roll()];
            share = draw_share();
        }
        ++tally_.values[meeting.place + static_cast<unsigned>(share)];
    };
    for (std::int32_t fought = 0; fought < battles; ++fought) {
        std::size_t of_boxes = 0;
        std::size_t const die_a = roll();
        if (results_.a[die_a] == result_b) [[unlikely]]
            of_boxes = evaluate_shown_roll();
        std::size_t const die_b = roll();
        result_b = results_.b[die_b];
        Meeting const& meeting = meetings_[die_a][die_b];
        if (meeting.tie) [[unlikely]]
            roll_victor(meeting, evaluate_shown_roll(), share_of_tie);
        else roll_victor(meeting, of_boxes, share_in_range);
    }
    carried_over_ = {result_b, shown->roll};
    if constexpr (!std::is_abstract_v<Source>) random = source;
}

} // namespace warhost
