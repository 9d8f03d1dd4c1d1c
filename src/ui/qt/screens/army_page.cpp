#include "ui/qt/screens/army_page.h"

#include "army/modifier_options.h"
#include "ui/qt/screens/misc_panel.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/caption_frame.h"
#include "ui/qt/widgets/option_choice.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/value_box.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace warhost {

namespace {

constexpr int row_height = 20; // pixels of the base size, as all lengths here
constexpr int gap = 4;
constexpr int result_width = 50;
constexpr int narrow_result_width = 43; // in frames side by side, whose values have one digit
constexpr int left_width = 188;
constexpr int soldiers_width = 56;
constexpr int ratio_width = 54;
constexpr int bonus_width = 24;

constexpr int options_of(int category)
{
    return static_cast<int>(std::ranges::count(options, category, &Option::category));
}

// In the middle column stand four rows of frames, with so many options one under the other.
constexpr int middle_frames = 4;
constexpr int middle_options = options_of(0) + options_of(2) + options_of(3) + std::max(options_of(7), options_of(4));

} // namespace

ArmyPage::ArmyPage(ArmyControls& controls, Scale const& scale, QSize content, std::function<bool()> const& add_misc_row,
                   std::function<void(int)> const& show_help, QWidget* parent)
    : ScreenArea(parent),
      controls_(controls),
      make_(surface(), scale, row_height)
{
    name_after(controls.FrameArmy, *this);
    Frame::Box const& misc = controls.FrameMisc.box();
    int const top = scale.from_twips(misc.Top);
    int const middle_width = scale.from_twips(misc.Left) - make_.pixels(left_width) - 2 * make_.pixels(gap);
    int const frame_extra = make_.frame_margin() + make_.pixels(row_height);
    option_height_ = (content.height() - top - (middle_frames - 1) * make_.pixels(gap) - middle_frames * frame_extra) /
                     middle_options;

    auto* const content_area = new QWidget{&surface()};
    content_area->setFixedSize(content);
    auto* const screen = new QGridLayout{content_area};
    screen->setContentsMargins(0, 0, 0, 0);
    screen->setHorizontalSpacing(make_.pixels(gap));
    screen->setVerticalSpacing(0);
    screen->setRowMinimumHeight(0, top);
    screen->setRowStretch(1, 1);
    screen->setColumnMinimumWidth(0, make_.pixels(left_width));
    screen->setColumnMinimumWidth(1, middle_width);
    screen->setColumnStretch(2, 1); // the misc panel's room
    screen->addLayout(top_line(), 0, 0, 1, 3);
    screen->addLayout(left_column(), 1, 0);
    screen->addLayout(middle_column(), 1, 1);
    make_.set_tab_order();

    misc_panel_ = new MiscPanel{controls, scale, add_misc_row, show_help, &surface()};
}

QLayout* ArmyPage::top_line()
{
    auto* const line = make_.line(6);
    auto* const name = make_.text_box(controls_.txtArmyName, "Name of army", 260);
    name->setPlaceholderText("Type a name, or load an army");
    add_labelled(*line, make_.label(controls_.Label(0)), name);
    line->addWidget(make_.button(controls_.cmdSaveArmy, "Save army", 60));
    line->addWidget(make_.button(controls_.cmdLoadArmy, "Load army", 60));
    line->addStretch();
    add_labelled(*line, make_.label(controls_.Label4),
                 make_.number_box(controls_.txtTotal, "Total of modifiers, this screen only", 60));
    return line;
}

QLayout* ArmyPage::left_column()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(make_.pixels(gap));
    column->addWidget(units(), 1);
    column->addLayout(ratio_line());
    column->addWidget(category(5, controls_.Frame5, result_width));
    column->addWidget(category(1, controls_.Frame1, result_width, &controls_.Label(7)));
    column->addWidget(experience());
    return column;
}

QLayout* ArmyPage::middle_column()
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(make_.pixels(gap));
    for (auto const& [index, frame] :
         {std::pair{0, &controls_.FrameDiscipline}, {2, &controls_.Frame2}, {3, &controls_.Frame3}}) {
        column->addWidget(category(index, *frame, result_width));
        column->addStretch();
    }
    auto* const pair = make_.line(gap);
    pair->addWidget(category(7, controls_.Frame11, narrow_result_width), 15);
    pair->addWidget(category(4, controls_.Frame4, narrow_result_width), 16); // the longer caption
    column->addLayout(pair);
    return column;
}

QWidget* ArmyPage::units()
{
    CaptionFrame* const frame = make_.frame(controls_.FrameUnits);
    auto* const grid = new QGridLayout{frame};
    grid->setContentsMargins(0, frame->caption_height(), 0, 0);
    grid->setHorizontalSpacing(make_.pixels(gap));
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(1, 1);
    auto* const heads = new QHBoxLayout;
    heads->addWidget(make_.label(controls_.Label1));
    heads->addStretch();
    heads->addWidget(make_.label(controls_.Label2));
    grid->addLayout(heads, 0, 1, 1, 2);

    for (int row = 0; row < unit_rows; ++row) {
        grid->setRowStretch(row + 1, 1);
        QString const unit = QString{"Unit %1, "}.arg(row + 1);
        auto* const number = make_.label(controls_.Label(row < 6 ? row + 1 : row + 17)); // 1 to 6, 23, 24
        auto* const type = make_.text_box(controls_.txtUnitType(row), unit + "type");
        number->setBuddy(type);
        grid->addWidget(number, row + 1, 0);
        grid->addWidget(type, row + 1, 1);
        grid->addWidget(make_.number_box(controls_.txtUnitNum(row), unit + "soldiers", soldiers_width), row + 1, 2);
    }
    auto* const total_label = make_.label(controls_.Label3);
    auto* const total = make_.number_box(controls_.txtTotalNo, "Total number of soldiers", soldiers_width);
    total_label->setBuddy(total);
    grid->setRowStretch(unit_rows + 1, 1);
    grid->addWidget(total_label, unit_rows + 1, 0, 1, 2, Qt::AlignRight);
    grid->addWidget(total, unit_rows + 1, 2);
    return frame;
}

QLayout* ArmyPage::ratio_line()
{
    auto* const line = make_.line(gap);
    line->setContentsMargins(make_.pixels(gap), 0, make_.pixels(gap), 0);
    line->addWidget(make_.label(controls_.Label12));
    line->addWidget(make_.label(controls_.lblRatio, ratio_width));
    line->addWidget(make_.label(controls_.Label14));
    line->addWidget(make_.label(controls_.lblRatioBonus, bonus_width));
    return line;
}

QWidget* ArmyPage::category(int index, Frame& frame, int width, TextLabel* note)
{
    CaptionFrame* const box = make_.frame(frame);
    auto* const column = new QVBoxLayout{box};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    QString const category_name = to_qt(frame.caption());
    column->addWidget(make_.value_box(controls_.cmbOpt(index), category_name + " result", width), 0, Qt::AlignRight);
    if (note != nullptr) {
        QLabel* const label = make_.label(*note);
        label->setFixedHeight(option_height_);
        column->addWidget(label);
    }
    for (auto const& row : options) {
        if (row.category != index) continue;
        column->addWidget(
            make_.option(controls_.opt(row.index), category_name + ": " + to_qt(row.caption), box, option_height_));
    }
    column->addStretch();
    return box;
}

QWidget* ArmyPage::experience()
{
    CaptionFrame* const frame = make_.frame(controls_.Frame10);
    auto* const lines = new QVBoxLayout{frame};
    lines->setContentsMargins(0, frame->caption_height(), 0, 0);
    lines->setSpacing(0);

    auto* const first = new QHBoxLayout;
    auto* const result = make_.value_box(controls_.cmbOpt(6), "Experience result", 0);
    result->setParent(this);
    result->hide(); // a file may fill it, but nobody sees it
    auto* const level_label = make_.label(controls_.Label15);
    auto* const level = make_.value_box(controls_.cmbLevel, "Average troop level", 60);
    level_label->setBuddy(level);
    first->addWidget(level_label);
    first->addStretch();
    first->addWidget(level);
    lines->addLayout(first);

    auto* const second = make_.line(gap);
    second->addWidget(make_.label(controls_.Label16));
    second->addWidget(make_.label(controls_.lblOtherLevel, 64));
    second->addWidget(make_.label(controls_.Label18));
    second->addWidget(make_.label(controls_.lblLevelBonus, bonus_width));
    second->addStretch();
    lines->addLayout(second);
    return frame;
}

} // namespace warhost
