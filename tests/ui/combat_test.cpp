#include "army/same_army.h"
#include "ui/rich_text.h"
#include "ui/test_desktop.h"

namespace warhost {
namespace {

/// A has 100 and 25 soldiers, B 80 and 15; the combat tab is selected.
struct Combat : Program {
    Combat()
    {
        for (auto const& [tab, first, second] : {std::tuple{1, "100", "25"}, {2, "80", "15"}}) {
            form.TabStrip.choose(tab);
            form.txtUnitNum(0).set_text(first);
            form.txtUnitNum(1).set_text(second);
        }
        form.TabStrip.choose(3);
    }

    /// Roll All with these modifiers, and the rerolls behind it, with these random values and no others.
    void roll(int a, int b, std::deque<double> const& dice)
    {
        form.txtTotalMod(0).set_text(std::to_string(a));
        form.txtTotalMod(1).set_text(std::to_string(b));
        random.values = dice;
        form.cmdRollAll.press();
        while (!random.values.empty()) {
            form.cmdRollCasualty.press();
            form.cmdRollVictorCas.press();
        }
    }

    /// "winner by margin (results): loser's %, bonus | roll: range, share is victor's % | losses of both sides' first
    /// two rows" and the checked boxes.
    std::string screen()
    {
        auto const losses = [&](int row) { return form.txtLoses(row).text() + " " + form.txtLoses(row + 1).text(); };
        auto const ticked = [](CheckBox const& box) { return box.state() == 1 ? " [" + box.caption() + "]" : ""; };
        return form.lblWinner.caption() + " by " + form.lblWinBy.caption() + " (" + form.txtResult(0).text() + ":" +
               form.txtResult(1).text() + "): " + form.lblLoserPercent.caption() + ", bonus " +
               form.txtCasRollBonus.text() + " | " + form.txtVictorCasRoll.text() + ": " + form.lblCasRange.caption() +
               ", " + form.txtVictorCasPercent.text() + "% is " + form.txtVictorCas.text() + " | A " + losses(0) +
               ", B " + losses(8) + ticked(form.chkPlus5) + ticked(form.chkMinus5);
    }
};

struct CombatScreen : testing::Test, Combat {};

TEST(Battle, follows_from_its_dice)
{
    // clang-format off
    struct { char const* story; int a, b; std::deque<double> dice; char const* expected; } const stories[] = {
        {"A wins", 3, 1, {d20(14), d20(8), d20(7), share(35, 10, 60)}, "Side A by 8 (17:9): 25%, bonus 1 | 8: 10 to 60, 35% is 8.8 | A 9 2, B 20 4"},
        {"B wins", 1, 3, {d20(8), d20(14), d20(7), share(60, 10, 60)}, "Side B by 8 (9:17): 25%, bonus 1 | 8: 10 to 60, 60% is 15.0 | A 25 6, B 12 2"},
        {"tie: six values", 0, 0, {d20(10), d20(10), 0, d20(7), 0, 0}, "Tie! by 0 (10:10): 10%, bonus 0 | 7: 100, 100% is 10.0 | A 10 3, B 8 2"},
        {"tie, natural 20", 0, 0, {d20(10), d20(10), 0, d20(20), 0, 0}, "Tie! by 0 (10:10): 10%, bonus 0 | 20: 100, 100% is 10.0 | A 10 3, B 8 2 [+5]"},
        {"natural 1", 10, 0, {d20(10), d20(10), d20(1), 0}, "Side A by 10 (20:10): 30%, bonus 2 | 3: 100, 100% is 30.0 | A 30 8, B 24 5 [-5]"},
        {"twice", 10, 0, {d20(10), d20(10), d20(1), 0, d20(1), 0}, "Side A by 10 (20:10): 30%, bonus 2 | -2: 110, 110% is 33.0 | A 33 8, B 24 5 [-5]"},
        {"then a 10", 10, 0, {d20(10), d20(10), d20(1), 0, d20(10), share(10, 10, 60)}, "Side A by 10 (20:10): 30%, bonus 2 | 7: 10 to 60, 10% is 3.0 | A 3 1, B 24 5 [-5]"},
        {"natural 20", 4, 0, {d20(9), d20(9), d20(20), 0}, "Side A by 4 (13:9): 15%, bonus 0 | 20: 2, 2% is 0.3 | A 0 0, B 12 2 [+5]"},
        {"twice", 4, 0, {d20(9), d20(9), d20(20), 0, d20(20), 0}, "Side A by 4 (13:9): 15%, bonus 0 | 25: 0, 0% is 0.0 | A 0 0, B 12 2 [+5]"},
        {"then a 14", 4, 0, {d20(9), d20(9), d20(20), 0, d20(14), share(20, 5, 20)}, "Side A by 4 (13:9): 15%, bonus 0 | 19: 5 to 20, 20% is 3.0 | A 3 1, B 12 2 [+5]"},
        {"20 by bonus", 25, 0, {d20(5), d20(5), d20(15), 0}, "Side A by 25 (30:5): 85%, bonus 5 | 20: 5, 5% is 4.3 | A 4 1, B 68 13"},
        {"destroyed, then two natural 1s", 40, 0, {d20(5), d20(5), d20(1), 0, d20(1), 0}, "Side A by 40 (45:5): 100%, bonus 5 | 1: 110, 110% is 110.0 | A 110 28, B 80 15 [-5]"},
        {"16.65 is 16.7, read as 17", 11, 0, {d20(9), d20(9), d20(5), share(37, 10, 60)}, "Side A by 11 (20:9): 45%, bonus 2 | 7: 10 to 60, 37% is 16.7 | A 17 4, B 36 7"},
        {"12.5 is read as 12", 14, 0, {d20(9), d20(9), d20(5), share(25, 10, 60)}, "Side A by 14 (23:9): 50%, bonus 2 | 7: 10 to 60, 25% is 12.5 | A 12 3, B 40 8"},
        {"13.5 is read as 14", 14, 0, {d20(9), d20(9), d20(5), share(27, 10, 60)}, "Side A by 14 (23:9): 50%, bonus 2 | 7: 10 to 60, 27% is 13.5 | A 14 4, B 40 8"},
    };
    // clang-format on
    for (auto const& [story, a, b, dice, expected] : stories) {
        Combat combat;
        combat.roll(a, b, dice);
        EXPECT_EQ(combat.screen(), expected) << story;
    }
}

TEST_F(CombatScreen, carries_a_natural_roll_into_the_next_one_when_the_first_die_ties)
{
    roll(25, 0, {d20(5), d20(5), d20(15), 0}); // shows a roll of 20, B's result is 5
    roll(0, 0, {d20(5), 0, d20(9), d20(7), share(20, 10, 30)});
    EXPECT_EQ(screen(), "Side B by 4 (5:9): 15%, bonus 0 | 12: 10 to 30, 20% is 3.0 | A 15 4, B 2 0 [+5]");
}

TEST_F(CombatScreen, recomputes_what_depends_on_an_edited_field_and_nothing_else)
{
    EXPECT_EQ(screen(), " Side A  by 0 (0:0): 0%, bonus 0 | 0: 0 to 0, 0% is 0 | A 0 0, B 0 0");
    roll(3, 1, {d20(14), d20(8), d20(7), share(35, 10, 60)});
    // clang-format off
    struct { char const* edit; TextBox& field; char const *text, *expected; } const edits[] = {
        {"loser's %", form.txtLoserCasualty, "40 men", "Side A by 8 (17:9): 40 men%, bonus 1 | 8: 10 to 60, 35% is 8.8 | A 9 2, B 32 6"},
        {"share", form.txtVictorCasPercent, "50", "Side A by 8 (17:9): 40 men%, bonus 1 | 8: 10 to 60, 50% is 20.0 | A 20 5, B 32 6"},
        {"victor's %", form.txtVictorCas, "7.5", "Side A by 8 (17:9): 40 men%, bonus 1 | 8: 10 to 60, 50% is 7.5 | A 8 2, B 32 6"},
        {"bonus", form.txtCasRollBonus, "7", "Side A by 8 (17:9): 40 men%, bonus 7 | 8: 10 to 60, 50% is 7.5 | A 8 2, B 32 6"},
        {"natural 1 now", form.txtVictorCasRoll, "8", "Side A by 8 (17:9): 40 men%, bonus 7 | 8: 100, 50% is 7.5 | A 8 2, B 32 6 [-5]"},
        {"beyond 999", form.txtVictorCasRoll, "1000", "Side A by 8 (17:9): 40 men%, bonus 7 | 1000: 100, 50% is 7.5 | A 8 2, B 32 6 [-5]"},
        {"B's result", form.txtResult(1), "20", "Side B by 3 (17:20): 15%, bonus 0 | 1000: 100, 50% is 7.5 | A 15 4, B 32 6 [-5]"},
        {"a margin too large", form.txtResult(0), "-9990", "Side B by 10010 (-9990:20): 0%, bonus 5 | 1000: 100, 50% is 7.5 | A 0 0, B 32 6 [-5]"},
        {"limits", form.txtResult(0), "99999", "Side A by 31980 (99999:20): 0%, bonus 5 | 1000: 100, 50% is 7.5 | A 0 0, B 0 0 [-5]"},
    };
    // clang-format on
    form.txtANum(8).set_text("1000"); // shown, but the record counts
    for (auto const& [edit, field, text, expected] : edits) {
        field.set_text(text);
        EXPECT_EQ(screen(), expected) << edit;
    }
    EXPECT_EQ(form.battle.VictorCasualty, 20);
    auto const accounts = [&] { return std::pair(form.txtBattleResults.document(), form.txtVictorDesc.document()); };
    EXPECT_EQ(accounts(), std::pair(rich_text_document(""), rich_text_document("")));
    form.lblCasRange.set_caption("");
    form.txtVictorCasRoll.set_text("-1000");
    EXPECT_EQ(form.lblCasRange.caption(), "100"); // the range stays, its label is written again
    form.txtResult(1).set_text("31999");
    form.txtCasRollBonus.set_text("0");
    form.txtVictorCasRoll.set_text("14");
    EXPECT_EQ(accounts(), std::pair(rich_text_document("10% casualties; no ground lost."),
                                    rich_text_document("10% to 30% of loser's casualty percentage.")));
    random.values = {0};
    form.txtResult(1).set_text("32000");
    EXPECT_EQ(accounts().second, rich_text_document("Tie!"));
    form.txtLoserCasualty.set_text("50"); // of a tie: Side A
    form.txtVictorCas.set_text("20");
    EXPECT_EQ(texts(form.txtLoses(0), form.txtLoses(8)), "50/16");
}

TEST(Apply, subtracts_the_losses_of_its_own_side_whichever_tab_is_selected)
{
    for (int const tab : {1, 2, 3}) {
        Combat combat;
        Main& form = combat.form;
        form.TabStrip.choose(tab);
        combat.roll(3, 1, {d20(14), d20(8), d20(7), share(35, 10, 60)});
        auto const before = form.ArmyA.UnitNum;
        form.cmdApplyCasualties(1).press();
        EXPECT_EQ(texts(form.txtANum(8), form.txtANum(9), form.txtANum(0)), "60/11/100");
        EXPECT_EQ(texts(form.txtTotalMod(0), form.txtTotalMod(1), form.lblRatio, form.lblRatioBonus), "1/0/< 1:1/+0");
        EXPECT_EQ(form.txtUnitNum(0).text(), tab == 1 ? "100" : "80"); // still
        EXPECT_TRUE(same(form.CurArmy, form.ArmyA));
        EXPECT_EQ(form.ArmyA.UnitNum, before);
        EXPECT_EQ(form.ArmyB.TotalNo, 71);
        EXPECT_EQ(combat.screen(), "Side A by 8 (17:9): 25%, bonus 1 | 8: 10 to 60, 35% is 8.8 | A 9 2, B 20 4");
        form.cmdApplyCasualties(1).press();
        EXPECT_EQ(texts(form.txtANum(8), form.txtANum(9), form.txtTotalMod(0)), "40/7/3"); // 125 to 47
        form.txtLoses(1).set_text("none");
        form.txtLoses(0).set_text("-3");
        form.cmdApplyCasualties(0).press();
        EXPECT_EQ(form.ArmyA.TotalNo, 128);
        EXPECT_TRUE(same(form.CurArmy, form.ArmyB));
        EXPECT_EQ(texts(form.lblRatio, form.lblRatioBonus), "2.7:1/+3");
        form.txtLoses(0).set_text("60");
        form.cmdApplyCasualties(0).press();
        EXPECT_EQ(texts(form.txtTotalMod(0), form.lblRatio, form.lblRatioBonus), "0/1.4:1/+0"); // 68 to 47
        form.TabStrip.choose(2);
        EXPECT_EQ(texts(form.txtUnitNum(0), form.txtTotalNo), "40/47");
        EXPECT_TRUE(combat.desktop.boxes.empty());
    }
}

TEST_F(CombatScreen, announces_a_side_without_soldiers_every_time)
{
    form.TabStrip.choose(1);
    form.txtUnitNum(0).set_text("10");
    form.txtUnitNum(1).set_text("0");
    std::string asked;
    desktop.while_asked = [&] { asked += texts(form.txtTotalMod(1), form.txtANum(0), form.txtANum(8)) + " "; };
    for (auto const& [side, loss] : {std::pair{0, "15"}, {0, ""}, {1, "95"}}) { // the last leaves B -15 and 15
        form.txtLoses(8 * side).set_text(loss);
        form.cmdApplyCasualties(side).press();
    }
    EXPECT_EQ(asked, "17/-5/80 20/-5/80 20/-5/-15 "); // the bonus of 95 to 10 until the first box is closed
    std::string const first = "Warhost: Side ", rest = " has been annihilated! [OK, no icon, OK]";
    EXPECT_EQ(desktop.boxes, (std::vector{first + "A" + rest, first + "A" + rest, first + "B" + rest}));
    form.txtLoserCasualty.set_text("10");
    EXPECT_EQ(texts(form.txtLoses(8), form.txtLoses(9)), "-2/2"); // a negative row loses a negative number
    for (auto const& [soldiers, loss, left, announced] :
         {std::tuple{"10", "9", "1", 0}, {"10", "10", "0", 1}, {"-2e9", "2e9", "-2000000000", 1}}) { // beyond 32 bits
        form.TabStrip.choose(1);
        for (int const row : {0, 1}) form.txtUnitNum(row).set_text(row == 0 ? soldiers : "0");
        form.txtLoses(0).set_text(loss);
        desktop.boxes.clear();
        form.cmdApplyCasualties(0).press();
        EXPECT_EQ(form.txtANum(0).text(), left);
        EXPECT_EQ(desktop.boxes.size(), announced) << loss;
    }
}

TEST_F(CombatScreen, simulates_and_reports_wins_ties_and_average_casualties)
{
    Army const a = form.ArmyA, b = form.ArmyB;
    desktop.typed = "3.5 battles"; // to the even 4
    // clang-format off
    random.values = {
        d20(20), d20(4), d20(16), share(7, 5, 20),  // A by 16: 50% and 3.5%
        d20(5), d20(12), d20(4), share(30, 20, 80), // B by 7: 25% and 7.5%
        d20(10), d20(10), 0, d20(7), 0, 0,          // tie: 10% each
        d20(14), d20(8), d20(1), 0, d20(20), 0,     // A by 6: 20%, rerolled once although the reroll is natural
    };
    // clang-format on
    form.cmdSimulate.press();
    EXPECT_EQ(desktop.boxes, std::vector<std::string>{report({"50.0", "9.7", "25.0", "21.9", "25.0"})});
    EXPECT_EQ(screen(), "Side A by 6 (14:8): 20%, bonus 1 | 16: 2, 2% is 0.4 | A 0 0, B 16 3 [+5] [-5]");
    EXPECT_EQ(desktop.requests.at(0), "Enter the number of times to simulate a battle.|Simulate N Battles|1000");
    EXPECT_TRUE(same(form.ArmyA, a));
    EXPECT_TRUE(same(form.ArmyB, b));
    desktop.format.decimal = ",";
    for (char const* answer : {"", "-5", "many"}) { // one battle: 45% and a 16.65% of single precision
        desktop.typed = answer;
        random.values = {d20(20), d20(9), d20(5), share(37, 10, 60)};
        form.cmdSimulate.press();
        EXPECT_EQ(desktop.boxes.back(), report({"100,0", "16,6", "0,0", "45,0", "0,0"})) << answer;
    }
    EXPECT_EQ(screen(), "Side A by 11 (20:9): 45%, bonus 2 | 7: 10 to 60, 37% is 16,7 | A 16 4, B 36 7"); // 16 is read
    EXPECT_EQ(form.battle.VictorCasualty, 16.65F);
    EXPECT_TRUE(random.values.empty());
}

} // namespace
} // namespace warhost
