// What a user does, done again and again while memory runs out at one allocation after another.
#include "files/army_format.h"
#include "ui/agreement.h"
#include "ui/test_desktop.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

constexpr std::size_t large = 100'000; // bytes; only the form's reserve is larger

int allocations_left = -1;     // until memory runs out; negative: it never does
bool memory_is_out = false;    // every allocation fails
bool memory_stays_out = false; // also after the form has freed its reserve
void* reserve = nullptr;       // of the newest form

} // namespace

[[gnu::noinline]] void* operator new(std::size_t size)
{
    if (allocations_left > 0 && --allocations_left == 0) memory_is_out = true;
    void* const memory = memory_is_out ? nullptr : std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) throw std::bad_alloc{};
    if (size > large) reserve = memory;
    return memory;
}
[[gnu::noinline]] void* operator new(std::size_t size, std::nothrow_t const& /*tag*/) noexcept
{
    try {
        return operator new(size);
    } catch (std::bad_alloc const&) {
        return nullptr;
    }
}
[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    if (memory != nullptr && memory == reserve) {
        reserve = nullptr;
        memory_is_out = memory_is_out && memory_stays_out;
    }
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }

namespace warhost {
namespace {

constexpr char const* list = "A modifier with quite a long name\r\n101|1,3\r\nAmbush\r\n102|3,1\r\n";

/// Two armies whose texts need memory of their own, a third one in a file, and a tab selected.
struct Battle : Started<Generator> {
    explicit Battle(int tab) : Started(Generator{11}, list)
    {
        desktop.chosen = folder.path("x.Army");
        desktop.typed = "40";
        for (int const side : {2, 1}) {
            form.TabStrip.choose(side);
            form.txtArmyName.set_text("An army whose name is longer than a small string");
            form.txtUnitType(0).set_text("Spearmen of the northern marches");
            form.txtUnitNum(0).set_text(plain_text(60 * side));
        }
        Army in_file = form.CurArmy;
        in_file.Name = "The army that the file holds, as long";
        in_file.Opt[3] = -1;
        in_file.OptValue[0] = 4;
        folder.write("x.Army", encode_army(in_file));
        form.TabStrip.choose(tab);
    }

    /// Beside what check_agreement compares.
    std::string everything()
    {
        std::string text = texts(form.lblRatio, form.lblRatioBonus, form.lblOtherLevel, form.txtResult(0),
                                 form.txtResult(1), form.lblWinner, form.lblLoserPercent, form.txtCasRollBonus,
                                 form.txtVictorCasRoll, form.lblCasRange, form.txtVictorCasPercent, form.txtVictorCas);
        for (auto* const boxes : {&form.txtAName, &form.txtANum, &form.txtLoses})
            for (auto const& [index, box] : *boxes) text += "/" + box.text();
        for (auto const& [index, box] : form.cmbOpt) text += plain_text(box.list_size());
        for (auto const& [index, box] : form.chkMisc) text += box.bold() ? "x" : ".";
        for (auto const* army : {&form.ArmyA, &form.ArmyB, &form.CurArmy}) text += encode_army(*army);
        text += form.txtBattleResults.document() + form.txtVictorDesc.document() + plain_text(form.TabStrip.position());
        return text + std::to_string(random.next()) + (form.Updating ? " Updating" : "");
    }
};

struct Action {
    char const* name;
    int tab;
    bool reports;      // a step that fails is skipped and reported
    std::string typed; // made before memory runs out: the caller's
    void (*act)(Main&, std::string&&);
};

std::vector<Action> const actions{
    // clang-format off
    {"load", tab_side_b, true, {}, [](Main& form, std::string&&) { form.cmdLoadArmy.press(); }},
    {"save", tab_side_a, true, {}, [](Main& form, std::string&&) { form.cmdSaveArmy.press(); }},
    {"refuse", tab_combat, false, {}, [](Main& form, std::string&&) { form.mnuLoad_Click(); }},
    {"name", tab_side_a, false, "Another name that needs memory of its own",
        [](Main& form, std::string&& typed) { form.txtArmyName.set_text(std::move(typed)); }},
    {"type", tab_side_b, false, "Archers, with arrows that were lent to them",
        [](Main& form, std::string&& typed) { form.txtUnitType(3).set_text(std::move(typed)); }},
    {"soldiers", tab_side_b, false, "12 men, and a long remark after the number",
        [](Main& form, std::string&& typed) { form.txtUnitNum(7).set_text(std::move(typed)); }},
    {"level", tab_side_a, false, "7                                         ",
        [](Main& form, std::string&& typed) { form.cmbLevel.set_text(std::move(typed)); }},
    {"option", tab_side_a, false, {}, [](Main& form, std::string&&) { form.opt(29).set_selected(true); }},
    {"misc row", tab_side_a, false, {}, [](Main& form, std::string&&) { form.chkMisc(1).set_state(1); }},
    {"tab", tab_side_a, false, {}, [](Main& form, std::string&&) { form.TabStrip.choose(tab_side_b); }},
    {"roll", tab_combat, false, {}, [](Main& form, std::string&&) { form.cmdRollAll.press(); }},
    {"result", tab_combat, false, "25, and whatever else may be typed in here",
        [](Main& form, std::string&& typed) { form.txtResult(0).set_text(std::move(typed)); }},
    {"percent", tab_combat, false, "100 percent, which is each of the soldiers",
        [](Main& form, std::string&& typed) { form.txtLoserCasualty.set_text(std::move(typed)); }},
    {"apply", tab_combat, false, {}, [](Main& form, std::string&&) { form.cmdApplyCasualties(1).press(); }},
    {"simulate", tab_combat, false, {}, [](Main& form, std::string&&) { form.cmdSimulate.press(); }},
    // clang-format on
};

/// Runs `run` while memory runs out at its n-th allocation, for good or until the form frees its reserve. Returns
/// whether it made so many.
template <class Run> bool short_of_memory(int n, bool for_good, Run run)
{
    memory_stays_out = for_good;
    allocations_left = n;
    EXPECT_NO_THROW(run());
    memory_is_out = false;
    return std::exchange(allocations_left, -1) == 0;
}

bool act(Battle& battle, Action const& action, int n, bool for_good)
{
    battle.desktop.boxes.clear();
    std::string typed = action.typed;
    return short_of_memory(n, for_good, [&] { action.act(battle.form, std::move(typed)); });
}

TEST(OutOfMemory, leaves_records_and_screen_in_agreement)
{
    for (auto const& action : actions) {
        Battle unbroken{action.tab}, untouched{action.tab};
        act(unbroken, action, -1, false);
        std::string const done = unbroken.everything(), undone = untouched.everything();
        for (bool const for_good : {false, true}) {
            bool struck = true;
            for (int n = 1; struck; ++n) {
                SCOPED_TRACE(testing::Message()
                             << action.name << ", allocation " << n << (for_good ? ", for good" : ""));
                Battle battle{action.tab};
                struck = act(battle, action, n, for_good);
                std::string const state = battle.everything();
                bool const refused = action.reports && battle.desktop.boxes.size() == 1;
                EXPECT_TRUE(for_good || state == done || (refused && state == undone));
                EXPECT_TRUE(for_good || refused || battle.desktop.boxes == unbroken.desktop.boxes);
                EXPECT_FALSE(battle.form.Updating);
                EXPECT_EQ(battle.folder.names(), (std::set<std::string>{"modif.txt", "x.Army"}));
                for (int const tab : {tab_side_b, tab_side_a}) {
                    battle.form.TabStrip.choose(tab);
                    check_agreement(battle.form);
                }
                ASSERT_LT(n, 1000);
            }
        }
    }
}

TEST(OutOfMemory, while_the_list_is_built_omits_only_what_it_must)
{
    TemporaryFolder const folder;
    folder.write("modif.txt", list);
    for (bool const for_good : {false, true}) {
        bool struck = true;
        for (int n = 1; struck; ++n) {
            SCOPED_TRACE(n);
            TestDesktop desktop;
            desktop.directory = folder.path();
            ScriptedRandom random;
            Main form{desktop, random};
            struck = short_of_memory(n, for_good, [&] { form.ReadMiscMod(); });
            EXPECT_EQ(form.chkMisc.highest(), form.cmbMisc.highest());
            EXPECT_TRUE(for_good || form.chkMisc.highest() == 2);
        }
    }
}

} // namespace
} // namespace warhost
