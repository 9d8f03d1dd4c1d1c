#include "battle/dice.h"
#include "test_desktop.h"

#include <gtest/gtest.h>

#include <iterator>

namespace warhost {
namespace {

/// A user who does anything at all, and what must be true after each thing done.
struct AnyUser {
    TemporaryFolder folder;
    TestDesktop desktop;
    Generator chance{2026};
    Main form{desktop, chance};

    AnyUser()
    {
        folder.write("modif.txt", Program::usual_list);
        desktop.directory = folder.path();
        form.Form_Load();
    }

    int any(int last) { return roll_between(chance, 0, last); }

    std::string any_text()
    {
        char const* const texts[] = {"",     "12 men",      "-7", "1e9", "2147483648", "99.5",
                                     "&HFF", "<b>Élan</b>", "+3", "2,5", "0",          "4",
                                     "250",  "-2000000000", "x",  "20",  "1"};
        return texts[any(std::size(texts) - 1)];
    }

    void act()
    {
        desktop.chosen = folder.path(std::to_string(any(3)) + ".Army");
        if (any(9) == 0) return form.TabStrip.choose(1 + any(2));
        if (form.TabStrip.position() == tab_combat) return act_on_the_combat_screen();
        switch (any(9)) {
        case 0: return form.txtArmyName.set_text(any_text());
        case 1: return form.txtUnitType(any(7)).set_text(any_text());
        case 2: return form.txtUnitNum(any(7)).set_text(any_text());
        case 3: return form.opt(any(29)).set_selected(true);
        case 4: return form.cmbOpt(any(7)).set_text(any_text());
        case 5: return form.cmbLevel.set_text(any_text());
        case 6: return form.chkMisc(1 + any(2)).set_state(any(1));
        case 7: return form.cmbMisc(1 + any(2)).choose(0);
        case 8: return form.cmdSaveArmy.press();
        default: return form.cmdLoadArmy.press();
        }
    }

    void act_on_the_combat_screen()
    {
        switch (any(6)) {
        case 0: return form.cmdRollAll.press();
        case 1: return form.cmdRoll(any(1)).press();
        case 2: return form.txtResult(any(1)).set_text(any_text());
        case 3: return form.txtVictorCasRoll.set_text(any_text());
        case 4: return form.txtLoses(any(15)).set_text(any_text());
        case 5: return form.txtLoserCasualty.set_text(any_text());
        default: return form.cmdApplyCasualties(any(1)).press();
        }
    }

    void check()
    {
        ASSERT_EQ(form.lblWinBy.caption(), plain_text(std::abs(form.battle.ResultA - form.battle.ResultB)));
        ASSERT_TRUE(form.ArmyA.RatioBonus == 0 || form.ArmyB.RatioBonus == 0);
        ASSERT_EQ(form.txtTotalMod(0).text(), plain_text(form.ArmyA.TotalMod));
        ASSERT_EQ(form.txtTotalMod(1).text(), plain_text(form.ArmyB.TotalMod));
        int const tab = form.TabStrip.position();
        ASSERT_EQ(form.FrameArmy.visible(), tab != tab_combat);
        if (tab == tab_combat) return;
        Army const& army = form.CurArmy;
        ASSERT_TRUE(army == form.of_side(tab));
        ASSERT_EQ(form.txtArmyName.text(), army.Name);
        for (int row = 0; row < unit_rows; ++row) {
            ASSERT_EQ(TextToLong(form.txtUnitNum(row).text()), army.UnitNum[row]);
            ASSERT_EQ(form.txtANum((tab - 1) * unit_rows + row).text(), form.txtUnitNum(row).text());
        }
        for (auto const& [k, button] : form.opt) ASSERT_EQ(button.selected(), army.Opt[k] == -1);
        for (auto const& [i, result] : form.cmbOpt) ASSERT_EQ(TextToLong(result.text()), army.OptValue[i]);
        ASSERT_EQ(form.txtTotal.text(), plain_text(army.TotalMod));
        ASSERT_EQ(form.lblLevelBonus.caption(), SignedText(army.LevelBonus));
    }
};

TEST(Soak, whatever_is_done_the_records_and_the_screen_agree)
{
    AnyUser user;
    for (int round = 0; round < 10000; ++round) {
        user.act();
        user.check();
        if (testing::Test::HasFatalFailure()) FAIL() << "after round " << round;
    }
    EXPECT_FALSE(user.form.Updating);
    EXPECT_EQ(user.form.pending_error.number, 0);
}

} // namespace
} // namespace warhost
