#include "army/same_army.h"
#include "ui/test_desktop.h"

namespace warhost {
namespace {

/// What both screens show of the totals: "total/soldiers ratio bonus, vs level bonus, A total B total".
std::string totals(Main& form)
{
    return form.txtTotal.text() + "/" + form.txtTotalNo.text() + " " + form.lblRatio.caption() + " " +
           form.lblRatioBonus.caption() + ", vs " + form.lblOtherLevel.caption() + " " + form.lblLevelBonus.caption() +
           ", A " + form.txtTotalMod(0).text() + " B " + form.txtTotalMod(1).text();
}

/// "text of item item ..."
std::string offered(ComboBox const& box)
{
    std::string text = box.text() + " of";
    for (int place = 0; place < box.list_size(); ++place) text += " " + box.item(place);
    return text;
}

struct ArmyScreen : testing::Test, Program {};

TEST_F(ArmyScreen, starts_with_two_armies_alike_and_side_a_shown)
{
    Army expected;
    expected.Level = 1;
    for (auto const& [row, value] : {std::pair{1, 1}, {2, 3}, {3, -2}}) expected.MiscValue.at(row) = value;
    EXPECT_TRUE(same(form.ArmyA, expected));
    EXPECT_TRUE(same(form.CurArmy, expected));
    expected.OtherLevel = 1;
    EXPECT_TRUE(same(form.ArmyB, expected));
    EXPECT_EQ(totals(form), "0/0 1.0:1 +0, vs 0 +0, A 0 B 0");
    EXPECT_EQ(texts(form.cmbLevel, form.cmbOpt(0), form.txtUnitNum(7), form.txtANum(15)), "1/+0/0/0");
    EXPECT_EQ(form.cmbLevel.item(0) + " " + form.cmbLevel.item(form.cmbLevel.list_size() - 1), "1 20");
    EXPECT_TRUE(form.FrameArmy.visible());
    EXPECT_FALSE(form.FrameCombat.visible());
    EXPECT_EQ(form.battle, (BattleState{0, 0, side_a_won, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(ArmyScreen, sums_up_again_when_it_computes_and_when_it_shows_an_army)
{
    form.CurArmy.UnitNum[0] = 7;
    form.CalcTotal();
    EXPECT_EQ(form.txtTotalNo.text(), "7");
    form.CurArmy.TotalNo = form.CurArmy.TotalMod = 99;
    form.CurArmy_Update();
    EXPECT_EQ(form.CurArmy.TotalNo, 7);
    EXPECT_EQ(form.txtTotal.text(), "20");
}

TEST_F(ArmyScreen, recomputes_both_armies_after_every_change)
{
    // clang-format off
    struct { char const* step; std::function<void()> act; char const* expected; } const steps[] = {
        {"Poor", [&] { form.opt(4).set_selected(true); }, "-2/0 1.0:1 +0, vs 0 +0, A -2 B 0"},
        {"a range", [&] { form.opt(3).set_selected(true); }, "0/0 1.0:1 +0, vs 0 +0, A 0 B 0"},
        {"typed", [&] { form.cmbOpt(0).set_text("+7 or so"); }, "5/0 1.0:1 +0, vs 0 +0, A 5 B 0"},
        {"+4 of it", [&] { form.cmbOpt(0).choose(2); }, "2/0 1.0:1 +0, vs 0 +0, A 2 B 0"},
        {"level 10, B's level not yet passed on", [&] { form.cmbLevel.choose(9); }, "2/0 1.0:1 +0, vs 0 +0, A 2 B 0"},
        {"B's level 1 passed on to A", [&] { form.TabStrip.choose(2); }, "0/0 1.0:1 +0, vs 10 +0, A 19 B 0"},
        {"10 against 5", [&] { form.cmbLevel.set_text("5"); }, "0/0 1.0:1 +0, vs 10 +0, A 3 B 0"},
        {"100 against none", [&] { form.txtUnitNum(0).set_text("100"); }, "20/100 > 99:1 +20, vs 10 +0, A 3 B 20"},
        {"A shown again", [&] { form.TabStrip.choose(1); }, "3/0 < 1:1 +0, vs 5 +1, A 3 B 20"},
        {"40 against 100", [&] { form.txtUnitNum(2).set_text("40 men"); }, "3/40 < 1:1 +0, vs 5 +1, A 3 B 3"},
        {"2.5 against 5", [&] { form.cmbLevel.set_text("2.5"); }, "2/40 < 1:1 +0, vs 5 +0, A 2 B 4"},
        {"misc ticked", [&] { form.chkMisc(1).set_state(1); }, "3/40 < 1:1 +0, vs 5 +0, A 3 B 4"},
        {"misc typed", [&] { form.cmbMisc(1).set_text("+30"); }, "32/40 < 1:1 +0, vs 5 +0, A 32 B 4"},
        {"misc unticked", [&] { form.chkMisc(1).set_state(0); }, "2/40 < 1:1 +0, vs 5 +0, A 2 B 4"},
        {"the combat tab", [&] { for (int t : {3, 1}) form.TabStrip.choose(t); }, "2/40 < 1:1 +0, vs 5 +0, A 2 B 4"},
        {"150 against 100", [&] { form.txtUnitNum(7).set_text("110"); }, "3/150 1.5:1 +1, vs 5 +0, A 3 B 1"},
        {"B after all that", [&] { form.TabStrip.choose(2); }, "1/100 < 1:1 +0, vs 2.5 +1, A 3 B 1"},
        {"decimal commas", [&] { desktop.format = {",", "."}; form.cmbLevel.set_text("7,5"); },
            "3/100 < 1:1 +0, vs 2,5 +3, A 3 B 3"},
        {"230 against 150", [&] { form.txtUnitNum(0).set_text("230"); }, "4/230 1,5:1 +1, vs 2,5 +3, A 2 B 4"},
        {"A's 2,5 read back", [&] { form.TabStrip.choose(1); }, "2/150 < 1:1 +0, vs 7,5 +0, A 2 B 4"},
        {"too much", [&] { for (int i : {0, 7}) form.cmbOpt(i).set_text("2e9"); },
            "1999999998/150 < 1:1 +0, vs 7,5 +0, A 1999999998 B 4"},
        {"too many", [&] { for (int i : {0, 1}) form.txtUnitNum(i).set_text("2e9"); },
            "1999999998/2000000000 > 99:1 +20, vs 7,5 +0, A 1999999998 B 3"},
    };
    // clang-format on
    for (auto const& [step, act, expected] : steps) {
        act();
        EXPECT_EQ(totals(form), expected) << step;
    }
    EXPECT_EQ(form.txtANum(1).text(), "2e9");
    EXPECT_TRUE(desktop.boxes.empty()); // failed sums are passed over
}

TEST_F(ArmyScreen, options_offer_their_range_and_a_chosen_value_comes_back)
{
    // clang-format off
    struct { int option, category; char const* list; } const cases[] = {
        {0, 0, "-2 of -2"}, {3, 0, "+2 of +2 +3 +4"}, {5, 1, "+0 of +0"}, {19, 3, "+8 of +8"}, {40, 4, "+5 of +5"},
        {24, 4, "+3 of +3"}, {41, 7, "-3 of -3"}, {12, 2, "+4 of +4 +5 +6 +7 +8 +9 +10 +11 +12 +13 +14 +15"},
        {29, 5, "+5 of +5 +6 +7 +8 +9 +10 +11 +12 +13 +14 +15 +16 +17 +18 +19 +20"},
    };
    // clang-format on
    for (auto const& [option, category, list] : cases) {
        form.opt(option).set_selected(true);
        EXPECT_EQ(offered(form.cmbOpt(category)), list) << option;
    }
    EXPECT_FALSE(form.opt(40).selected()); // of the frame of 24
    form.cmbOpt(0).choose(2);
    form.opt(3).set_selected(true); // selected already: nothing happens
    EXPECT_EQ(form.cmbOpt(0).text(), "+4");
    form.TabStrip.choose(2);
    EXPECT_EQ(offered(form.cmbOpt(0)), "+0 of +2 +3 +4"); // the list stays
    EXPECT_FALSE(form.opt(3).selected());
    form.opt(1).set_selected(true);
    form.TabStrip.choose(1);
    EXPECT_EQ(offered(form.cmbOpt(0)), "+4 of +2 +3 +4");
    EXPECT_TRUE(form.opt(3).selected());
    EXPECT_FALSE(form.opt(1).selected());
}

TEST_F(ArmyScreen, keeps_the_combat_rows_of_the_side_shown_in_step)
{
    form.txtANum(8).set_text("initial");
    form.txtArmyName.set_text("Orcs");
    form.txtUnitType(1).set_text("Riders");
    form.txtUnitNum(1).set_text("12 men");
    EXPECT_EQ(texts(form.txtAName(1), form.txtANum(1), form.txtANum(0), form.txtANum(8)), "Riders/12 men/0/initial");
    form.TabStrip.choose(2);
    EXPECT_EQ(texts(form.txtANum(8), form.txtANum(9), form.txtArmyName, form.txtUnitType(1)), "0/0//");
    form.txtUnitNum(1).set_text("9000000000");
    form.txtUnitType(1).set_text("Wolves");
    EXPECT_EQ(texts(form.txtAName(9), form.txtANum(9), form.txtAName(1), form.txtANum(1)),
              "Wolves/9000000000/Riders/12 men");
    form.TabStrip.choose(3);
    EXPECT_FALSE(form.FrameArmy.visible());
    EXPECT_TRUE(form.FrameCombat.visible());
    form.CurArmy.Name = "nobody's";
    form.cmbLevel.set_text("9"); // neither side is being edited: only the level is passed on, to Side A
    EXPECT_EQ(std::pair(form.ArmyA.OtherLevel, form.ArmyB.OtherLevel), std::pair(9.0F, 1.0F));
    form.TabStrip.choose(1);
    EXPECT_TRUE(form.FrameArmy.visible());
    EXPECT_FALSE(form.FrameCombat.visible());
    EXPECT_EQ(texts(form.txtArmyName, form.txtUnitType(1), form.txtUnitNum(1)), "Orcs/Riders/12");
    EXPECT_EQ(form.ArmyB.Name, "");
}

TEST_F(ArmyScreen, compares_the_troops)
{
    // clang-format off
    struct { int own, other, own_bonus, other_bonus; std::string ratio; } const cases[] = {
        {0, 0, 0, 0, "1.0:1"}, {100, 40, 3, 0, "2.5:1"}, {40, 100, 0, 3, "< 1:1"}, {1, 0, 20, 0, "> 99:1"},
        {0, 5, 0, 20, "< 1:1"}, {99, 1, 20, 0, "99.0:1"}, {199, 2, 20, 0, "> 99:1"}, {49, 4, 20, 0, "12.3:1"},
        {23, 20, 0, 0, "1.2:1"}, {149, 100, 0, 0, "1.5:1"}, {3, 2, 1, 0, "1.5:1"}, {2, 1, 2, 0, "2.0:1"},
        {21, 2, 19, 0, "10.5:1"}, {11, 1, 20, 0, "11.0:1"}, {1, 1, 0, 0, "1.0:1"}, {2000000000, 1, 20, 0, "> 99:1"},
        {1, 2000000000, 0, 20, "< 1:1"}, {0, -5, 20, 0, "> 99:1"}, {-3, -5, 20, 0, "> 99:1"}, {-5, 0, 0, 20, "< 1:1"},
    };
    // clang-format on
    for (int const Side : {1, 2}) {
        Army &mine = form.of_side(Side), &theirs = form.of_side(3 - Side);
        for (auto const& [own, other, own_bonus, other_bonus, ratio] : cases) {
            form.CurArmy.TotalNo = own;
            theirs.TotalNo = other;
            mine.RatioBonus = 77;
            form.CalcTroopRatio(Side);
            EXPECT_EQ(texts(form.lblRatio, form.lblRatioBonus), ratio + "/" + SignedText(own_bonus)) << own;
            auto const bonuses = std::tuple(form.CurArmy.RatioBonus, mine.RatioBonus, theirs.RatioBonus);
            EXPECT_EQ(bonuses, std::tuple(own_bonus, 77, other_bonus)) << own;
        }
    }
    form.CalcTroopRatio(3);
    EXPECT_EQ(form.ArmyA.RatioBonus, 20); // as the last case left it: nothing was stored
}

TEST(MiscPanel, makes_a_row_of_every_entry)
{
    Program program{" Ford \r\n12|-1,1\r\nHill\r\n3,1\r\n  \r\n4\r\n"};
    Main& form = program.form;
    std::tuple<char const*, int, bool, float> const rows[] = {// clang-format off
        {"Ford (-1 to +1): -1 of -1 +0 +1", 12, true, 300}, {"Hill (+1 to +3): +3 of +1 +2 +3", 0, false, 600},
        {"(+4): +4 of +4", 0, true, 900}}; // clang-format on
    ASSERT_EQ(form.chkMisc.highest(), 3);
    for (int row = 1; row <= 3; ++row) {
        auto const& [shown, topic, grey, top] = rows[row - 1];
        CheckBox const& box = form.chkMisc(row);
        ComboBox const& value = form.cmbMisc(row);
        EXPECT_EQ(box.caption() + ": " + offered(value), shown);
        EXPECT_EQ(std::tuple(box.help_topic, value.help_topic, box.striped), std::tuple(topic, topic, grey));
        EXPECT_TRUE(box.visible);
        EXPECT_TRUE(value.visible);
        EXPECT_EQ(box.state(), 0);
        for (auto const& [at, left, width] : {std::tuple{box.place, 120, 5655}, {value.place, 5040, 735}})
            EXPECT_EQ(std::tuple(at.Left, at.Top, at.Width, at.Height), std::tuple(left, top, width, 315));
    }
    EXPECT_FALSE(form.chkMisc(0).visible);
    EXPECT_FALSE(form.cmbMisc(0).visible);
    form.chkMisc(2).set_state(1);
    EXPECT_TRUE(form.chkMisc(2).bold());
    EXPECT_EQ(form.txtTotal.text(), "3");
    for (int const tab : {2, 1}) {
        form.TabStrip.choose(tab);
        EXPECT_EQ(form.chkMisc(2).bold(), tab == 1);
        EXPECT_EQ(form.chkMisc(2).state(), 2 - tab);
    }
    form.cmbMisc.create(4); // unequal numbers: no row counts
    form.CalcTotal();
    EXPECT_EQ(form.txtTotal.text(), "0");
    EXPECT_EQ(form.ArmyA.MiscValue[3], 0);
}

TEST(MiscPanel, counts_a_hundred_rows_and_shows_the_others)
{
    std::string list;
    for (int row = 1; row <= 103; ++row) list += "x\n" + std::to_string(row) + "\n";
    Program program{list};
    Main& form = program.form;
    for (int row : {99, 100, 101, 103}) form.chkMisc(row).set_state(1);
    EXPECT_EQ(form.txtTotal.text(), "199");
    EXPECT_TRUE(form.chkMisc(103).bold());
    form.TabStrip.choose(2);
    EXPECT_EQ(form.chkMisc(100).state() + form.chkMisc(103).state(), 1); // nobody keeps row 103's
}

TEST(Fields, raise_no_click_without_a_change_or_when_deselected)
{
    int clicks = 0;
    CheckBox box{"box"};
    OptionGroup group;
    OptionButton option{"opt(0)", "", "", group};
    box.Click = option.Click = [&] { ++clicks; };
    for (int const state : {0, 1, 1, 0}) box.set_state(state);
    for (bool const selected : {true, true, false, false}) option.set_selected(selected);
    EXPECT_EQ(clicks, 3);
}

} // namespace
} // namespace warhost
