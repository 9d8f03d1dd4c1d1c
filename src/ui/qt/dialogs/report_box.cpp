#include "ui/qt/dialogs/report_box.h"

#include "ui/qt/dialogs/battle_charts.h"
#include "ui/qt/widgets/text.h"
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

ReportBox::ReportBox(Message const& report, Tally const& tally, Odds const& odds, NumberFormat const& format,
                     QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(to_qt(report.title));
    if (parent != nullptr) setFont(parent->font()); // the window may have fitted it to the screen
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto* const column = new QVBoxLayout{this};
    column->addWidget(selectable_text(report.text, "Report"));
    column->addWidget(new OutcomeBar{tally, format});
    auto* const histograms = new QHBoxLayout; // side by side, so that the whole fits a small screen
    for (int const Index : {0, 1}) histograms->addWidget(new CasualtyHistogram{Index, tally, odds, format});
    column->addLayout(histograms);
    auto* const long_run = selectable_text(long_run_text(odds, format), "Exact odds");
    QFont font = long_run->font();
    font.setWeight(QFont::DemiBold);
    long_run->setFont(font);
    column->addWidget(long_run);
    column->addWidget(selectable_text(sample_text(tally, format), "How far the sample may be off"));
    auto* const buttons = new QDialogButtonBox{QDialogButtonBox::Ok};
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

} // namespace warhost
