#include "army/same_army.h"
#include "caught.h"
#include "files/army_format.h"
#include "ui/test_desktop.h"

#include <cmath>

namespace warhost {

/// Both file dialogs answer with "x.Army" in the program's folder.
struct ArmyFiles : testing::Test, Program {
    ArmyFiles() { desktop.chosen = folder.path("x.Army"); }
    static Army elves()
    {
        Army army;
        army.Name = "Elves", army.UnitType[30] = "far", army.UnitNum[0] = 50;
        army.ReservedNumberLists[1].encoded = std::string{"\1\0\1\0\0\0\0\0\0\0abcd", 14};
        return army;
    }
    void load(std::string const& bytes)
    {
        std::filesystem::remove(folder.path("x.Army")); // some file systems flush what is overwritten
        folder.write("x.Army", bytes);
        form.cmdLoadArmy.press();
    }
};

TEST_F(ArmyFiles, are_asked_for_on_the_army_tabs)
{
    // clang-format off
    struct { std::string name, proposed; } const names[] = {
        {"", ".Army"}, {"Orcs", "Orcs.Army"}, {"a:b/c?", "a_b_c_.Army"}, {"v1.2", "v1_2.Army"},
        {"\\/:*?\"<>|.", "__________.Army"}, {"Fée #1", "Fée #1.Army"},
        // At most 255 bytes, and no half of a character.
        {std::string(250, 'x'), std::string(250, 'x') + ".Army"},
        {std::string(251, 'x'), std::string(250, 'x') + ".Army"},
        {std::string(248, 'x') + "éé", std::string(248, 'x') + "é.Army"},
        {std::string(248, 'x') + "€", std::string(248, 'x') + ".Army"},
    };
    // clang-format on
    desktop.chosen.reset();
    std::string const filter = ".Army|Warhost Army Files (*.Army)|*.Army|All Files|*.*|";
    for (auto const& [name, proposed] : names) {
        form.txtArmyName.set_text(name);
        form.mnuSave_Click();
        EXPECT_EQ(desktop.requests.back(),
                  "save|Save Warhost Army File|" + filter + proposed + " folder-must-exist ask-before-overwriting");
    }
    form.mnuLoad_Click();
    EXPECT_EQ(desktop.requests.back(), "open|Load Warhost Army File|" + filter + " file-must-exist folder-must-exist");
    EXPECT_TRUE(desktop.boxes.empty()); // a cancel says nothing
    desktop.requests.clear();
    form.TabStrip.choose(3);
    for (auto const* button : {&form.cmdLoadArmy, &form.cmdSaveArmy}) button->press();
    std::string const box = "Warhost: Please click on either the Side A or Side B tab before using this menu.";
    EXPECT_EQ(desktop.boxes, std::vector(2, box + " [OK, exclamation, OK]"));
    EXPECT_TRUE(desktop.requests.empty());
    EXPECT_EQ(folder.names(), std::set<std::string>{"modif.txt"});
}

TEST_F(ArmyFiles, are_limited_by_the_screen_and_kept_where_it_shows_nothing)
{
    Army army = elves();
    // clang-format off
    army.UnitType[0] = "Archers"; army.UnitType[20] = "far"; army.UnitNum[20] = 9; army.Level = 3;
    army.OtherLevel = 1.5F; army.ReservedAfterUnits.fill('r'); army.ReservedTexts[3] = "kept\x81";
    Army expected = army;
    expected.Name = "Wood elves"; expected.TotalNo = 50; expected.RatioBonus = 20; expected.LevelBonus = 1;
    army.Opt[0] = -1; // of several in a frame the last counts
    army.Opt[3] = 2; expected.Opt[3] = -1; // anything but 0 is selected
    army.Opt[35] = army.Opt[50] = -1; // no such buttons
    army.OptValue[0] = expected.OptValue[0] = 4; army.OptValue[6] = expected.OptValue[6] = 3; // 6 has no buttons
    army.MiscCheck[1] = expected.MiscCheck[1] = 1; army.MiscValue[1] = expected.MiscValue[1] = 2;
    army.MiscCheck[2] = 2; army.MiscValue[2] = expected.MiscValue[2] = 40; // neither ticked nor unticked
    army.OptValue[8] = army.MiscValue[4] = army.MiscCheck[4] = 1; // no such rows
    expected.TotalMod = 4 + 3 + 2 + 20 + 1;
    // clang-format on
    form.TabStrip.choose(2);
    load(encode_army(army));
    EXPECT_EQ(texts(form.cmbOpt(0), form.cmbOpt(6), form.cmbLevel, form.lblOtherLevel), "+4/+3/3/1.5");
    EXPECT_TRUE(form.opt(3).selected());
    EXPECT_EQ(form.cmbOpt(0).item(2), "+4");
    EXPECT_TRUE(form.chkMisc(1).bold());
    EXPECT_EQ(form.chkMisc(2).state(), 0);
    EXPECT_EQ(texts(form.txtAName(8), form.txtANum(8), form.txtAName(0), form.txtANum(0)), "Archers/50//0");
    EXPECT_EQ(texts(form.txtTotalMod(1), form.txtTotal, form.txtTotalNo), "30/30/50");
    EXPECT_EQ(form.ArmyA.OtherLevel, 3);
    form.txtArmyName.set_text("Wood elves");
    form.cmdSaveArmy.press();
    EXPECT_TRUE(same(decode_army(folder.read("x.Army")), expected));
    EXPECT_TRUE(same(form.ArmyB, expected));
    for (float const level : {NAN, INFINITY, -INFINITY}) {
        army.Level = level;
        load(encode_army(army));
        EXPECT_EQ(texts(form.cmbLevel, form.lblLevelBonus, form.txtTotal), general_text(level, {}) + "/+0/29");
        EXPECT_EQ(form.ArmyB.Level, 0);
        EXPECT_TRUE(desktop.boxes.empty());
    }
}

TEST_F(ArmyFiles, that_fail_leave_everything_as_it_was)
{
    form.txtArmyName.set_text("\u0416uk");
    form.txtUnitNum(0).set_text("12");
    form.opt(3).set_selected(true);
    form.cmbOpt(0).choose(2);
    Army const a = form.ArmyA, b = form.ArmyB;
    folder.write("x.Army", "\5"); // the first half of a length
    Button &load = form.cmdLoadArmy, &save = form.cmdSaveArmy;
    // clang-format off
    struct { char const* name; Button& button; std::string box; } const cases[] = {
        {"none.Army", load, "Warhost: File not found. [OK, no icon, OK]"},
        {"none/x.Army", load, "Warhost: File not found. [OK, no icon, OK]"},
        {"", load, "Warhost: File not found. [OK, no icon, OK]"}, // the folder itself
        {"x.Army", load, "Error!: Error 301: 'The file is not a complete army: it ends at byte 1, but 2 bytes of the "
                         "army's name should follow at byte 0'.\r\nRaised while Loading an army\r\n"},
        {"x.Army", save, "Error!: Error 302: 'A character cannot be stored in an army file: the army's name contains "
                         "\u0416 (U+0416)'.\r\nRaised while Saving an army\r\n"},
    };
    // clang-format on
    for (auto const& [name, button, box] : cases) {
        desktop.boxes.clear();
        desktop.chosen = folder.path(name);
        button.press();
        EXPECT_EQ(desktop.boxes.at(0).substr(0, box.size()), box);
        EXPECT_EQ(desktop.boxes.size(), 1U);
        EXPECT_TRUE(same(form.ArmyA, a));
        EXPECT_TRUE(same(form.ArmyB, b));
        EXPECT_TRUE(same(form.CurArmy, a));
        EXPECT_EQ(texts(form.txtUnitNum(0), form.txtANum(0), form.cmbOpt(0)), "12/12/+4");
    }
    desktop.answer = Answer::abort;
    EXPECT_THROW(form.cmdLoadArmy.press(), ProgramEnded);
    EXPECT_EQ(folder.read("x.Army"), "\5");
    EXPECT_EQ(folder.names(), (std::set<std::string>{"modif.txt", "x.Army"}));
}

TEST_F(ArmyFiles, belong_to_the_side_on_which_the_command_began)
{
    form.TabStrip.choose(2);
    form.txtArmyName.set_text("Dwarves");
    form.TabStrip.choose(1);
    for (int const tab : {2, 3}) { // selected while the command waits
        desktop.while_waiting = desktop.while_asked = [&] { form.TabStrip.choose(tab); };
        load(encode_army(elves()));
        EXPECT_EQ(form.ArmyA.Name + " " + form.ArmyB.Name + " " + form.txtArmyName.text(), "Elves Dwarves Elves");
        form.cmdSaveArmy.press();
        EXPECT_EQ(decode_army(folder.read("x.Army")).Name, "Elves");
        load("not an army");
        EXPECT_EQ(form.ArmyA.Name + " " + form.ArmyB.Name + " " + form.txtArmyName.text(), "Elves Dwarves Elves");
        EXPECT_EQ(form.TabStrip.position(), 1);
    }
}

TEST_F(ArmyFiles, that_are_cut_or_damaged_anywhere_change_nothing_or_load_completely)
{
    Army army = elves();
    army.Opt[3] = -1;
    load(encode_army(army));
    form.cmdSaveArmy.press();
    std::string const good = folder.read("x.Army");
    Army const before = form.ArmyA;
    auto const load_damaged = [&](std::string const& bytes) {
        desktop.boxes.clear();
        load(bytes);
        Failure const failure = caught(decode_army, bytes);
        ASSERT_TRUE(failure.number == 0 || (form.CurArmy == before && form.ArmyA == before));
        ASSERT_EQ(desktop.boxes.size(), failure.number != 0);
        ASSERT_EQ(texts(form.txtArmyName, form.txtUnitType(0)), form.CurArmy.Name + "/" + form.CurArmy.UnitType[0]);
        if (failure.number != 0) return;
        ASSERT_TRUE(bytes.starts_with(encode_army(decode_army(bytes))));
        load(good);
    };
    for (std::size_t place = 0; place < good.size() && !HasFatalFailure(); ++place) {
        SCOPED_TRACE(place);
        load_damaged(good.substr(0, place));
        for (char const byte : {'\0', '\x7F', '\x80', '\xFF'})
            if (good[place] != byte) load_damaged(std::string{good}.replace(place, 1, 1, byte));
    }
}

} // namespace warhost
