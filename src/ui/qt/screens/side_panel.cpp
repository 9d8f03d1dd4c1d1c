#include "ui/qt/screens/side_panel.h"

#include "army/armies.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/screens/winner_band.h"
#include "ui/qt/widgets/binding.h"
#include "ui/qt/widgets/entry_box.h"
#include "ui/qt/widgets/number_reading.h"
#include "ui/qt/widgets/table.h"
#include "ui/qt/widgets/widget_maker.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace warhost {

namespace {

// Pixels of the base size.
constexpr int number_width = 60;
constexpr int head_height = 18; // of the table; includes the line below, like the rows
constexpr int row_height = 19;
constexpr int above_foot = 6;
constexpr int button_width = 124;
constexpr int button_height = 22;

} // namespace

SidePanel::SidePanel(CombatControls& controls, WidgetMaker& make, int Index, double top, QWidget* parent)
    : CaptionFrame(parent),
      controls_(controls),
      Index_(Index),
      share_(new QLabel)
{
    bind(Index == 0 ? controls.frmSideA : controls.Frame8, *this);
    set_side(Index);
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins(0, make.span(top, top + CaptionFrame::contents_top), 0, 0);
    column->setSpacing(0);
    make_table(make, top + CaptionFrame::contents_top);
    double const table_end = top + CaptionFrame::contents_top + 1 + head_height + unit_rows * row_height;
    column->addSpacing(make.span(table_end, table_end + above_foot));

    auto* const foot = make.row(8);
    share_->setTextFormat(Qt::PlainText);
    share_->setFont(make.font(type::caption));
    set_ink(*share_, ink_of_side(Index));
    apply_ = make.button(controls.cmdApplyCasualties(Index), "Apply casualties to " + to_qt(side_name(Index)),
                         button_width, button_height);
    foot->addWidget(share_, 1);
    foot->addWidget(apply_);
    column->addLayout(foot);
    column->addStretch();
}

void SidePanel::make_table(WidgetMaker& make, double top)
{
    auto* const table = new Table{make.line()};
    layout()->addWidget(table);
    QGridLayout& grid = table->grid();
    grid.setColumnStretch(0, 1);
    for (int const column : {1, 2}) grid.setColumnMinimumWidth(column, make.pixels(number_width));

    std::array const heads = Index_ == 0 ? std::array{13, 11, 12} : std::array{19, 21, 20};
    double at = top + 1;
    for (int column = 0; column < static_cast<int>(heads.size()); ++column) {
        QLabel* const label = make.label(controls_.Label(heads.at(static_cast<std::size_t>(column))));
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        label->setAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
        label->setContentsMargins(make.pixels(5), 0, make.pixels(7), 0);
        set_ink(*label, Ink::dim);
        grid.addWidget(label, 0, column);
    }
    grid.setRowMinimumHeight(0, make.span(at, at + head_height) - make.line());
    at += head_height;
    for (int row = 0; row < unit_rows; ++row, at += row_height) {
        int const field = combat_row(Index_, row);
        auto const k = static_cast<std::size_t>(row);
        QString const unit = QString{"%1, unit %2, "}.arg(to_qt(side_name(Index_))).arg(row + 1);
        grid.setRowMinimumHeight(row + 1, make.span(at, at + row_height) - make.line());
        grid.addWidget(make.name_cell(controls_.txtAName(field), unit + "name"), row + 1, 0);
        counts_.at(k) = make.number_cell(controls_.txtANum(field), unit + "had");
        counts_.at(k)->set_reading(whole_number<TextToLong>);
        losses_.at(k) = make.number_cell(controls_.txtLoses(field), unit + "loses");
        losses_.at(k)->set_reading(whole_number<TextToLong>);
        grid.addWidget(counts_.at(k), row + 1, 1);
        grid.addWidget(losses_.at(k), row + 1, 2);
    }
    for (int row = 0; row < unit_rows; ++row) {
        int const field = combat_row(Index_, row);
        auto const show = [this, row] { show_row(row); };
        also_show(controls_.txtAName(field), show);
        also_show(controls_.txtANum(field), show);
        also_show(controls_.txtLoses(field), show);
    }
}

void SidePanel::show_row(int row)
{
    int const field = combat_row(Index_, row);
    EntryBox& count = *counts_.at(static_cast<std::size_t>(row));
    EntryBox& loss = *losses_.at(static_cast<std::size_t>(row));
    bool const used = !controls_.txtAName(field).text().empty() || TextToLong(controls_.txtANum(field).text()) != 0;
    set_ink(count, used ? Ink::text : Ink::dim);
    bool const counts = TextToLong(controls_.txtLoses(field).text()) != 0 && !applied_;
    set_ink(loss, counts ? ink_of_side(Index_) : Ink::dim);
    loss.set_type(counts ? type::caption : type::plain);
}

void SidePanel::show_signs(BattleSigns const& signs)
{
    if (applied_ != signs.applied(Index_)) {
        applied_ = signs.applied(Index_);
        for (int row = 0; row < unit_rows; ++row) show_row(row);
    }
    QString const text = share(signs);
    if (text == share_->text()) return;
    share_->setText(text);
    apply_->setAccessibleDescription(text);
}

QString SidePanel::share(BattleSigns const& signs) const
{
    if (signs.applied(Index_)) return "\u2713 Applied";
    auto const winner = shown_winner(controls_);
    if (!winner) return {};
    bool const loses = loser_index(*winner) == Index_;
    if (!loses && !signs.victor_known()) return {};
    QString const who = *winner == tie ? "Tie: loses" : loses ? "Loser loses" : "Victor loses";
    TextBox const& percentage = loses ? controls_.txtLoserCasualty : controls_.txtVictorCas;
    return who + ' ' + beginning_of(percentage.text()) + '%';
}

} // namespace warhost
