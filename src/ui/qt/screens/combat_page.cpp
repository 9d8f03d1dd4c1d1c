#include "ui/qt/screens/combat_page.h"

#include "army/armies.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/look/page_style.h"
#include "ui/qt/screens/description_sheet.h"
#include "ui/qt/screens/side_panel.h"
#include "ui/qt/screens/winner_band.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/caption_frame.h"
#include "ui/qt/widgets/elided_label.h"
#include "ui/qt/widgets/entry_box.h"
#include "ui/qt/widgets/number_reading.h"
#include "ui/qt/widgets/side_mark.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace warhost {

namespace {

// Pixels of the base size. Heights count from the top of the screen.
constexpr int field_height = 20;
constexpr int button_height = 22;
constexpr int gap = 4;
constexpr int group_gap = 8;
constexpr int column_width = 264;
constexpr int column_gap = 20;
constexpr int lines_width = 2 * column_width + column_gap;
constexpr int number_width = 56;
constexpr int result_width = 96;
constexpr int result_height = 30;
constexpr int label_width = 128; // in the lines whose boxes are aligned
constexpr int box_width = 44;
constexpr int roll_width = 48;
constexpr int range_end = 189; // before the button that rolls inside it

constexpr int totals_top = 8;
constexpr int total_pitch = 24;
constexpr int roll_all_top = 60;
constexpr int roll_all_end = 90;
constexpr int roll_top = 100;
constexpr int roll_end = 224;
constexpr int casualties_top = 238;
constexpr int victor_roll_top = 290;
constexpr int victor_share_top = 314;
constexpr int sides_top = 342;
constexpr int sides_end = 565;
constexpr int screen_end = 600;

QString spoken_side(int Index) { return to_qt(side_name(Index)); }

} // namespace

CombatPage::CombatPage(CombatControls& controls, Scale const& scale, QSize content, QWidget* parent)
    : ScreenArea(parent),
      controls_(controls),
      make_(surface(), scale)
{
    name_after(controls.FrameCombat, *this);
    auto* const content_area = new QWidget{&surface()};
    content_area->setFixedSize(content);
    auto* const screen = new QHBoxLayout{content_area};
    screen->setContentsMargins(0, 0, 0, 0);
    screen->setSpacing(make_.span(lines_width, lines_width + column_gap));
    auto* const left = new QVBoxLayout;
    left->setSpacing(0);
    left->addSpacing(make_.pixels(totals_top));
    left->addLayout(totals());
    left->addSpacing(make_.span(roll_all_end, roll_top));
    left->addWidget(battle_roll());
    left->addSpacing(make_.span(roll_end, casualties_top));
    left->addWidget(casualties());
    left->addStretch();
    QWidget* const sheet = description();
    left->addWidget(make_.button(controls.cmdSimulate, "Simulate N battles", column_width, button_height));
    left->addSpacing(content.height() - make_.pixels(screen_end));
    screen->addLayout(left);
    screen->addWidget(sheet, 0, Qt::AlignTop);
    screen->addStretch();
    make_.set_tab_order();
    follow_battle();
}

QLayout* CombatPage::totals()
{
    auto* const grid = new QGridLayout;
    grid->setSpacing(0);
    grid->setColumnMinimumWidth(0, make_.pixels(column_width));
    grid->setColumnMinimumWidth(1, make_.span(column_width, column_width + column_gap));
    grid->setColumnMinimumWidth(2, make_.span(column_width + column_gap, lines_width));
    for (int const Index : {0, 1}) {
        auto const k = static_cast<std::size_t>(Index);
        auto* const line = make_.row(gap);
        auto* const caption = make_.label(Index == 0 ? controls_.Label5 : controls_.Label6);
        totals_.at(k) =
            make_.number_box(controls_.txtTotalMod(Index), spoken_side(Index) + ", total modifier", number_width);
        totals_.at(k)->set_reading(whole_number<TextToInt>);
        caption->setBuddy(totals_.at(k));
        line->addWidget(caption);
        line->addStretch();
        line->addWidget(totals_.at(k));
        auto* const army = make_.row(0);
        names_.at(k) = new ElidedLabel;
        names_.at(k)->setFont(make_.font(type::name));
        set_ink(*names_.at(k), ink_of_side(Index));
        army->addWidget(new SideMark{Index});
        army->addWidget(names_.at(k), 1);
        grid->addLayout(line, Index, 0);
        grid->addLayout(army, Index, 2);
        double const top = totals_top + Index * total_pitch;
        double const end = Index == 0 ? top + total_pitch : roll_all_top;
        grid->setRowMinimumHeight(Index, make_.span(top, top + field_height));
        line->setContentsMargins(0, 0, 0, make_.span(top + field_height, end));
        army->setContentsMargins(0, 0, 0, make_.span(top + field_height, end));
    }
    roll_all_ = make_.button(controls_.cmdRollAll, "Roll all", column_width, roll_all_end - roll_all_top);
    roll_all_->setFont(make_.font(type::next_step));
    roll_all_->setFixedHeight(make_.span(roll_all_top, roll_all_end));
    grid->addWidget(roll_all_, 2, 0);
    return grid;
}

QWidget* CombatPage::battle_roll()
{
    constexpr int rolls_top = 126;
    constexpr int results_top = 152;
    roll_frame_ = make_.frame(controls_.Frame6);
    roll_frame_->setFixedHeight(make_.span(roll_top, roll_end));
    auto* const column = new QVBoxLayout{roll_frame_};
    column->setContentsMargins(0, make_.span(roll_top, rolls_top), 0, 0);
    column->setSpacing(0);
    auto* const rolls = make_.row(0);
    for (int const Index : {0, 1}) {
        auto* const roll =
            make_.button(controls_.cmdRoll(Index), "Roll for " + spoken_side(Index), column_width, button_height);
        int const left = Index * (column_width + column_gap);
        roll->setFixedWidth(make_.span(left, left + column_width)); // together as wide as the frame
        rolls->addWidget(roll);
        if (Index == 0) rolls->addSpacing(make_.span(column_width, column_width + column_gap));
    }
    auto* const results = make_.row(column_gap);
    for (int const Index : {0, 1}) results->addLayout(result(Index));
    column->addLayout(rolls);
    column->addSpacing(make_.span(rolls_top, results_top) - make_.pixels(button_height));
    column->addLayout(results);
    column->addStretch();
    band_ = new WinnerBand{controls_, make_};
    column->addWidget(band_);
    return roll_frame_;
}

QLayout* CombatPage::result(int Index)
{
    constexpr int digits_right = 2; // in addition to the margin of every box
    auto* const line = make_.row(0);
    auto* const caption = make_.label(controls_.Label(8 + Index));
    EntryBox* const box = make_.number_box(controls_.txtResult(Index), spoken_side(Index) + ", result", result_width);
    box->set_type(type::result);
    box->set_reading(whole_number<TextToInt>);
    box->setTextMargins(0, 0, make_.pixels(digits_right), 0);
    box->setFixedHeight(make_.pixels(result_height));
    caption->setBuddy(box);
    line->addWidget(new SideMark{Index});
    line->addWidget(caption);
    line->addStretch();
    line->addWidget(box);
    results_.at(static_cast<std::size_t>(Index)) = box;
    return line;
}

QWidget* CombatPage::casualties()
{
    casualty_frame_ = make_.frame(controls_.Frame7);
    casualty_frame_->setFixedHeight(make_.span(casualties_top, sides_end));
    auto* const column = new QVBoxLayout{casualty_frame_};
    constexpr int first_top = casualties_top + CaptionFrame::contents_top;
    column->setContentsMargins(0, make_.span(casualties_top, first_top), 0, 0);
    column->setSpacing(0);
    auto const add = [&](QLayout* line, int from, int to, int below = 0) {
        auto* const holder = new QWidget;
        line->setContentsMargins(0, 0, 0, below);
        holder->setLayout(line);
        holder->setFixedHeight(make_.span(from, to));
        column->addWidget(holder);
    };
    add(loser_line(), first_top, victor_roll_top);
    // The space below the boxes absorbs the rounding of both heights.
    auto const below_boxes = [&](int from, int to) { return make_.span(from, to) - make_.pixels(field_height); };
    add(victor_roll_line(), victor_roll_top, victor_share_top, below_boxes(victor_roll_top, victor_share_top));
    add(victor_percent_line(), victor_share_top, sides_top, below_boxes(victor_share_top, sides_top));
    auto* const sides = make_.row(column_gap);
    for (int const Index : {0, 1}) {
        auto* const side = new SidePanel{controls_, make_, Index, sides_top, &surface()};
        sides_.at(static_cast<std::size_t>(Index)) = side;
        sides->addWidget(side, 1);
    }
    column->addLayout(sides, 1);
    return casualty_frame_;
}

QLayout* CombatPage::loser_line()
{
    constexpr int note_width = 308;
    auto* const line = make_.row(gap);
    auto* const percentage = make_.number_box(controls_.txtLoserCasualty, "Loser's casualties, percent", box_width);
    percentage->set_reading(whole_number<TextToInt>);
    add_labelled(*line, make_.label(controls_.Label(16), label_width), percentage);
    line->addWidget(make_.label(controls_.Label(18)));
    line->addStretch();
    note_ = make_.label(controls_.Label(25), note_width);
    note_->setWordWrap(true);
    note_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    note_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    line->addWidget(note_);
    return line;
}

QLayout* CombatPage::victor_roll_line()
{
    auto* const line = make_.row(gap);
    auto* const roll = make_.number_box(controls_.txtVictorCasRoll, "Victor's casualty roll", box_width);
    roll->set_reading(whole_number<TextToInt>);
    add_labelled(*line, make_.label(controls_.Label(10), label_width), roll);
    roll_casualty_ =
        make_.button(controls_.cmdRollCasualty, "Roll for the victor's casualties", roll_width, field_height);
    line->addWidget(roll_casualty_);
    line->addSpacing(make_.pixels(group_gap));
    auto* const bonus = make_.number_box(controls_.txtCasRollBonus, "Bonus to the victor's casualty roll", 36);
    bonus->set_reading(whole_number<TextToInt>);
    add_labelled(*line, make_.label(controls_.Label(15)), bonus);
    line->addSpacing(make_.pixels(group_gap));
    auto* const plus = make_.check_box(controls_.chkPlus5, "+5 to the victor's casualty roll");
    line->addWidget(plus);
    line->addSpacing(make_.pixels(group_gap));
    auto* const minus = make_.check_box(controls_.chkMinus5, "-5 to the victor's casualty roll");
    line->addWidget(minus);
    line->addStretch();
    follow_box(controls_.chkPlus5, plus);
    follow_box(controls_.chkMinus5, minus);
    return line;
}

QLayout* CombatPage::victor_percent_line()
{
    auto* const line = make_.row(gap);
    auto* const words = make_.row(gap); // as wide as the label and the box above
    auto* const range = make_.label(controls_.lblCasRange, 0, type::caption);
    range->setAlignment(Qt::AlignCenter);
    words->addWidget(make_.label(controls_.Label(17)));
    words->addWidget(range, 1);
    auto* const holder = new QWidget;
    holder->setLayout(words);
    holder->setFixedWidth(make_.pixels(range_end));
    line->addWidget(holder);
    roll_share_ = make_.button(controls_.cmdRollVictorCas, "Roll within the victor's range", roll_width, field_height);
    line->addWidget(roll_share_);
    auto* const share =
        make_.number_box(controls_.txtVictorCasPercent, "Victor's casualties, percent of the loser's", 40);
    share->set_reading(whole_number<TextToInt>);
    line->addWidget(share);
    line->addWidget(make_.label(controls_.Label(14)));
    line->addWidget(make_.label(controls_.lblLoserPercent, 36));
    add_labelled(*line, make_.label(controls_.Label13),
                 make_.number_box(controls_.txtVictorCas, "Victor's casualties, percent", 48));
    line->addWidget(make_.label(controls_.Label(22)));
    line->addStretch();
    return line;
}

/// The line between the two accounts continues the casualties' line.
QWidget* CombatPage::description()
{
    constexpr int sheet_top = totals_top + CaptionFrame::caption_height;
    CaptionFrame* const frame = make_.frame(controls_.Frame9);
    auto* const column = new QVBoxLayout{frame};
    column->setContentsMargins(0, make_.span(totals_top, sheet_top), 0, 0);
    auto* const sheet =
        new DescriptionSheet{controls_, make_, sheet_top, casualties_top + CaptionFrame::caption_height, screen_end};
    sheet->setFixedSize(make_.pixels(column_width), make_.span(sheet_top, screen_end));
    column->addWidget(sheet);
    auto* const place = new QWidget;
    auto* const below = new QVBoxLayout{place};
    below->setContentsMargins(0, make_.pixels(totals_top), 0, 0);
    below->addWidget(frame);
    return place;
}

void CombatPage::show_army_names(std::array<QString, 2> const& names)
{
    for (std::size_t k = 0; k < names.size(); ++k) {
        QString const& name = names.at(k);
        if (sides_.at(k)->note() != name) signs_.loss_set(static_cast<int>(k)); // a new army
        names_.at(k)->set_whole_text(name.isEmpty() ? spoken_side(static_cast<int>(k)) : name);
        totals_.at(k)->set_description(name);
        sides_.at(k)->set_note(name);
    }
    band_->show_army_names(names);
    show_signs();
}

void CombatPage::focus_first_step() { roll_all_->setFocus(Qt::OtherFocusReason); }

void CombatPage::follow_battle()
{
    auto const when_shown = [this](Control& field, auto tell) {
        field.show = [this, tell, before = field.show] {
            if (before) before(); // empty for a button, which shows nothing
            tell(signs_);
            show_signs();
        };
    };
    for (int const Index : {0, 1}) {
        when_shown(controls_.txtResult(Index), [](BattleSigns& signs) { signs.result_set(); });
        when_shown(controls_.cmdApplyCasualties(Index),
                   [Index](BattleSigns& signs) { signs.casualties_applied(Index); });
        for (int row = 0; row < unit_rows; ++row) {
            when_shown(controls_.txtLoses(combat_row(Index, row)),
                       [Index](BattleSigns& signs) { signs.loss_set(Index); });
        }
    }
    when_shown(controls_.txtVictorCasRoll, [](BattleSigns& signs) { signs.casualty_roll_set(); });
    when_shown(controls_.txtVictorCasPercent, [](BattleSigns& signs) { signs.share_set(); });
    when_shown(controls_.txtLoserCasualty, [](BattleSigns& signs) { signs.loser_percentage_set(); });
    when_shown(controls_.txtVictorCas, [](BattleSigns& signs) { signs.victor_percentage_set(); });
    when_shown(controls_.cmdSimulate, [](BattleSigns& signs) { signs.battles_simulated(); });
    also_show(controls_.lblWinner, [this] {
        signs_.winner_set(shown_winner(controls_));
        show_signs();
    });
    also_show(controls_.lblWinBy, [this] { band_->show_winner(); });
}

/// When the user ticks a box, the box changes before its field does.
void CombatPage::follow_box(CheckBox& field, QCheckBox* box)
{
    field.show = [this, &field, box, before = field.show] {
        bool const by_roll = field.state() == 1 && !box->isChecked();
        before();
        if (by_roll) signs_.reroll_asked();
        if (controls_.chkPlus5.state() == 0 && controls_.chkMinus5.state() == 0) signs_.boxes_unchecked();
        show_signs();
    };
}

void CombatPage::show_signs()
{
    using enum BattleSigns::Reroll;
    // A tie has no victor, and a reroll would change nothing.
    auto const due = shown_winner(controls_) == tie ? none : signs_.reroll();
    set_strong(*roll_all_, due == none);
    set_strong(*roll_casualty_, due == casualty_roll);
    set_strong(*roll_share_, due == share);
    casualty_frame_->set_hint(due == none ? QString{} : "Reroll due: press Roll, then the Roll below it");
    set_ink(*note_, due == none ? Ink::dim : Ink::text);
    roll_frame_->set_hint(signs_.simulated() ? "This is the last of the simulated battles" : QString{});
    bool const rolled = shown_winner(controls_).has_value();
    for (EntryBox* const box : results_) set_ink(*box, rolled ? Ink::text : Ink::dim);
    for (SidePanel* const side : sides_) side->show_signs(signs_);
    band_->show_winner();
}

} // namespace warhost
