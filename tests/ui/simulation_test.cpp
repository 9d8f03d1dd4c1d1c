#include "ui/simulation_report.h"

#include "test_desktop.h"

namespace warhost {
namespace {

/// What the combat screen holds before the simulation.
struct Start {
    int modifier_a, modifier_b, result_a, result_b, victor_roll;
    bool plus5, minus5;
    int bonus;
};

struct Fighter {
    TestDesktop desktop;
    Generator generator;
    Main form{desktop, generator};

    Fighter(Start const& start, std::uint64_t seed) : generator(seed)
    {
        form.txtUnitNum(0).set_text("1234");
        form.txtTotalMod(0).set_text(plain_text(start.modifier_a));
        form.txtTotalMod(1).set_text(plain_text(start.modifier_b));
        form.txtResult(0).set_text(plain_text(start.result_a));
        form.txtResult(1).set_text(plain_text(start.result_b));
        form.txtVictorCasRoll.set_text(plain_text(start.victor_roll));
        form.chkPlus5.set_state(start.plus5 ? 1 : 0);
        form.chkMinus5.set_state(start.minus5 ? 1 : 0);
        form.txtCasRollBonus.set_text(plain_text(start.bonus));
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

TEST(SimulateCommand, leaves_what_as_many_battles_on_the_screen_leave)
{
    // clang-format off
    Start const starts[] = {
        {0, 0, 0, 0, 0, false, false, 0}, {3, 1, 5, 7, 1, true, false, 0}, {10, 0, 3, 3, 20, false, false, 3},
        {25, 0, 10, 4, 20, true, true, 0}, {-32000, 32000, 2, 19, 1, false, true, 2},
        {31990, 32000, 9, 32000, 20, true, false, -5}, {-31995, -32000, 1, -31990, 1, false, false, 1},
        {0, 18, 7, 12, 500, false, false, 0}, {2, 0, -4, 9999, -4, false, true, 32000},
    };
    // clang-format on
    for (auto const& start : starts) {
        for (std::uint64_t seed = 1; seed <= 12; ++seed) {
            int const battles = seed % 4 == 0 ? 1 : static_cast<int>(30 * seed);
            SCOPED_TRACE(testing::Message() << start.modifier_a << "/" << start.modifier_b << ", seed " << seed);
            Fighter quick{start, seed}, slow{start, seed};
            quick.desktop.typed = plain_text(battles);
            quick.form.cmdSimulate_Click();
            std::string const expected = slow.fight_on_the_screen(battles);
            ASSERT_EQ(quick.desktop.boxes.back(), expected);
            ASSERT_EQ(quick.screen(), slow.screen());
            ASSERT_EQ(quick.form.battle, slow.form.battle);
            ASSERT_TRUE(quick.generator == slow.generator);
        }
    }
}

TEST(SimulateCommand, says_how_far_its_numbers_may_be_off)
{
    auto const margin_of = [](int battles) {
        Simulation simulation{0, 0, {}};
        Generator generator{5};
        simulation.fight(generator, battles);
        return simulation_margin(simulation.tally(), {",", "."});
    };
    EXPECT_EQ(margin_of(1),
              "95 times in 100, wins and ties are at most 98 points off, average casualties at most 108.");
    // 98 / sqrt(10000); a side's casualties vary by some 14 points from battle to battle.
    EXPECT_TRUE(margin_of(10000).starts_with(
        "95 times in 100, wins and ties are at most 0,98 points off, average casualties at most 0,"));
}

} // namespace
} // namespace warhost
