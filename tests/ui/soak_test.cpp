#include "battle/dice.h"
#include "ui/agreement.h"
#include "ui/test_desktop.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace warhost {
namespace {

/// A user who does anything at all.
struct AnyUser : Started<Generator> {
    AnyUser() : Started(Generator{2026}) {}

    int any(int last) { return roll_between(random, 0, last); }

    std::string any_text()
    {
        // clang-format off
        char const* const texts[] = {"", "12 men", "-7", "1e9", "2147483648", "99.5", "&HFF", "<b>Élan</b>", "+3",
                                     "2,5", "0", "4", "250", "-2000000000", "x", "20", "1"}; // clang-format on
        return texts[any(std::size(texts) - 1)];
    }

    void act()
    {
        desktop.chosen = folder.path(std::to_string(any(3)) + ".Army");
        if (any(9) == 0) return form.TabStrip.choose(1 + any(2));
        switch (form.TabStrip.position() == tab_combat ? 10 + any(6) : any(9)) {
        case 0: return form.txtArmyName.set_text(any_text());
        case 1: return form.txtUnitType(any(7)).set_text(any_text());
        case 2: return form.txtUnitNum(any(7)).set_text(any_text());
        case 3: return form.opt(any(29)).set_selected(true);
        case 4: return form.cmbOpt(any(7)).set_text(any_text());
        case 5: return form.cmbLevel.set_text(any_text());
        case 6: return form.chkMisc(1 + any(2)).set_state(any(1));
        case 7: return form.cmbMisc(1 + any(2)).choose(0);
        case 8: return form.cmdSaveArmy.press();
        case 9: return form.cmdLoadArmy.press();
        case 10: return form.cmdRollAll.press();
        case 11: return form.cmdRoll(any(1)).press();
        case 12: return form.txtResult(any(1)).set_text(any_text());
        case 13: return form.txtVictorCasRoll.set_text(any_text());
        case 14: return form.txtLoses(any(15)).set_text(any_text());
        case 15: return form.txtLoserCasualty.set_text(any_text());
        default: return form.cmdApplyCasualties(any(1)).press();
        }
    }
};

/// Of memory asked for; 0 where the library does not count.
std::size_t bytes_in_use()
{
#ifdef __GLIBC__
    return ::mallinfo2().uordblks;
#else
    return 0;
#endif
}

TEST(Soak, whatever_is_done_the_records_and_the_screen_agree)
{
    AnyUser user;
    std::size_t early = 0;
    for (int round = 0; round < 10000; ++round) {
        if (round == 2000) early = bytes_in_use();
        user.desktop.boxes.clear();
        user.desktop.requests.clear();
        user.act();
        check_agreement(user.form);
        if (testing::Test::HasFatalFailure()) FAIL() << "after round " << round;
    }
    EXPECT_LT(bytes_in_use(), early + 10000);
    EXPECT_FALSE(user.form.Updating);
    EXPECT_EQ(user.form.pending_error.number, 0);
}

TEST(Soak, a_list_keeps_the_ends_of_its_ranges_and_makes_most_rows_when_they_are_asked_for)
{
    std::string list;
    for (int row = 0; row < 100000; ++row) list += "Row\r\n-32000,32000\r\n";
    std::size_t const before = bytes_in_use();
    Program program{list};
    EXPECT_LT(bytes_in_use(), before + list.size() + 2000000);
    Main& form = program.form;
    int const made = form.cmbMisc.highest();
    EXPECT_GE(made, 100); // what an army holds
    EXPECT_TRUE(form.add_misc_row());
    EXPECT_EQ(form.cmbMisc(made + 1).item(64000) + form.chkMisc(made + 1).caption(), "+32000Row (-32000 to +32000)");
    EXPECT_EQ(form.cmbMisc(made + 1).place.Top, 300.0F * static_cast<float>(made + 1));
    int rows = made + 1;
    while (form.add_misc_row()) ++rows;
    EXPECT_EQ(rows, 100000) << rows;
    EXPECT_EQ(form.cmbMisc.highest(), rows) << rows;
    EXPECT_EQ(form.chkMisc.highest(), rows) << rows;
}

} // namespace
} // namespace warhost
