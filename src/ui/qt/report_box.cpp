#include "ui/qt/report_box.h"

#include "ui/qt/battle_charts.h"
#include "ui/qt/text.h"
#include "ui/simulation_report.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace warhost {

namespace {

QLabel* selectable_text(std::string const& text, char const* name)
{
    auto* const label = new QLabel{to_qt(text).remove('\r')};
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setAccessibleName(name);
    return label;
}

} // namespace

ReportBox::ReportBox(MessageBox const& report, Tally const& tally, NumberFormat const& format, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(to_qt(report.title));
    if (parent != nullptr) setFont(parent->font()); // the window may have fitted it to the screen
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto const percent = [&](double value) { return to_qt(one_decimal(value, format)); };
    auto const part = [&](BattleWinner winner, QString const& what, Qt::BrushStyle pattern) {
        double const share = tally.percent_won(winner);
        return OutcomePart{what + " " + percent(share) + "%", share, pattern};
    };
    auto const histogram = [&](int Index, QString const& side) {
        double const mean = tally.mean_casualties(Index);
        return new CasualtyHistogram{side, tally.histogram(Index), mean, percent(mean)};
    };

    auto* const column = new QVBoxLayout{this};
    column->addWidget(selectable_text(report.text, "Report"));
    column->addWidget(new OutcomeBar{{part(side_a_won, "Side A wins", Qt::SolidPattern), part(tie, "Tied", Qt::NoBrush),
                                      part(side_b_won, "Side B wins", Qt::BDiagPattern)}});
    auto* const histograms = new QHBoxLayout; // side by side, so that the whole fits a small screen
    histograms->addWidget(histogram(0, "Side A"));
    histograms->addWidget(histogram(1, "Side B"));
    column->addLayout(histograms);
    column->addWidget(selectable_text(simulation_margin(tally, format), "How far the numbers may be off"));
    auto* const buttons = new QDialogButtonBox{QDialogButtonBox::Ok};
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

} // namespace warhost
