// The form: every control of the window as a field, and every handler.
#pragma once

#include "army/armies.h"
#include "army/modifier_options.h"
#include "battle/battle_state.h"
#include "battle/random.h"
#include "files/modifier_list.h"
#include "ui/desktop.h"
#include "ui/fields.h"
#include "ui/memory_reserve.h"

#include <array>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace warhost {

/// Runs without any window system: a screen, where there is one, binds its widgets to the fields.
/// Form_Load must run once before anything else, when the window is created. No handler lets a Failure or a
/// std::bad_alloc out.
class Main : public Armies {
public:
    Main(Desktop& desktop, RandomSource& random);
    Main(Main const&) = delete;
    Main& operator=(Main const&) = delete;

    // The window

    Tabs TabStrip{"TabStrip", "", {0, 45, 12840, 9255}};
    Frame FrameArmy{"FrameArmy", "", {120, 480, 12600, 8715}};
    Frame FrameCombat{"FrameCombat", "", {120, 360, 12255, 8895}, false};
    Frame FrameMisc{"FrameMisc", "Misc. Modifiers and Feats", {6360, 360, 6135, 8295}};

    // The army screen

    ControlArray<TextLabel> Label{
        "Label",
        {
            {0, "Name of Army:"},
            {1, "#1"},
            {2, "#2"},
            {3, "#3"},
            {4, "#4"},
            {5, "#5"},
            {6, "#6"},
            {7, "(possessed by >30% of force)"},
            {8, "Side A Gets:"},
            {9, "Side B Gets:"},
            {10, "Victor's Casualty Roll:"},
            {11, "Had:"},
            {12, "Loses:"},
            {13, "Unit Name:"},
            {14, "% of loser's"},
            {15, "(with bonus:)"},
            {16, "Loser's Casualties: "},
            {17, "Victor's Casualties (Roll"},
            {18, "percent"},
            {19, "Unit Name:"},
            {20, "Loses:"},
            {21, "Had:"},
            {22, "%"},
            {23, "#7"},
            {24, "#8"},
            {25,
             "Note: If the +5 or -5 box is checked, the victor must click reroll.  Uncheck these before the next battle"},
        }};
    TextBox txtArmyName{"txtArmyName"};
    Button cmdSaveArmy{"cmdSaveArmy", "Save"};
    Button cmdLoadArmy{"cmdLoadArmy", "Load"};
    TextLabel Label4{"Label4", "Total of Modifiers (this screen only)"};
    TextBox txtTotal{"txtTotal", "0"};

    Frame FrameUnits{"FrameUnits", "Units and Number of Soldiers"};
    TextLabel Label1{"Label1", "Type of Unit"};
    TextLabel Label2{"Label2", "# of Soldiers"};
    ControlArray<TextBox> txtUnitType{"txtUnitType", 0, unit_rows - 1};
    ControlArray<TextBox> txtUnitNum{"txtUnitNum", 0, unit_rows - 1};
    TextLabel Label3{"Label3", "Total # of soldiers:"};
    TextBox txtTotalNo{"txtTotalNo", "0"};
    TextLabel Label12{"Label12", "Troop Ratio"};
    TextLabel lblRatio{"lblRatio", "1:1"};
    TextLabel Label14{"Label14", "gives"};
    TextLabel lblRatioBonus{"lblRatioBonus", "+0"};

    Frame FrameDiscipline{"FrameDiscipline", std::string{category_captions[0]}};
    Frame Frame1{"Frame1", std::string{category_captions[1]}};
    Frame Frame2{"Frame2", std::string{category_captions[2]}};
    Frame Frame3{"Frame3", std::string{category_captions[3]}};
    Frame Frame4{"Frame4", std::string{category_captions[4]}};
    Frame Frame5{"Frame5", std::string{category_captions[5]}};
    Frame Frame10{"Frame10", std::string{category_captions[6]}};
    Frame Frame11{"Frame11", std::string{category_captions[7]}};
    ControlArray<OptionButton> opt{"opt"};
    ControlArray<ComboBox> cmbOpt{"cmbOpt", 0, category_count - 1, "0"};
    TextLabel Label15{"Label15", "Average Troop Level:"};
    ComboBox cmbLevel{"cmbLevel", "1"};
    TextLabel Label16{"Label16", "vs"};
    TextLabel lblOtherLevel{"lblOtherLevel", "0"};
    TextLabel Label18{"Label18", "gives"};
    TextLabel lblLevelBonus{"lblLevelBonus", "+0"};
    ControlArray<CheckBox> chkMisc{"chkMisc", 0, 0, "MiscMod"};
    ControlArray<ComboBox> cmbMisc{"cmbMisc", 0, 0, "Combo1"};

    // The combat screen

    TextLabel Label5{"Label5", "Army Side A Total Modifier:"};
    TextLabel Label6{"Label6", "Army Side B Total Modifier:"};
    ControlArray<TextBox> txtTotalMod{"txtTotalMod", 0, 1, "0"};
    Button cmdRollAll{"cmdRollAll", "Roll All"};
    Button cmdSimulate{"cmdSimulate", "Simulate N Battles"};

    Frame Frame6{"Frame6", "Roll Battle"};
    ControlArray<Button> cmdRoll{"cmdRoll", {{0, "Roll For Side A"}, {1, "Roll For Side B"}}};
    ControlArray<TextBox> txtResult{"txtResult", 0, 1, "0"};
    ControlArray<TextLabel> Label7{"Label7", {{0, "Winner:"}}};
    TextLabel lblWinner{"lblWinner", " Side A "};
    TextLabel Label8{"Label8", "by"};
    TextLabel lblWinBy{"lblWinBy", "0"};
    TextLabel Label9{"Label9", "points"};

    Frame Frame7{"Frame7", "Apply Casualties"};
    TextBox txtLoserCasualty{"txtLoserCasualty", "0"};
    TextBox txtVictorCasRoll{"txtVictorCasRoll", "0"};
    Button cmdRollCasualty{"cmdRollCasualty", "Roll"};
    TextBox txtCasRollBonus{"txtCasRollBonus", "0"};
    CheckBox chkPlus5{"chkPlus5", "+5"};
    CheckBox chkMinus5{"chkMinus5", "-5"};
    TextLabel lblCasRange{"lblCasRange", "0 to 0"};
    Button cmdRollVictorCas{"cmdRollVictorCas", "Roll"};
    TextBox txtVictorCasPercent{"txtVictorCasPercent", "0"};
    TextLabel lblLoserPercent{"lblLoserPercent", "0%"};
    TextLabel Label13{"Label13", "is"};
    TextBox txtVictorCas{"txtVictorCas", "0"};

    Frame frmSideA{"frmSideA", "Side A"};
    Frame Frame8{"Frame8", "Side B"};
    ControlArray<TextBox> txtAName{"txtAName", 0, 2 * unit_rows - 1};
    ControlArray<TextBox> txtANum{"txtANum", 0, 2 * unit_rows - 1, "0"};
    ControlArray<TextBox> txtLoses{"txtLoses", 0, 2 * unit_rows - 1, "0"};
    ControlArray<Button> cmdApplyCasualties{"cmdApplyCasualties", 0, 1, "Apply Casualties"};

    Frame Frame9{"Frame9", "Description of Battle"};
    TextLabel Label10{"Label10", "Loser's Casualties"};
    RichTextBox txtBattleResults{"txtBattleResults"};
    TextLabel Label11{"Label11", "Victor's Casualties"};
    RichTextBox txtVictorDesc{"txtVictorDesc"};

    // State

    BattleState battle;
    bool Updating = false; // CurArmy is being put on the screen: CalcTotal does nothing
    Failure pending_error; // number 0: none

    // Window (window_handlers.cpp)

    void Form_Load();
    void Form_Resize();
    /// Asks whether to quit; false refuses the request to close.
    bool Form_QueryUnload();
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

    /// Makes the list's first rows; a list may have millions.
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
    /// Reads the file into CurArmy. A file that is not a complete army leaves CurArmy as it was. path: UTF-8.
    void LoadArmy(std::string const& path);
    void SaveArmy(std::string const& path);

    // Error reporting (error_report.cpp)

    /// Shows the pending error, if there is one, and clears it; Abort ends the program.
    void ErrReport(std::string_view context);
    /// False after telling the user that the file is missing.
    bool CheckFile(std::string const& path);

    /// Runs one step of a procedure that reports at its end: a Failure, or a lack of memory, becomes the pending error.
    template <class Step> void step(Step&& run)
    {
        try {
            run();
        } catch (Failure& failure) {
            pending_error = std::move(failure);
        } catch (std::bad_alloc const&) {
            reserve_.free();
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
    /// At its end selects the tab that was selected when it was made. What waits, for an answer or for a disk, may let
    /// other events in.
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
    bool refused_on_combat_tab();
    bool make_misc_row();
    void place_misc_row(int row);
    int effective_casualty_bonus();
    void describe(RichTextBox& box, std::string_view account);
    void spread_losses(int Index, int percent);

    std::array<OptionGroup, category_count> option_groups_;
    ModifierList misc_list_; // what follows the rows that were made
    MemoryReserve reserve_;
    Desktop& desktop_;
    RandomSource& random_;
};

} // namespace warhost
