#include "ui/main.h"

#include <cmath>

namespace warhost {

void Main::Form_Load()
{
    CurArmy = ArmyA;
    ReadMiscMod();
    CalcTotal();
    ArmyA = CurArmy;
    ArmyB = CurArmy;
    TabStrip_Click();
}

void Main::Form_Resize()
{
    if (desktop_.minimized()) return;
    auto const rounded = [](double twips) { return static_cast<int>(std::nearbyint(twips)); };
    int const margin = rounded(desktop_.twips_per_pixel_x() * 4);
    ClientArea const client = desktop_.client_area();
    int const W = rounded(client.width);
    int const H = rounded(client.height);
    auto const fit = [](Frame& frame, int width, int height, int gap) {
        frame.set_size(width - frame.box().Left - gap, height - frame.box().Top - gap);
    };
    fit(TabStrip, W, H, margin);
    fit(FrameArmy, W, H, 2 * margin);
    fit(FrameCombat, W, H, 2 * margin);
    fit(FrameMisc, FrameArmy.box().Width, FrameArmy.box().Height, 2 * margin);
}

bool Main::Form_QueryUnload()
{
    auto answer = Answer::no;
    quiet_step([&] {
        answer = desktop_.message_box({.text = "Are you sure you wish to quit?",
                                       .title = "Quit Warhost?",
                                       .buttons = Buttons::yes_no,
                                       .default_answer = Answer::yes});
    });
    return answer == Answer::yes;
}

void Main::mnuQuit_Click()
{
    quiet_step([&] { desktop_.close_window(); });
}

void Main::mnuLoad_Click() { cmdLoadArmy_Click(); }

void Main::mnuSave_Click() { cmdSaveArmy_Click(); }

} // namespace warhost
