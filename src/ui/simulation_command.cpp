#include "battle/odds.h"
#include "battle/simulation.h"
#include "ui/main.h"
#include "ui/simulation_report.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace warhost {

namespace {

constexpr std::int32_t batch_size = 1 << 20; // battles; some milliseconds

} // namespace

void Main::cmdSimulate_Click()
{
    std::string answer;
    bool const asked = quiet_step([&] {
        answer = desktop_.input_box({"Enter the number of times to simulate a battle.", "Simulate N Battles", "1000"});
    });
    if (!asked) return;
    std::int32_t battles = 0;
    std::optional<Simulation> simulation;
    std::optional<Odds> odds;
    quiet_step([&] {
        battles = std::max(TextToLong(answer), 1);
        int const modifier_a = TextToInt(txtTotalMod(0).text());
        int const modifier_b = TextToInt(txtTotalMod(1).text());
        odds.emplace(modifier_a, modifier_b);
        simulation.emplace(modifier_a, modifier_b,
                           CarriedOver{TextToInt(txtResult(1).text()), TextToInt(txtVictorCasRoll.text())});
    });
    if (!simulation) return;

    for (std::int32_t left = battles - 1; left > 0;) {
        std::int32_t const batch = std::min(left, batch_size);
        simulation->fight(random_, batch);
        left -= batch;
        quiet_step([&] { desktop_.show_progress(battles - left, battles, simulation->tally()); });
    }
    // The last battle is fought on the screen, which then shows it whole. This sets the texts without running Change;
    // the battles have already accounted for them.
    quiet_step([&] {
        txtResult(1).set_text_silently(plain_text(simulation->carried_over().result_b));
        txtVictorCasRoll.set_text_silently(plain_text(simulation->carried_over().victor_roll));
    });
    cmdRollAll_Click();
    if (chkMinus5.state() == 1 || chkPlus5.state() == 1) {
        cmdRollCasualty_Click();
        cmdRollVictorCas_Click();
    }
    quiet_step(
        [&] { simulation->tally().count(battle.Winner, battle.WinMargin, TextToInt(txtVictorCasPercent.text())); });
    quiet_step([&] {
        Tally const& tally = simulation->tally();
        desktop_.show_report(
            {.text = simulation_report(tally, desktop_.number_format()), .title = "Warhost Simulation"}, tally, *odds);
    });
}

} // namespace warhost
