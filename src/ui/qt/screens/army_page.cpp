#include "ui/qt/screens/army_page.h"

#include "army/modifier_options.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/screens/misc_panel.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/caption_frame.h"
#include "ui/qt/widgets/entry_box.h"
#include "ui/qt/widgets/number_reading.h"
#include "ui/qt/widgets/option_choice.h"
#include "ui/qt/widgets/table.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/value_box.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <array>

namespace warhost {

namespace {

// Pixels of the base size. Heights count from the top of the screen.
constexpr int field_height = 20;
constexpr int head_box_height = 18;
constexpr int row_height = 18;
constexpr int left_width = 186;
constexpr int column_gap = 8;
constexpr int middle_left = left_width + column_gap;
constexpr int middle_width = 222;
constexpr int result_width = 48;
constexpr int narrow_result_width = 40; // in frames side by side
constexpr int units_top = 24;
constexpr int units_end = 246;
constexpr int ratio_end = 264;
constexpr int magic_top = 276;
constexpr int quality_top = 402;
constexpr int experience_top = 510;
constexpr int columns_end = 588;
constexpr int armor_top = 132;
constexpr int attack_top = 276;
constexpr int pair_top = 438;

constexpr int options_of(int category)
{
    return static_cast<int>(std::ranges::count(options, category, &Option::category));
}

/// The end of a category's section with the given number of rows.
constexpr int end_of(int top, int rows) { return top + CaptionFrame::contents_top + rows * row_height; }
static_assert(end_of(pair_top, std::max(options_of(4), options_of(7))) == columns_end);

/// Gives the labels of a line one height, so that their texts are level after every rounding.
void level_texts(QBoxLayout const& line, int height)
{
    for (int k = 0; k < line.count(); ++k) {
        if (auto* const label = qobject_cast<QLabel*>(line.itemAt(k)->widget())) label->setFixedHeight(height);
    }
}

} // namespace

ArmyPage::ArmyPage(ArmyControls& controls, Reading const& level_reading, Scale const& scale, QSize content,
                   std::function<bool()> const& add_misc_row, QWidget* parent)
    : ScreenArea(parent),
      controls_(controls),
      make_(surface(), scale)
{
    name_after(controls.FrameArmy, *this);
    auto* const content_area = new QWidget{&surface()};
    content_area->setFixedSize(content);
    auto* const screen = new QGridLayout{content_area};
    screen->setContentsMargins(0, 0, 0, 0);
    screen->setSpacing(0);
    screen->setRowMinimumHeight(0, make_.pixels(units_top));
    screen->setRowStretch(1, 1);
    screen->setColumnMinimumWidth(0, make_.pixels(left_width));
    screen->setColumnMinimumWidth(1, make_.span(left_width, middle_left));
    screen->setColumnMinimumWidth(2, make_.span(middle_left, middle_left + middle_width));
    screen->setColumnStretch(3, 1); // the misc panel's room
    screen->addLayout(top_line(scale), 0, 0, 1, 4, Qt::AlignTop);
    screen->addLayout(left_column(level_reading), 1, 0);
    screen->addLayout(middle_column(), 1, 2);
    make_.set_tab_order();

    misc_panel_ = new MiscPanel{controls, scale, add_misc_row, &surface()};
}

/// The right edge of the total is that of the values in the misc panel.
QLayout* ArmyPage::top_line(Scale const& scale)
{
    auto* const line = make_.row(4);
    auto* const name = make_.name_box(controls_.txtArmyName, "Name of army", 252);
    name->setPlaceholderText("Type a name, or load an army");
    add_labelled(*line, make_.label(controls_.Label(0)), name);
    line->addSpacing(make_.pixels(4));
    line->addWidget(make_.button(controls_.cmdSaveArmy, "Save army", 56, field_height));
    line->addWidget(make_.button(controls_.cmdLoadArmy, "Load army", 56, field_height));
    line->addStretch();
    auto* const total = make_.number_box(controls_.txtTotal, "Total of modifiers, this screen only", 49);
    total->set_type(type::total);
    add_labelled(*line, make_.label(controls_.Label4), total);
    RowPlace const& value = controls_.cmbMisc(0).place;
    int const end = scale.from_twips(controls_.FrameMisc.box().Left + double{value.Left} + double{value.Width});
    line->setContentsMargins(0, 0, surface().findChild<QWidget*>()->width() - end, 0);
    return line;
}

QLayout* ArmyPage::left_column(Reading const& level_reading)
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(0);
    QWidget* const units_frame = units();
    units_frame->setFixedHeight(make_.span(units_top, units_end));
    column->addWidget(units_frame);
    column->addLayout(ratio_line());
    column->addSpacing(make_.span(ratio_end, magic_top));
    column->addWidget(category(5, controls_.Frame5, magic_top, result_width));
    column->addSpacing(make_.span(end_of(magic_top, options_of(5)), quality_top));
    column->addWidget(category(1, controls_.Frame1, quality_top, result_width, &controls_.Label(7)));
    column->addSpacing(make_.span(end_of(quality_top, options_of(1) + 1), experience_top));
    column->addWidget(experience(level_reading));
    column->addStretch();
    return column;
}

QLayout* ArmyPage::middle_column()
{
    struct Section {
        int index, top;
        Frame& frame;
    };
    std::array const sections{Section{0, units_top, controls_.FrameDiscipline}, Section{2, armor_top, controls_.Frame2},
                              Section{3, attack_top, controls_.Frame3}};
    auto* const column = new QVBoxLayout;
    column->setSpacing(0);
    int end = units_top;
    for (auto const& [index, top, frame] : sections) {
        column->addSpacing(make_.span(end, top));
        column->addWidget(category(index, frame, top, result_width));
        end = end_of(top, options_of(index));
    }
    column->addSpacing(make_.span(end, pair_top));
    auto* const pair = make_.row(column_gap);
    pair->addWidget(category(7, controls_.Frame11, pair_top, narrow_result_width), 102);
    pair->addWidget(category(4, controls_.Frame4, pair_top, narrow_result_width), 112);
    column->addLayout(pair);
    column->addStretch();
    return column;
}

QWidget* ArmyPage::units()
{
    constexpr int table_top = units_top + CaptionFrame::contents_top;
    constexpr int head = 17; // heights include the line below
    constexpr int row = 20;
    CaptionFrame* const frame = make_.frame(controls_.FrameUnits);
    auto* const contents = new QVBoxLayout{frame};
    contents->setContentsMargins(0, make_.span(units_top, table_top), 0, 0);
    auto* const table = new Table{make_.line()};
    contents->addWidget(table, 0, Qt::AlignTop);
    QGridLayout& grid = table->grid();
    grid.setColumnMinimumWidth(0, make_.pixels(24));
    grid.setColumnStretch(1, 1);
    grid.setColumnMinimumWidth(2, make_.pixels(60));
    int const side = make_.pixels(5);
    int const number_side = make_.pixels(7);

    auto* const heads = make_.row(2);
    heads->setContentsMargins(make_.pixels(28), 0, number_side, 0);
    for (TextLabel* const field : {&controls_.Label1, &controls_.Label2}) {
        QLabel* const label = make_.label(*field);
        set_ink(*label, Ink::dim);
        if (field == &controls_.Label2) heads->addStretch();
        heads->addWidget(label);
    }
    grid.addLayout(heads, 0, 0, 1, 3);
    int const top = table_top + 1;
    grid.setRowMinimumHeight(0, make_.span(top, top + head) - make_.line());

    for (int k = 0; k < unit_rows; ++k) {
        int const from = top + head + k * row;
        grid.setRowMinimumHeight(k + 1, make_.span(from, from + row) - make_.line());
        QString const unit = QString{"Unit %1, "}.arg(k + 1);
        auto* const number = make_.label(controls_.Label(k < 6 ? k + 1 : k + 17)); // 1 to 6, 23, 24
        number->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        number->setContentsMargins(side, 0, 0, 0);
        auto* const type = make_.name_cell(controls_.txtUnitType(k), unit + "type");
        auto* const soldiers = make_.number_cell(controls_.txtUnitNum(k), unit + "soldiers");
        soldiers->set_reading(whole_number<TextToLong>);
        number->setBuddy(type);
        grid.addWidget(number, k + 1, 0);
        grid.addWidget(type, k + 1, 1);
        grid.addWidget(soldiers, k + 1, 2);
        auto const dim_when_unused = [number, soldiers, &name = controls_.txtUnitType(k),
                                      &count = controls_.txtUnitNum(k)] {
            Ink const ink = name.text().empty() && TextToLong(count.text()) == 0 ? Ink::dim : Ink::text;
            set_ink(*number, ink);
            set_ink(*soldiers, ink);
        };
        also_show(controls_.txtUnitType(k), dim_when_unused);
        also_show(controls_.txtUnitNum(k), dim_when_unused);
    }
    propose_units();

    auto* const total_label = make_.label(controls_.Label3);
    total_label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    total_label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    total_label->setContentsMargins(0, 0, side, 0);
    auto* const total = make_.number_cell(controls_.txtTotalNo, "Total number of soldiers");
    total->set_type(type::caption);
    total_label->setBuddy(total);
    int const foot = top + head + unit_rows * row;
    grid.setRowMinimumHeight(unit_rows + 1, make_.span(foot, foot + row) - make_.line());
    grid.addWidget(total_label, unit_rows + 1, 0, 1, 2);
    grid.addWidget(total, unit_rows + 1, 2);
    return frame;
}

/// The first row shows an example while no row is used.
void ArmyPage::propose_units()
{
    auto* const first = surface().findChild<EntryBox*>(to_qt(controls_.txtUnitType(0).name()));
    auto const propose = [this, first] {
        bool used = false;
        for (int row = 0; row < unit_rows; ++row) {
            used =
                used || !controls_.txtUnitType(row).text().empty() || TextToLong(controls_.txtUnitNum(row).text()) != 0;
        }
        first->setPlaceholderText(used ? QString{} : QString{"Pikes, riders"});
    };
    for (int row = 0; row < unit_rows; ++row) {
        also_show(controls_.txtUnitType(row), propose);
        also_show(controls_.txtUnitNum(row), propose);
    }
}

QLayout* ArmyPage::ratio_line()
{
    auto* const line = make_.row(4);
    QLabel* const bonus = make_.label(controls_.lblRatioBonus, 0, type::caption);
    bonus->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    line->setContentsMargins(0, 0, make_.pixels(5), 0);
    line->addWidget(make_.label(controls_.Label12));
    QLabel* const ratio = make_.label(controls_.lblRatio, 48);
    ratio->setAlignment(Qt::AlignCenter);
    line->addWidget(ratio);
    line->addWidget(make_.label(controls_.Label14));
    line->addWidget(bonus, 1);
    level_texts(*line, make_.span(units_end, ratio_end));
    return line;
}

ValueBox* ArmyPage::result_box(ComboBox& field, QString const& spoken, int width, int height)
{
    ValueBox* const made = make_.value_box(field, spoken, width, height);
    made->entry().set_reading(whole_number<TextToLong>);
    made->entry().set_type(type::caption);
    also_show(field, [&field, made] {
        set_ink(made->entry(), field.list_size() > 0 ? Ink::text : Ink::dim);
        made->update();
    });
    return made;
}

QWidget* ArmyPage::category(int index, Frame& frame, int top, int width, TextLabel* note)
{
    CaptionFrame* const box = make_.frame(frame);
    box->keep_free(make_.pixels(width));
    auto* const column = new QVBoxLayout{box};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    QString const category_name = to_qt(frame.caption());
    int const box_height = make_.span(top, top + head_box_height);
    column->addWidget(result_box(controls_.cmbOpt(index), category_name + " result", width, box_height), 0,
                      Qt::AlignRight);
    int at = top + CaptionFrame::contents_top;
    column->addSpacing(make_.span(top, at) - box_height);
    auto const next_height = [&] {
        at += row_height;
        return make_.span(at - row_height, at);
    };
    if (note != nullptr) {
        QLabel* const label = make_.label(*note);
        set_ink(*label, Ink::dim);
        label->setFixedHeight(next_height());
        column->addWidget(label);
    }
    for (auto const& row : options) {
        if (row.category != index) continue;
        column->addWidget(
            make_.option(controls_.opt(row.index), category_name + ": " + to_qt(row.caption), box, next_height()));
    }
    column->addStretch();
    return box;
}

QWidget* ArmyPage::experience(Reading const& level_reading)
{
    CaptionFrame* const frame = make_.frame(controls_.Frame10);
    frame->setFixedHeight(make_.span(experience_top, columns_end));
    auto* const lines = new QVBoxLayout{frame};
    lines->setContentsMargins(0, make_.pixels(26), 0, 0);
    lines->setSpacing(0);

    auto* const first = new QHBoxLayout;
    auto* const result = make_.value_box(controls_.cmbOpt(6), "Experience result", 0, 0);
    result->setParent(this);
    result->hide(); // never visible, although a file may fill it
    auto* const level_label = make_.label(controls_.Label15);
    auto* const level = make_.value_box(controls_.cmbLevel, "Average troop level", 52, make_.pixels(field_height));
    level->entry().set_reading(level_reading);
    level_label->setBuddy(level);
    first->addWidget(level_label);
    first->addStretch();
    first->addWidget(level);
    lines->addLayout(first);
    lines->addStretch();

    auto* const second = make_.row(8);
    second->setContentsMargins(0, 0, make_.pixels(5), 0);
    auto* const bonus = make_.label(controls_.lblLevelBonus, 0, type::caption);
    bonus->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* const other = make_.label(controls_.lblOtherLevel, 64);
    other->setAlignment(Qt::AlignCenter);
    second->addWidget(make_.label(controls_.Label16));
    second->addWidget(other);
    second->addWidget(make_.label(controls_.Label18));
    second->addWidget(bonus, 1);
    level_texts(*second, make_.pixels(row_height));
    lines->addLayout(second);
    return frame;
}

} // namespace warhost
