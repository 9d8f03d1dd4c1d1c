// The controls of the army screen. Several have names that say nothing; a comment then says what they are.
#pragma once

#include "army/army.h"
#include "army/modifier_options.h"
#include "ui/fields.h"

#include <array>
#include <string>

namespace warhost {

/// The combat screen has the other elements of the array Label.
struct ArmyControls {
    ArmyControls();
    ArmyControls(ArmyControls const&) = delete;
    ArmyControls& operator=(ArmyControls const&) = delete;

    Frame FrameArmy{"FrameArmy", "", {120, 480, 12600, 8715}};

    // The top line, and captions of all sections

    ControlArray<TextLabel> Label{"Label",
                                  {
                                      {0, "Name of Army:"},
                                      {1, "#1"}, // 1 to 6, 23 and 24: the numbers of the unit rows
                                      {2, "#2"},
                                      {3, "#3"},
                                      {4, "#4"},
                                      {5, "#5"},
                                      {6, "#6"},
                                      {7, "(possessed by >30% of force)"}, // under the caption of Frame1
                                      {23, "#7"},
                                      {24, "#8"},
                                  }};
    TextBox txtArmyName{"txtArmyName"};
    Button cmdSaveArmy{"cmdSaveArmy", "Save"};
    Button cmdLoadArmy{"cmdLoadArmy", "Load"};
    TextLabel Label4{"Label4", "Total of Modifiers (this screen only)"};
    TextBox txtTotal{"txtTotal", "0"};

    // The units

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

    // The modifier categories

    Frame FrameDiscipline{"FrameDiscipline", std::string{category_captions[0]}};
    Frame Frame1{"Frame1", std::string{category_captions[1]}};
    Frame Frame2{"Frame2", std::string{category_captions[2]}};
    Frame Frame3{"Frame3", std::string{category_captions[3]}};
    Frame Frame4{"Frame4", std::string{category_captions[4]}};
    Frame Frame5{"Frame5", std::string{category_captions[5]}};
    Frame Frame10{"Frame10", std::string{category_captions[6]}};
    Frame Frame11{"Frame11", std::string{category_captions[7]}};
    ControlArray<OptionButton> opt{"opt"};                               // one for each row of options
    ControlArray<ComboBox> cmbOpt{"cmbOpt", 0, category_count - 1, "0"}; // the result of each category
    TextLabel Label15{"Label15", "Average Troop Level:"};
    ComboBox cmbLevel{"cmbLevel", "1"};
    TextLabel Label16{"Label16", "vs"};
    TextLabel lblOtherLevel{"lblOtherLevel", "0"}; // the other side's average level
    TextLabel Label18{"Label18", "gives"};
    TextLabel lblLevelBonus{"lblLevelBonus", "+0"};

    // The misc panel

    Frame FrameMisc{"FrameMisc", "Misc. Modifiers and Feats", {6360, 360, 6135, 8295}};
    ControlArray<CheckBox> chkMisc{"chkMisc", 0, 0,
                                   "MiscMod"}; // element 0 is never shown: rows 1, 2, ... are made like it
    ControlArray<ComboBox> cmbMisc{"cmbMisc", 0, 0, "Combo1"};

private:
    std::array<OptionGroup, category_count> option_groups_;
};

} // namespace warhost
