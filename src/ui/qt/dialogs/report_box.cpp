#include "ui/qt/dialogs/report_box.h"

#include "ui/qt/dialogs/battle_charts.h"
#include "ui/qt/dialogs/dialog_parts.h"
#include "ui/qt/look/ink.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"
#include "ui/qt/widgets/text.h"
#include "ui/simulation_report.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>

namespace warhost {

ReportBox::ReportBox(Message const& report, Tally const& tally, Odds const& odds, NumberFormat const& format,
                     QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(to_qt(report.title));
    constexpr double width = 15300; // twips, including the window's frame
    constexpr double height = 6900;
    setFont(fitting_font(parent != nullptr ? parent->font() : font(), width, height, screen()->availableSize()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowModality(Qt::WindowModal);

    auto const text = [&](std::string const& words, char const* spoken, Type type) {
        QLabel* const label = selectable_text(to_qt(words).remove('\r'), spoken);
        set_type(*label, font(), type);
        texts_.push_back(label);
        return label;
    };
    auto* const result = text(report.text, "Report", type::reading);
    auto* const long_run = text(long_run_text(odds, format), "Exact odds", type::odds);
    auto* const sample = text(sample_text(tally, format), "Likely error of the sample", type::plain);
    set_ink(*sample, Ink::dim);

    auto* const top = new QHBoxLayout;
    int const gap = scale_of(this).from_base(12);
    top->setSpacing(gap);
    top->addWidget(result, 0, Qt::AlignTop);
    top->addWidget(new Rule{Qt::Vertical, this});
    top->addLayout(pictures(tally, odds, format));
    auto* const odds_lines = new QVBoxLayout;
    odds_lines->setSpacing(0);
    odds_lines->addWidget(long_run);
    odds_lines->addWidget(sample);
    auto* const bottom = new QHBoxLayout;
    bottom->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, this));
    bottom->addLayout(odds_lines);
    bottom->addStretch();
    add_button(*bottom, "Copy", &ReportBox::copy_all);
    auto* const ok = add_button(*bottom, "OK", &ReportBox::accept);

    auto* const rows = new QVBoxLayout{this};
    rows->setSpacing(gap);
    int const ring = move_ring_into_margin(*rows, *result);
    auto* const line = new QHBoxLayout;
    line->setContentsMargins(ring, 0, 0, 0);
    line->addWidget(new Rule{Qt::Horizontal, this});
    rows->addLayout(top);
    rows->addLayout(line);
    rows->addLayout(bottom);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    ok->setDefault(true);
    ok->setFocus();
    connect(new QShortcut{QKeySequence::Copy, this}, &QShortcut::activated, this, &ReportBox::copy_selected_or_all);
}

QLayout* ReportBox::pictures(Tally const& tally, Odds const& odds, NumberFormat const& format)
{
    auto* const column = new QVBoxLayout;
    column->setSpacing(scale_of(this).from_base(8));
    column->addWidget(new OutcomeBar{tally, format});
    auto* const histograms = new QHBoxLayout; // side by side, so that the report fits on a small screen
    histograms->setSpacing(scale_of(this).from_base(6));
    for (int const Index : {0, 1}) histograms->addWidget(new CasualtyHistogram{Index, tally, odds, format});
    column->addLayout(histograms);
    return column;
}

QPushButton* ReportBox::add_button(QBoxLayout& row, char const* caption, void (ReportBox::*act)())
{
    auto* const button = new QPushButton{caption};
    connect(button, &QPushButton::clicked, this, act);
    row.addWidget(button);
    return button;
}

void ReportBox::copy_selected_or_all()
{
    for (QLabel const* const text : texts_) {
        QString const selected = text->selectedText().replace(QChar::ParagraphSeparator, '\n');
        if (!selected.isEmpty()) return QGuiApplication::clipboard()->setText(selected);
    }
    copy_all();
}

void ReportBox::copy_all()
{
    QStringList words;
    for (QLabel const* const text : texts_) words << text->text();
    QGuiApplication::clipboard()->setText(words.join('\n'));
}

} // namespace warhost
