#include "battle/simulation.h"

#include "battle/victor_table.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace warhost {

namespace {

constexpr double normal_95 = 1.96; // standard deviations on either side that hold 95 in a hundred
constexpr int read_limit = 32000;  // of a result read from the screen
constexpr int highest_bonus = casualty_roll_bonus(outcome_table.back().last);

/// The two boxes as bits.
using Boxes = unsigned;
constexpr Boxes minus5 = 1;
constexpr Boxes plus5 = 2;
constexpr std::size_t box_states = 4;

constexpr Boxes box_bit(Box box) { return box == Box::minus5 ? minus5 : box == Box::plus5 ? plus5 : 0; }

constexpr int bonus_with(int bonus, Boxes boxes)
{
    return effective_bonus(bonus, (boxes & minus5) != 0, (boxes & plus5) != 0);
}

constexpr VictorRow const* row_of(int roll, int bonus, Boxes boxes)
{
    return victor_row_of({roll, roll - bonus_with(bonus, boxes), (boxes & minus5) != 0, (boxes & plus5) != 0});
}

/// The victor's table for a die, a bonus and the boxes as they stand.
struct Judgement {
    std::uint8_t low;
    std::uint8_t span;  // numbers in the range
    std::uint8_t boxes; // afterwards
    std::int16_t roll;
};

constexpr std::size_t judgement_index(unsigned bonus, Boxes boxes, unsigned die)
{
    return (bonus * box_states + boxes) * die_sides + die - 1;
}

constexpr auto judgements = [] {
    std::array<Judgement, (highest_bonus + 1) * box_states * die_sides> table{};
    for (int bonus = 0; bonus <= highest_bonus; ++bonus) {
        for (Boxes boxes = 0; boxes < box_states; ++boxes) {
            for (int die = 1; die <= die_sides; ++die) {
                int const roll = die + bonus_with(bonus, boxes);
                VictorRow const& row = *row_of(roll, bonus, boxes);
                table.at(judgement_index(static_cast<unsigned>(bonus), boxes, static_cast<unsigned>(die))) = {
                    static_cast<std::uint8_t>(row.low), static_cast<std::uint8_t>(row.high - row.low + 1),
                    static_cast<std::uint8_t>(boxes | box_bit(row.box)), static_cast<std::int16_t>(roll)};
            }
        }
    }
    return table;
}();

/// The rolls that a battle can show. A roll typed beyond them checks no box, as those at the ends.
constexpr int lowest_roll = 1 + bonus_with(0, minus5);
constexpr int highest_roll = die_sides + bonus_with(highest_bonus, plus5);

constexpr std::size_t shown_index(int roll, Boxes boxes)
{
    return static_cast<unsigned>(roll - lowest_roll) * box_states + boxes;
}

/// The boxes after a tie has evaluated the roll that is shown from before, which it does with a bonus of 0.
constexpr auto boxes_after_shown = [] {
    std::array<std::uint8_t, (highest_roll - lowest_roll + 1) * box_states> table{};
    for (int roll = lowest_roll; roll <= highest_roll; ++roll) {
        for (Boxes boxes = 0; boxes < box_states; ++boxes) {
            table.at(shown_index(roll, boxes)) =
                static_cast<std::uint8_t>(boxes | box_bit(row_of(roll, 0, boxes)->box));
        }
    }
    return table;
}();
static_assert(boxes_after_shown.front() == 0 && boxes_after_shown.at(shown_index(highest_roll, 0)) == 0);

} // namespace

std::size_t Tally::place_of(int winner, int margin)
{
    Outcome const* const row = outcome_of(margin);
    auto const outcome = row != nullptr ? static_cast<std::size_t>(row - outcome_table.data()) : outcomes - 1;
    return (static_cast<std::size_t>(winner) * outcomes + outcome) * shares;
}

template <class Visitor> void Tally::visit_casualties(int Index, Visitor visit) const
{
    for (std::size_t place = 0; place < counts_.size(); ++place) {
        if (counts_[place] == 0) continue;
        auto const outcome = place / shares % outcomes;
        int const loser = outcome < outcome_table.size() ? outcome_table.at(outcome).percent : 0;
        bool const a_won = place / shares / outcomes == side_a_won;
        bool const victor = a_won == (Index == 0);
        visit(counts_[place],
              victor ? victor_casualty(loser, static_cast<int>(place % shares)) : static_cast<float>(loser));
    }
}

std::int64_t Tally::battles() const { return std::accumulate(counts_.begin(), counts_.end(), std::int64_t{0}); }

std::int64_t Tally::won_by(int winner) const
{
    auto const* const first = counts_.begin() + static_cast<std::ptrdiff_t>(place_of(winner, 0));
    return std::accumulate(first, first + outcomes * shares, std::int64_t{0});
}

double Tally::casualties(int Index) const
{
    double sum = 0;
    visit_casualties(Index, [&](double count, double percent) { sum += count * percent; });
    return sum;
}

std::array<std::int64_t, highest_share + 1> Tally::histogram(int Index) const
{
    std::array<std::int64_t, highest_share + 1> bars{};
    visit_casualties(Index, [&](std::int64_t count, double percent) {
        bars.at(static_cast<std::size_t>(std::lround(percent))) += count;
    });
    return bars;
}

double Tally::casualty_margin(int Index) const
{
    auto const number = static_cast<double>(battles());
    double const mean = casualties(Index) / number;
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
    : carried_over_{before.result_b, std::clamp(before.victor_roll, lowest_roll, highest_roll)}
{
    auto const as_read = [](int modifier, std::size_t die) {
        return static_cast<std::int16_t>(std::clamp(modifier + static_cast<int>(die) + 1, -read_limit, read_limit));
    };
    for (std::size_t die = 0; die < die_sides; ++die) {
        results_a_.at(die) = as_read(modifier_a, die);
        results_b_.at(die) = as_read(modifier_b, die);
    }
    for (std::size_t a = 0; a < die_sides; ++a) {
        for (std::size_t b = 0; b < die_sides; ++b) {
            int const winner = winner_of(results_a_.at(a), results_b_.at(b));
            int const margin = std::abs(results_a_.at(a) - results_b_.at(b));
            meetings_.at(a).at(b) = {static_cast<std::uint16_t>(Tally::place_of(winner, margin)),
                                     static_cast<std::uint8_t>(casualty_roll_bonus(margin)), winner == tie};
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
        // A tie of the two results evaluates the victor's roll that still stands there from before, and draws the
        // percentage, which can only be 100. Side A's new result meets Side B's old one first.
        auto const evaluate_shown_roll = [&] {
            boxes = boxes_after_shown[shown_index(carried_over_.victor_roll, boxes)];
            roll_between(source, tie_percent, tie_percent);
        };
        unsigned const die_a = roll();
        if (results_a_[die_a - 1] == carried_over_.result_b) [[unlikely]]
            evaluate_shown_roll();
        unsigned const die_b = roll();
        carried_over_.result_b = results_b_[die_b - 1];
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
        tally_.count(meeting.place + static_cast<std::size_t>(share));
    }
}

} // namespace warhost
