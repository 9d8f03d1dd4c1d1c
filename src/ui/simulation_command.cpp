#include "battle/simulation.h"
#include "ui/main.h"
#include "ui/simulation_report.h"

#include <algorithm>
#include <utility>

namespace warhost {

namespace {

constexpr std::int32_t batch_size = 1 << 20; // battles; some milliseconds

/// Puts a text in place that was there already in the battles' eyes: its handler has run.
void set_without_change(TextBox& box, int value)
{
    auto handler = std::exchange(box.Change, {});
    box.set_text(plain_text(value));
    box.Change = std::move(handler);
}

} // namespace

void Main::cmdSimulate_Click()
{
    auto const answer =
        desktop_.input_box({"Enter the number of times to simulate a battle.", "Simulate N Battles", "1000"});
    std::int32_t const battles = std::max(TextToLong(answer), 1);

    Simulation simulation{TextToInt(txtTotalMod(0).text()),
                          TextToInt(txtTotalMod(1).text()),
                          {TextToInt(txtResult(1).text()), TextToInt(txtVictorCasRoll.text())}};
    for (std::int32_t left = battles - 1; left > 0;) {
        std::int32_t const batch = std::min(left, batch_size);
        simulation.fight(random_, batch);
        left -= batch;
        desktop_.show_progress(battles - left, battles);
    }
    if (battles > 1) {
        set_without_change(txtResult(1), simulation.carried_over().result_b);
        set_without_change(txtVictorCasRoll, simulation.carried_over().victor_roll);
    }

    // The last battle is fought on the screen, which then shows it whole.
    cmdRollAll_Click();
    if (chkMinus5.state() == 1 || chkPlus5.state() == 1) {
        cmdRollCasualty_Click();
        cmdRollVictorCas_Click();
    }
    simulation.tally().count(Tally::place_of(battle.Winner, battle.WinMargin) +
                             static_cast<std::size_t>(TextToInt(txtVictorCasPercent.text())));
    desktop_.show_report(
        {.text = simulation_report(simulation.tally(), desktop_.number_format()), .title = "Warhost Simulation"},
        simulation.tally());
}

} // namespace warhost
