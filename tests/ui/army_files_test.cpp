#include "files/army_format.h"
#include "ui/test_desktop.h"

#include <cmath>
#include <limits>

namespace warhost {
namespace {

std::string described(FileDialog const& dialog)
{
    return std::string{dialog.kind == FileDialogKind::open ? "open" : "save"} + "|" + dialog.title + "|" +
           dialog.default_extension + "|" + dialog.filter + "|" + dialog.file_name +
           (dialog.file_must_exist ? " file-must-exist" : "") + (dialog.folder_must_exist ? " folder-must-exist" : "") +
           (dialog.hide_read_only ? " no-read-only" : "") + (dialog.overwrite_prompt ? " ask-before-overwriting" : "");
}

/// A program whose file dialogs answer with "x.Army" in its folder.
struct Files : Program {
    Files() { desktop.chosen = folder.path("x.Army"); }
    void write(Army const& army) const { folder.write("x.Army", encode_army(army)); }
    Army saved() const { return decode_army(folder.read("x.Army")); }
};

TEST(ArmyFiles, ask_with_these_dialogs)
{
    // clang-format off
    struct { char const *name, *proposed; } const names[] = {
        {"", ".Army"}, {"Orcs", "Orcs.Army"}, {"a:b/c?", "a_b_c_.Army"}, {"v1.2", "v1_2.Army"},
        {"\\/:*?\"<>|.", "__________.Army"}, {"Fée #1", "Fée #1.Army"},
    };
    // clang-format on
    std::string const filter = ".Army|Warhost Army Files (*.Army)|*.Army|All Files|*.*|";
    Program program;
    for (auto const& [name, proposed] : names) {
        program.form.txtArmyName.set_text(name);
        program.form.mnuSave_Click();
        EXPECT_EQ(described(program.desktop.dialogs.back()),
                  "save|Save Warhost Army File|" + filter + proposed +
                      " folder-must-exist no-read-only ask-before-overwriting");
    }
    program.form.mnuLoad_Click();
    EXPECT_EQ(described(program.desktop.dialogs.back()),
              "open|Load Warhost Army File|" + filter + " file-must-exist folder-must-exist no-read-only");
    EXPECT_TRUE(program.desktop.boxes.empty()); // a cancel says nothing
    EXPECT_EQ(program.folder.names(), std::set<std::string>{"modif.txt"});
}

TEST(ArmyFiles, need_one_of_the_army_tabs)
{
    Files files;
    files.write({});
    files.form.TabStrip.choose(3);
    files.form.cmdLoadArmy.press();
    files.form.cmdSaveArmy.press();
    files.form.mnuLoad_Click();
    files.form.mnuSave_Click();
    std::string const box = "Please click on either the Side A or Side B tab before using this menu.";
    EXPECT_EQ(files.desktop.boxes, std::vector(4, "Warhost: " + box + " [OK, exclamation, OK]"));
    EXPECT_TRUE(files.desktop.dialogs.empty());
}

TEST(ArmyFiles, hold_the_army_on_the_screen)
{
    Files files{};
    files.form.cmbMisc(2).set_text("0");
    files.form.cmdSaveArmy.press();
    std::string const bytes = files.folder.read("x.Army");
    EXPECT_EQ(bytes.size(), 1854U);
    EXPECT_EQ(bytes.substr(0, 64), std::string(64, '\0'));
    EXPECT_EQ(bytes.substr(1822, 8), (std::string{"\0\0\x80\x3F\0\0\0\0", 8}));
    files.form.txtArmyName.set_text("Orcs");
    files.form.opt(46).set_selected(true);
    files.form.chkMisc(3).set_state(1);
    files.form.txtUnitNum(7).set_text("300");
    Army const army = files.form.CurArmy;
    files.form.cmdSaveArmy.press();
    EXPECT_EQ(files.saved(), army);
    EXPECT_EQ(files.folder.read("x.Army").substr(0, 6), (std::string{"\4\0Orcs", 6}));
    EXPECT_TRUE(army == files.form.ArmyA && army.TotalNo == 300 && army.Opt[46] == -1 && army.MiscCheck[3] == 1);
    files.form.TabStrip.choose(2);
    files.form.cmdLoadArmy.press();
    EXPECT_EQ(texts(files.form.txtArmyName, files.form.txtTotalMod(0), files.form.txtTotalMod(1)), "Orcs/0/0");
    EXPECT_TRUE(files.desktop.boxes.empty());
}

TEST(ArmyFiles, are_judged_by_the_screen_and_carried_where_it_shows_nothing)
{
    Army army;
    army.Name = "Elves";
    army.UnitType[0] = "Archers";
    army.UnitType[20] = "far";
    army.UnitNum[0] = 50;
    army.UnitNum[20] = 9;
    army.Reserved4.fill('r');
    army.ReservedTexts[3] = "kept\x81";
    army.ReservedNumberLists[1].encoded = std::string{"\1\0\1\0\0\0\0\0\0\0abcd", 14};
    army.Level = 3;
    army.OtherLevel = 1.5F;
    Army expected = army;
    expected.Name = "Wood elves";
    army.Opt[0] = -1; // of several in a frame the last counts
    army.Opt[3] = 2;  // anything but 0 is selected
    expected.Opt[3] = -1;
    army.Opt[35] = army.Opt[50] = -1; // no such buttons
    army.OptValue[0] = expected.OptValue[0] = 4;
    army.OptValue[6] = expected.OptValue[6] = 3; // a category without buttons
    army.MiscCheck[1] = expected.MiscCheck[1] = 1;
    army.MiscCheck[2] = 2;
    army.MiscValue[1] = expected.MiscValue[1] = 2;
    army.MiscValue[2] = expected.MiscValue[2] = 40;
    army.OptValue[8] = army.MiscValue[4] = army.MiscCheck[4] = 1; // no such rows
    expected.TotalNo = 50;
    expected.RatioBonus = 20;
    expected.LevelBonus = 1; // 3 against 1.5
    expected.TotalMod = 30;
    Files files;
    Main& form = files.form;
    files.write(army);
    std::filesystem::permissions(files.folder.path("x.Army"), std::filesystem::perms{0444});
    form.TabStrip.choose(2);
    form.cmdLoadArmy.press();
    std::filesystem::permissions(files.folder.path("x.Army"), std::filesystem::perms{0644});
    EXPECT_EQ(texts(form.cmbOpt(0), form.cmbOpt(6), form.cmbLevel, form.lblOtherLevel), "+4/+3/3/1.5");
    EXPECT_TRUE(form.opt(3).selected() && form.cmbOpt(0).list().back() == "+4");
    EXPECT_TRUE(form.chkMisc(1).bold() && form.chkMisc(2).state() == 0);
    EXPECT_EQ(texts(form.txtAName(8), form.txtANum(8), form.txtAName(0), form.txtANum(0)), "Archers/50//0");
    EXPECT_EQ(texts(form.txtTotalMod(1), form.txtTotal, form.txtTotalNo), "30/30/50");
    EXPECT_EQ(form.ArmyA.OtherLevel, 3);
    EXPECT_EQ(form.ArmyA.Name, "");
    form.txtArmyName.set_text("Wood elves");
    form.cmdSaveArmy.press();
    EXPECT_EQ(files.saved(), expected);
    EXPECT_EQ(form.ArmyB, expected);
}

TEST(ArmyFiles, with_levels_that_are_no_numbers_give_no_bonus)
{
    float const infinite = std::numeric_limits<float>::infinity();
    float const nan = std::numeric_limits<float>::quiet_NaN();
    for (auto const& [level, other] :
         {std::pair{nan, 1.0F}, {infinite, 1.0F}, {5.0F, nan}, {5.0F, infinite}, {-infinite, -1.0F}}) {
        Files files;
        Army army;
        army.Level = level;
        army.OtherLevel = other;
        files.write(army);
        files.form.cmdLoadArmy.press();
        files.form.TabStrip.choose(3);
        files.form.cmdApplyCasualties(0).press();
        EXPECT_EQ(texts(files.form.txtTotal, files.form.lblLevelBonus, files.form.txtTotalMod(0)), "0/+0/0")
            << level << " " << other;
        EXPECT_TRUE(std::isfinite(files.form.ArmyA.Level));
    }
}

TEST(ArmyFiles, that_cannot_be_read_leave_everything_as_it_was)
{
    Files files;
    Main& form = files.form;
    form.txtArmyName.set_text("Orcs");
    form.txtUnitNum(0).set_text("12");
    form.opt(3).set_selected(true);
    form.cmbOpt(0).choose(2);
    Army const a = form.ArmyA, b = form.ArmyB;
    auto const unchanged = [&] {
        EXPECT_TRUE(form.ArmyA == a && form.ArmyB == b && form.CurArmy == a);
        EXPECT_EQ(texts(form.txtArmyName, form.txtUnitNum(0), form.txtANum(0), form.cmbOpt(0)), "Orcs/12/12/+4");
    };
    Army other;
    other.Name = "Elves";
    std::string const whole = encode_army(other);
    std::string const start = "Error!: Error 301: 'The file is not a complete army: it ends at byte ";
    for (std::size_t const length : {std::size_t{0}, std::size_t{3}, std::size_t{1000}, whole.size() - 1}) {
        files.folder.write("x.Army", whole.substr(0, length));
        files.desktop.boxes.clear();
        form.cmdLoadArmy.press();
        ASSERT_EQ(files.desktop.boxes.size(), 1U);
        std::string const& box = files.desktop.boxes.front();
        EXPECT_TRUE(box.starts_with(start + std::to_string(length) + ";")) << box;
        EXPECT_NE(box.find(" on'.\r\nRaised while Loading an army\r\n\r\nPress Ignore"), box.npos) << box;
        unchanged();
    }
    for (char const* name : {"none.Army", "", "none/x.Army"}) { // the second is the folder itself
        files.desktop.chosen = files.folder.path(name);
        form.cmdLoadArmy.press();
        EXPECT_EQ(files.desktop.boxes.back(), "Warhost: File not found. [OK, no icon, OK]");
        unchanged();
    }
    files.desktop.chosen = files.folder.path("x.Army"); // still cut short
    files.desktop.answers = {Answer::abort};
    EXPECT_THROW(form.cmdLoadArmy.press(), ProgramEnded);
    unchanged();
}

TEST(ArmyFiles, that_cannot_be_written_stay_what_they_were)
{
    Files files;
    files.folder.write("x.Army", "old");
    files.form.txtArmyName.set_text("\u0416uk");
    files.form.cmdSaveArmy.press();
    std::string const& box = files.desktop.boxes.at(0);
    EXPECT_TRUE(box.starts_with("Error!: Error 302: 'A character cannot be stored in an army file: ")) << box;
    EXPECT_NE(box.find("the army's name contains \u0416 (U+0416)'.\r\nRaised while Saving an army\r\n"), box.npos)
        << box;
    EXPECT_EQ(files.folder.read("x.Army"), "old");
    EXPECT_EQ(files.form.ArmyA.Name, "\u0416uk");
    files.form.txtArmyName.set_text("Zhuk");
    files.desktop.chosen = files.folder.path();
    files.form.cmdSaveArmy.press();
    EXPECT_TRUE(files.desktop.boxes.at(1).starts_with("Error!: Error 204: 'This is a folder, not a file: /"));
    EXPECT_EQ(files.desktop.boxes.size(), 2U);
    EXPECT_EQ(files.folder.names(), (std::set<std::string>{"modif.txt", "x.Army"}));
}

} // namespace
} // namespace warhost
