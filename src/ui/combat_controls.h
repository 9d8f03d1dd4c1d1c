// The controls of the combat screen. Several have names that say nothing; a comment then says what they are.
#pragma once

#include "army/army.h"
#include "ui/fields.h"

#include <array>
#include <string_view>

namespace warhost {

/// txtAName, txtANum and txtLoses hold the unit rows of both sides, Side A's first: Index is 0 for Side A, 1 for Side
/// B.
constexpr int combat_row(int Index, int row) { return unit_rows * Index + row; }

/// What lblWinner says, by BattleWinner. Before the first result it says something else.
inline constexpr std::array<std::string_view, 3> winner_captions{"Side A", "Side B", "Tie!"};

/// The army screen has the other elements of the array Label.
struct CombatControls {
    CombatControls();
    CombatControls(CombatControls const&) = delete;
    CombatControls& operator=(CombatControls const&) = delete;

    Frame FrameCombat{"FrameCombat", "", {120, 360, 12255, 8895}, false};

    // Captions of all sections

    ControlArray<TextLabel> Label{
        "Label",
        {
            {8, "Side A Gets:"},
            {9, "Side B Gets:"},
            {10, "Victor's Casualty Roll:"},
            {11, "Had:"}, // 11 to 13: the heads of Side B's table
            {12, "Loses:"},
            {13, "Unit Name:"},
            {14, "% of loser's"},
            {15, "(with bonus:)"},
            {16, "Loser's Casualties: "},
            {17, "Victor's Casualties (Roll"},
            {18, "percent"},
            {19, "Unit Name:"}, // 19 to 21: the heads of Side A's table
            {20, "Loses:"},
            {21, "Had:"},
            {22, "%"},
            {25,
             "Note: If the +5 or -5 box is checked, the victor must click reroll.  Uncheck these before the next battle"},
        }};

    // The totals, and the two buttons for whole battles

    TextLabel Label5{"Label5", "Army Side A Total Modifier:"};
    TextLabel Label6{"Label6", "Army Side B Total Modifier:"};
    ControlArray<TextBox> txtTotalMod{"txtTotalMod", 0, 1, "0"};
    Button cmdRollAll{"cmdRollAll", "Roll All"};
    Button cmdSimulate{"cmdSimulate", "Simulate N Battles"};

    // The battle roll

    Frame Frame6{"Frame6", "Roll Battle"};
    ControlArray<Button> cmdRoll{"cmdRoll", {{0, "Roll For Side A"}, {1, "Roll For Side B"}}};
    ControlArray<TextBox> txtResult{"txtResult", 0, 1, "0"};
    ControlArray<TextLabel> Label7{"Label7", {{0, "Winner:"}}};
    TextLabel lblWinner{"lblWinner", " Side A "};
    TextLabel Label8{"Label8", "by"};
    TextLabel lblWinBy{"lblWinBy", "0"};
    TextLabel Label9{"Label9", "points"};

    // The casualties in percent

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

    // The losses of both sides

    Frame frmSideA{"frmSideA", "Side A"};
    Frame Frame8{"Frame8", "Side B"};
    ControlArray<TextBox> txtAName{"txtAName", 0, 2 * unit_rows - 1};
    ControlArray<TextBox> txtANum{"txtANum", 0, 2 * unit_rows - 1, "0"};
    ControlArray<TextBox> txtLoses{"txtLoses", 0, 2 * unit_rows - 1, "0"};
    ControlArray<Button> cmdApplyCasualties{"cmdApplyCasualties", 0, 1, "Apply Casualties"};

    // The accounts of the battle

    Frame Frame9{"Frame9", "Description of Battle"};
    TextLabel Label10{"Label10", "Loser's Casualties"};
    RichTextBox txtBattleResults{"txtBattleResults"};
    TextLabel Label11{"Label11", "Victor's Casualties"};
    RichTextBox txtVictorDesc{"txtVictorDesc"};
};

} // namespace warhost
