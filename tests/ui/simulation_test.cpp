#include "ui/simulation_report.h"

#include "ui/test_desktop.h"

namespace warhost {
namespace {

/// What the combat screen holds before the simulation: both modifiers, both results, the victor's roll and its bonus,
/// and whether +5 and -5 are checked.
using Start = std::array<int, 8>;

struct Fighter : Started<Generator> {
    Fighter(Start const& start, std::uint64_t seed) : Started(Generator{seed})
    {
        form.txtUnitNum(0).set_text("1234");
        TextBox* const boxes[] = {&form.txtTotalMod(0), &form.txtTotalMod(1),   &form.txtResult(0),
                                  &form.txtResult(1),   &form.txtVictorCasRoll, &form.txtCasRollBonus};
        for (std::size_t i = 0; i < std::size(boxes); ++i) boxes[i]->set_text(plain_text(start[i]));
        form.chkPlus5.set_state(start[6]);
        form.chkMinus5.set_state(start[7]);
    }

    std::string screen()
    {
        std::string text = texts(form.txtResult(0), form.txtResult(1), form.txtCasRollBonus, form.txtLoserCasualty,
                                 form.txtVictorCasRoll, form.txtVictorCasPercent, form.txtVictorCas, form.lblWinner,
                                 form.lblWinBy, form.lblLoserPercent, form.lblCasRange);
        for (auto const& [index, loses] : form.txtLoses) text += " " + loses.text();
        return text + plain_text(form.chkPlus5.state()) + plain_text(form.chkMinus5.state()) +
               form.txtBattleResults.document() + form.txtVictorDesc.document();
    }

    /// The battles one by one on the screen, and the report that they add up to.
    std::string fight_on_the_screen(int battles)
    {
        double wins_a = 0, wins_b = 0, ties = 0, casualties_a = 0, casualties_b = 0;
        for (int fought = 0; fought < battles; ++fought) {
            form.cmdRollAll_Click();
            if (form.chkMinus5.state() == 1 || form.chkPlus5.state() == 1) {
                form.cmdRollCasualty_Click();
                form.cmdRollVictorCas_Click();
            }
            bool const a_won = form.battle.Winner == 0;
            (a_won ? wins_a : form.battle.Winner == 1 ? wins_b : ties) += 1;
            (a_won ? casualties_b : casualties_a) += form.battle.LoserCasualty;
            (a_won ? casualties_a : casualties_b) += form.battle.VictorCasualty;
        }
        auto const number = [&](double sum) { return one_decimal(sum / battles, {}); };
        return report({number(wins_a * 100), number(casualties_a), number(wins_b * 100), number(casualties_b),
                       number(ties * 100)});
    }
};

TEST(SimulateCommand, leaves_the_same_state_as_battles_on_the_screen)
{
    // clang-format off
    Start const starts[] = {
        {0, 0, 0, 0, 0, 0, 0, 0}, {3, 1, 5, 7, 1, 0, 1, 0}, {10, 0, 3, 3, 20, 3, 0, 0}, {25, 0, 10, 4, 20, 0, 1, 1},
        {-32000, 32000, 2, 19, 1, 2, 0, 1}, {31990, 32000, 9, 32000, 20, -5, 1, 0}, {0, 18, 7, 12, 500, 0, 0, 0},
        {-31995, -32000, 1, -31990, 1, 1, 0, 0}, {2, 0, -4, 9999, -4, 32000, 0, 1}};
    // clang-format on
    for (auto const& start : starts) {
        for (std::uint64_t seed = 1; seed <= 12; ++seed) {
            int const battles = seed % 4 == 0 ? 1 : static_cast<int>(30 * seed);
            SCOPED_TRACE(testing::Message() << start[0] << "/" << start[1] << ", seed " << seed);
            Fighter quick{start, seed}, slow{start, seed};
            quick.desktop.typed = plain_text(battles);
            quick.form.cmdSimulate_Click();
            ASSERT_EQ(quick.desktop.boxes.back(), slow.fight_on_the_screen(battles));
            ASSERT_EQ(quick.screen(), slow.screen());
            ASSERT_EQ(quick.form.battle, slow.form.battle);
            ASSERT_TRUE(quick.random == slow.random);
        }
    }
}

TEST(SimulateCommand, fights_the_requested_number_of_battles_in_batches)
{
    Start const no_tie{25, 0, 0, 0, 0, 0, 0, 0};
    Fighter fighter{no_tie, 8}, last{no_tie, 8};
    fighter.desktop.typed = "1048579";
    fighter.form.cmdSimulate.press();
    EXPECT_EQ(fighter.desktop.requests.at(1), "1048577 of 1048579");
    EXPECT_EQ(fighter.desktop.requests.at(2), "1048579 of 1048579");
    Simulation{25, 0, {}}.fight(last.random, 1048578);
    last.fight_on_the_screen(1);
    EXPECT_TRUE(fighter.random == last.random);
}

TEST(SimulateCommand, repeats_its_battles_for_the_same_seed)
{
    Fighter fighter{{3, 1, 1, 0, 0, 0, 0, 0}, 20};
    fighter.desktop.typed = "1000";
    fighter.form.cmdSimulate.press();
    EXPECT_EQ(fighter.desktop.boxes.back(), report({"57.2", "13.9", "39.6", "19.2", "3.2"}));
    EXPECT_EQ(texts(fighter.form.txtResult(0), fighter.form.txtResult(1), fighter.form.txtVictorCasRoll,
                    fighter.form.txtVictorCas),
              "8/18/9/9.6");
    EXPECT_EQ(fighter.random.next(), 1431769798 * 0x1p-32);
}

TEST(SimulateCommand, shows_the_exact_odds_and_the_sampling_error)
{
    // clang-format off
    struct { std::string battles, modifier_a, modifier_b, odds, sample; } const rows[] = {
        {"1", "3", "1", "Side A wins 57,3%, Side B wins 38,3%, tied 4,5%; casualties 13,8% and 19,1%",
            "1 battle; 95 % confidence: wins and ties within 98 points, average casualties within 108"},
        // 98 / sqrt(10000); a side's casualties vary by some 14 points from battle to battle.
        {"10000", "none", "", "Side A wins 47,5%, Side B wins 47,5%, tied 5,0%; casualties 16,1% and 16,1%",
            "10.000 battles; 95 % confidence: wins and ties within 0,98 points, average casualties within 0,"}};
    // clang-format on
    for (auto const& row : rows) {
        Fighter fighter{{}, 5};
        fighter.desktop.format = {",", "."};
        fighter.form.txtTotalMod(0).set_text(row.modifier_a);
        fighter.form.txtTotalMod(1).set_text(row.modifier_b);
        fighter.desktop.typed = row.battles;
        fighter.form.cmdSimulate.press();
        EXPECT_EQ(fighter.desktop.beside_report[0], "In the long run: " + row.odds);
        EXPECT_EQ(fighter.desktop.beside_report[1].substr(0, row.sample.size()), row.sample);
    }
}

TEST(SampleText, says_when_all_battles_ended_alike)
{
    Tally tally;
    for (int battle = 0; battle < 100; ++battle) tally.count(side_a_won, 40, 5);
    EXPECT_EQ(sample_text(tally, {}),
              "100 battles; 95 % confidence: wins and ties within 9.8 points, average casualties within 0");
}

} // namespace
} // namespace warhost
