#include "ui/qt/screens/combat_page.h"

#include "army/armies.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/caption_frame.h"
#include "ui/qt/widgets/text.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace warhost {

namespace {

constexpr int row_height = 22; // pixels of the base size, as all lengths here
constexpr int top_margin = 6;
constexpr int close_gap = 2;
constexpr int gap = 4;
constexpr int line_gap = 6;
constexpr int frame_gap = 8;
constexpr int left_width = 568;
constexpr int label_width = 124; // of the lines whose boxes stand one under the other
constexpr int box_width = 40;
constexpr int number_width = 58;
constexpr int roll_width = 44;
constexpr int apply_width = 116;

QString spoken_side(int Index) { return to_qt(side_name(Index)); }

} // namespace

CombatPage::CombatPage(CombatControls& controls, Scale const& scale, QSize content, QWidget* parent)
    : ScreenArea(parent),
      controls_(controls),
      make_(surface(), scale, row_height)
{
    name_after(controls.FrameCombat, *this);
    auto* const content_area = new QWidget{&surface()};
    content_area->setFixedSize(content);
    auto* const screen = new QGridLayout{content_area};
    screen->setContentsMargins(0, make_.pixels(top_margin), 0, 0);
    screen->setSpacing(make_.pixels(frame_gap));
    screen->setColumnMinimumWidth(0, make_.pixels(left_width));
    screen->setColumnStretch(1, 1);
    screen->setRowStretch(2, 1);
    screen->addLayout(totals(), 0, 0);
    screen->addWidget(battle_roll(), 1, 0);
    screen->addWidget(casualties(), 2, 0);
    screen->addWidget(description(), 0, 1, 3, 1);
    screen->addWidget(make_.button(controls.cmdSimulate, "Simulate N battles", 150), 3, 0, Qt::AlignLeft);
    make_.set_tab_order();
}

QLayout* CombatPage::totals()
{
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(make_.pixels(gap));
    grid->setVerticalSpacing(make_.pixels(gap));
    grid->setColumnStretch(2, 1);
    for (int const Index : {0, 1}) {
        auto* const caption = make_.label(Index == 0 ? controls_.Label5 : controls_.Label6);
        auto* const total =
            make_.number_box(controls_.txtTotalMod(Index), spoken_side(Index) + ", total modifier", number_width);
        caption->setBuddy(total);
        grid->addWidget(caption, Index, 0);
        grid->addWidget(total, Index, 1);
    }
    grid->addWidget(make_.button(controls_.cmdRollAll, "Roll all"), 2, 0, 1, 2);
    return grid;
}

QWidget* CombatPage::battle_roll()
{
    CaptionFrame* const frame = make_.frame(controls_.Frame6);
    auto* const grid = new QGridLayout{frame};
    grid->setContentsMargins(0, frame->caption_height() + make_.pixels(close_gap), 0, 0);
    grid->setHorizontalSpacing(make_.pixels(gap));
    grid->setVerticalSpacing(make_.pixels(line_gap));
    grid->setColumnStretch(5, 1);
    grid->setColumnMinimumWidth(2, make_.pixels(line_gap)); // between the sides
    for (int const Index : {0, 1}) {
        grid->addWidget(make_.button(controls_.cmdRoll(Index), "Roll for " + spoken_side(Index)), 0, 3 * Index, 1, 2);
    }
    for (int const Index : {0, 1}) {
        auto* const caption = make_.label(controls_.Label(8 + Index));
        auto* const result =
            make_.number_box(controls_.txtResult(Index), spoken_side(Index) + ", result", number_width);
        caption->setBuddy(result);
        grid->addWidget(caption, 1, 3 * Index);
        grid->addWidget(result, 1, 3 * Index + 1);
    }
    grid->addLayout(winner_line(), 2, 0, 1, 6);
    return frame;
}

QLayout* CombatPage::winner_line()
{
    auto* const line = make_.line(gap);
    line->addWidget(make_.label(controls_.Label7(0)));
    auto* const name = make_.label(controls_.lblWinner, 52);
    auto* const margin = make_.label(controls_.lblWinBy, 44);
    for (QLabel* const label : {name, margin}) {
        QFont bold = label->font();
        bold.setBold(true);
        label->setFont(bold);
        label->setAlignment(Qt::AlignCenter);
    }
    line->addWidget(name);
    line->addWidget(make_.label(controls_.Label8));
    line->addWidget(margin);
    line->addWidget(make_.label(controls_.Label9));
    line->addStretch();
    return line;
}

QWidget* CombatPage::casualties()
{
    CaptionFrame* const frame = make_.frame(controls_.Frame7);
    auto* const column = new QVBoxLayout{frame};
    column->setContentsMargins(0, frame->caption_height() + make_.pixels(close_gap), 0, 0);
    column->setSpacing(make_.pixels(line_gap));
    column->addLayout(loser_line());
    column->addLayout(victor_roll_line());
    column->addLayout(victor_percent_line());
    auto* const sides = make_.line(frame_gap);
    sides->addWidget(side(0), 1);
    sides->addWidget(side(1), 1);
    column->addLayout(sides, 1);
    return frame;
}

QLayout* CombatPage::loser_line()
{
    auto* const line = make_.line(gap);
    add_labelled(*line, make_.label(controls_.Label(16), label_width),
                 make_.number_box(controls_.txtLoserCasualty, "Loser's casualties, percent", box_width));
    line->addWidget(make_.label(controls_.Label(18)));
    line->addStretch();
    auto* const note = make_.label(controls_.Label(25), 310);
    note->setWordWrap(true);
    note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    line->addWidget(note);
    return line;
}

QLayout* CombatPage::victor_roll_line()
{
    auto* const line = make_.line(gap);
    add_labelled(*line, make_.label(controls_.Label(10), label_width),
                 make_.number_box(controls_.txtVictorCasRoll, "Victor's casualty roll", box_width));
    line->addWidget(make_.button(controls_.cmdRollCasualty, "Roll for the victor's casualties", roll_width));
    line->addSpacing(make_.pixels(gap));
    add_labelled(*line, make_.label(controls_.Label(15)),
                 make_.number_box(controls_.txtCasRollBonus, "Bonus to the victor's casualty roll", box_width));
    line->addSpacing(make_.pixels(gap));
    line->addWidget(make_.check_box(controls_.chkPlus5, "+5 to the victor's casualty roll"));
    line->addSpacing(make_.pixels(gap));
    line->addWidget(make_.check_box(controls_.chkMinus5, "-5 to the victor's casualty roll"));
    line->addStretch();
    return line;
}

QLayout* CombatPage::victor_percent_line()
{
    auto* const line = make_.line(gap);
    line->addWidget(make_.label(controls_.Label(17)));
    auto* const range = make_.label(controls_.lblCasRange, 52);
    range->setAlignment(Qt::AlignCenter);
    line->addWidget(range);
    line->addWidget(make_.button(controls_.cmdRollVictorCas, "Roll inside the victor's range", roll_width));
    line->addWidget(
        make_.number_box(controls_.txtVictorCasPercent, "Victor's casualties, percent of the loser's", box_width));
    line->addWidget(make_.label(controls_.Label(14)));
    line->addWidget(make_.label(controls_.lblLoserPercent, 36));
    add_labelled(*line, make_.label(controls_.Label13),
                 make_.number_box(controls_.txtVictorCas, "Victor's casualties, percent", box_width + 8));
    line->addWidget(make_.label(controls_.Label(22)));
    line->addStretch();
    return line;
}

QWidget* CombatPage::side(int Index)
{
    struct Heads {
        int name, had, loses;
    };
    Heads const heads = Index == 0 ? Heads{13, 11, 12} : Heads{19, 21, 20};
    CaptionFrame* const frame = make_.frame(Index == 0 ? controls_.frmSideA : controls_.Frame8);
    auto* const grid = new QGridLayout{frame};
    grid->setContentsMargins(0, frame->caption_height() + make_.pixels(close_gap), 0, 0);
    grid->setHorizontalSpacing(make_.pixels(close_gap));
    grid->setVerticalSpacing(make_.pixels(close_gap));
    grid->setColumnStretch(0, 1);
    grid->addWidget(make_.label(controls_.Label(heads.name)), 0, 0);
    grid->addWidget(make_.label(controls_.Label(heads.had)), 0, 1, Qt::AlignRight);
    grid->addWidget(make_.label(controls_.Label(heads.loses)), 0, 2, Qt::AlignRight);
    for (int row = 0; row < unit_rows; ++row) {
        int const field = combat_row(Index, row);
        QString const unit = QString{"%1, unit %2, "}.arg(spoken_side(Index)).arg(row + 1);
        grid->addWidget(make_.text_box(controls_.txtAName(field), unit + "name"), row + 1, 0);
        grid->addWidget(make_.number_box(controls_.txtANum(field), unit + "had", number_width), row + 1, 1);
        grid->addWidget(make_.number_box(controls_.txtLoses(field), unit + "loses", number_width), row + 1, 2);
    }
    grid->setRowStretch(unit_rows + 1, 1);
    auto* const apply =
        make_.button(controls_.cmdApplyCasualties(Index), "Apply casualties to " + spoken_side(Index), apply_width);
    grid->addWidget(apply, unit_rows + 2, 0, 1, 3, Qt::AlignRight);
    return frame;
}

QWidget* CombatPage::description()
{
    CaptionFrame* const frame = make_.frame(controls_.Frame9);
    auto* const column = new QVBoxLayout{frame};
    column->setContentsMargins(0, frame->caption_height() + make_.pixels(close_gap), 0, 0);
    column->setSpacing(make_.pixels(close_gap));
    auto const add = [&](TextLabel& caption_field, RichTextBox& text_field, char const* spoken) {
        auto* const caption = make_.label(caption_field);
        auto* const text = make_.description(text_field, spoken);
        caption->setBuddy(text);
        column->addWidget(caption);
        column->addWidget(text, 1);
    };
    add(controls_.Label10, controls_.txtBattleResults, "Description of the loser's casualties");
    column->addSpacing(make_.pixels(gap));
    add(controls_.Label11, controls_.txtVictorDesc, "Description of the victor's casualties");
    return frame;
}

} // namespace warhost
