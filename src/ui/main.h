// The form: every handler, over the controls of the window and of both screens.
#pragma once

#include "army/armies.h"
#include "battle/battle_state.h"
#include "battle/random.h"
#include "files/modifier_list.h"
#include "ui/army_controls.h"
#include "ui/combat_controls.h"
#include "ui/desktop.h"
#include "ui/memory_reserve.h"
#include "ui/window_controls.h"

#include <cstdint>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace warhost {

/// Runs without any window system: a screen, where there is one, binds its widgets to the fields.
/// Form_Load must run once before anything else, when the window is created. No handler lets a Failure or a
/// std::bad_alloc out. Controls and records are bases, so that handlers call them by the product's own names.
class Main : public WindowControls, public ArmyControls, public CombatControls, public Armies {
public:
    Main(Desktop& desktop, RandomSource& random);
    Main(Main const&) = delete;
    Main& operator=(Main const&) = delete;

    // State

    BattleState battle;
    bool Updating = false; // CurArmy is being put on the screen: CalcTotal does nothing
    Failure pending_error; // number 0: none

    // Window (window_handlers.cpp)

    void Form_Load();
    void Form_Resize();
    /// Asks whether to quit; false refuses the request to close.
    [[nodiscard]] bool Form_QueryUnload();
    void mnuQuit_Click();
    void mnuLoad_Click();
    void mnuSave_Click();

    // Help and links (help_and_links.cpp)

    void mnuWeb_Click(int Index);
    void mnuHelpContents_Click();
    void mnuAbout_Click();
    bool OpenWebPage(std::string const& address);

    // Army screen (army_screen.cpp)

    void CurArmy_Save();
    void CurArmy_Update();
    void TabStrip_Click();
    void txtArmyName_Change();
    void txtUnitType_Change(int Index);
    void txtUnitNum_Change(int Index);
    void opt_Click(int Index);
    void cmbOpt_Change(int Index);
    void cmbOpt_Click(int Index);
    void cmbLevel_Change();
    void cmbLevel_Click();
    void cmbMisc_Change(int Index);
    void cmbMisc_Click(int Index);
    void chkMisc_Click(int Index);
    void CalcTotal();
    void CalcTroopRatio(int Side);

    // Misc panel (misc_rows.cpp)

    /// Makes the list's first rows only, as a list may have millions.
    void ReadMiscMod();
    void PositionMiscMod();
    /// Makes the list's next row, below the others. False when there is none, or no memory for it.
    bool add_misc_row();

    // Combat screen (combat_screen.cpp)

    void cmdRollAll_Click();
    void cmdRoll_Click(int Index);
    /// Reads both results, whichever was set.
    void txtResult_Change(int Index);
    void txtLoserCasualty_Change();
    void cmdRollCasualty_Click();
    void txtVictorCasRoll_Change();
    void cmdRollVictorCas_Click();
    void txtVictorCasPercent_Change();
    void txtVictorCas_Change();
    void cmdApplyCasualties_Click(int Index);

    // Simulation (simulation_command.cpp)

    void cmdSimulate_Click();

    // Army files (army_files.cpp)

    void cmdLoadArmy_Click();
    void cmdSaveArmy_Click();
    /// Loads a file dropped on the window, in the same steps as cmdLoadArmy_Click. path: UTF-8.
    void load_dropped_army(std::string const& path);
    /// Reads the file into CurArmy. A file that is not a complete army leaves CurArmy as it was. path: UTF-8.
    void LoadArmy(std::string const& path);
    void SaveArmy(std::string const& path);

    // Error reporting (error_report.cpp)

    /// Shows the pending error, if there is one, and clears it; Abort ends the program.
    void ErrReport(std::string_view context);
    /// Shows a message when the file is missing, and returns false.
    [[nodiscard]] bool CheckFile(std::string const& path);

    /// Runs one step of a procedure that reports at its end: a Failure, or a lack of memory, becomes the pending error.
    template <class Step> void step(Step&& run)
    {
        try {
            run();
        } catch (Failure& failure) {
            pending_error = std::move(failure);
        } catch (std::bad_alloc const&) {
            pending_error = {static_cast<std::int32_t>(Fault::out_of_memory), {}};
            quiet_step([&] { pending_error = failure_of(Fault::out_of_memory); });
        }
    }

    /// Runs one step of a computation. A Failure ends the step and is passed over. When memory runs out, the reserve is
    /// freed and the step runs once more, so it must be safe to run twice. Returns whether the step was completed.
    template <class Step> bool quiet_step(Step&& run)
    {
        for (int attempt = 0; attempt < 2; ++attempt) {
            try {
                run();
                reserve_.fill();
                return true;
            } catch (Failure const&) {
                return false;
            } catch (std::bad_alloc const&) {
                reserve_.free();
            }
        }
        return false;
    }

private:
    /// Restores the selected tab when it goes out of scope: while the form waits for an answer or for a disk, other
    /// events may arrive.
    class KeptTab {
    public:
        explicit KeptTab(Main& form) : form_(form), position_(form.TabStrip.position()) {}
        KeptTab(KeptTab const&) = delete;
        KeptTab& operator=(KeptTab const&) = delete;
        ~KeptTab()
        {
            if (form_.TabStrip.position() != position_) form_.TabStrip.choose(position_);
        }

    private:
        Main& form_;
        int position_;
    };

    void connect_handlers();
    bool army_tab_selected();
    /// Index 0 or 1; 0 also on the combat tab.
    int shown_side();
    /// Rows that the record can hold: none while check boxes and values do not come in equal numbers.
    int counted_misc_rows();
    void show_total_modifiers();
    [[nodiscard]] bool refused_on_combat_tab();
    void load_chosen(std::function<std::optional<std::string>()> const& choose);
    bool make_misc_row();
    void place_misc_row(int row);
    int effective_casualty_bonus();
    void describe(RichTextBox& box, std::string_view account, std::string_view heading = {});
    void spread_losses(int Index, int percent);

    ModifierList misc_list_; // what follows the rows that were made
    MemoryReserve reserve_;
    Desktop& desktop_;
    RandomSource& random_;
};

} // namespace warhost
