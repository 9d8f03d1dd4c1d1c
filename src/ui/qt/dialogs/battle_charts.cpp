#include "ui/qt/dialogs/battle_charts.h"

#include "army/armies.h"
#include "ui/qt/widgets/text.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace warhost {

namespace {

constexpr int percent_marks = 10; // along the lower axis
constexpr int bar_width = 3;      // in a tenth of the font's height

/// A step of 1, 2 or 5 times a power of ten that cuts `highest` into at most four parts.
double round_step(double highest)
{
    double const power = std::pow(10.0, std::floor(std::log10(std::max(highest, 1e-6) / 4)));
    for (double const factor : {1.0, 2.0, 5.0}) {
        if (highest <= 4 * factor * power) return factor * power;
    }
    return 10 * power;
}

QString percent_label(double value) { return QLocale::system().toString(value, 'g', 3) + "%"; }

void prefer_fixed_height(QWidget& widget) { widget.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed); }

} // namespace

CasualtyHistogram::CasualtyHistogram(int Index, Tally const& tally, Odds const& odds, NumberFormat const& format,
                                     QWidget* parent)
    : QWidget(parent),
      title_(to_qt(side_name(Index)) + " casualties: share of the battles by percent lost (outline: in the long run)"),
      mean_text_(to_qt(one_decimal(tally.mean_casualties(Index), format))),
      mean_(tally.mean_casualties(Index))
{
    auto const battles = tally.histogram(Index);
    auto const chances = odds.histogram(Index);
    for (std::size_t percent = 0; percent < battles.size(); ++percent) {
        shares_.at(percent) = 100 * static_cast<double>(battles.at(percent)) / static_cast<double>(tally.battles());
        exact_.at(percent) = 100 * chances.at(percent);
    }
    auto const* const most = std::max_element(shares_.begin(), shares_.end());
    double const highest = std::max(*most, *std::max_element(exact_.begin(), exact_.end()));
    step_ = round_step(highest);
    steps_ = static_cast<int>(std::ceil(highest / step_));
    prefer_fixed_height(*this);
    setAccessibleName(title_);
    setAccessibleDescription(QString{"Histogram. Mean %1%. The most frequent loss is %2%, in %3% of the battles. The "
                                     "outline shows the long run."}
                                 .arg(mean_text_)
                                 .arg(most - shares_.begin())
                                 .arg(to_qt(one_decimal(*most, format))));
}

QSize CasualtyHistogram::sizeHint() const
{
    int const line = fontMetrics().height();
    return {(highest_share + 1) * line * bar_width / 10 + line * 4, line * 10};
}

void CasualtyHistogram::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect{0, 0, width(), fontMetrics().height()}, Qt::AlignLeft, title_);
    draw_axes(painter);
    draw_bars(painter);
    draw_outline(painter);
    draw_mean(painter);
}

QRect CasualtyHistogram::plot() const
{
    int const line = fontMetrics().height();
    return rect().adjusted(fontMetrics().horizontalAdvance("100% "), line * 5 / 2, -line, -line * 2);
}

int CasualtyHistogram::x_of(double percent) const
{
    return plot().left() + qRound(plot().width() * (percent + 0.5) / (highest_share + 1));
}

int CasualtyHistogram::y_of(double share) const
{
    return plot().bottom() + 1 - qRound(plot().height() * share / (step_ * steps_));
}

void CasualtyHistogram::draw_axes(QPainter& painter) const
{
    int const line = fontMetrics().height();
    QRect const area = plot();
    for (int mark = 0; mark <= steps_; ++mark) {
        double const share = mark * step_;
        int const y = y_of(share);
        painter.setPen(palette().color(QPalette::Mid));
        painter.drawLine(area.left(), y, area.right(), y);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect{0, y - line / 2, area.left() - line / 3, line}, Qt::AlignRight | Qt::AlignVCenter,
                         percent_label(share));
    }
    for (int percent = 0; percent <= highest_share; percent += percent_marks) {
        int const x = x_of(percent);
        painter.drawLine(x, area.bottom() + 1, x, area.bottom() + 1 + line / 4);
        painter.drawText(QRect{x - line * 2, area.bottom() + line / 3, line * 4, line}, Qt::AlignHCenter,
                         QString::number(percent));
    }
}

void CasualtyHistogram::draw_bars(QPainter& painter) const
{
    int const bottom = plot().bottom() + 1;
    for (int percent = 0; percent <= highest_share; ++percent) {
        double const share = shares_.at(static_cast<std::size_t>(percent));
        if (share <= 0) continue;
        int const left = x_of(percent - 0.5);
        int const width = std::max(x_of(percent + 0.5) - left - 1, 1);
        int const height = std::max(bottom - y_of(share), 1); // the rarest loss shows
        painter.fillRect(left, bottom - height, width, height, palette().color(QPalette::Highlight));
    }
}

/// Around the place of each bar, one pixel wide; losses that cannot happen have none.
void CasualtyHistogram::draw_outline(QPainter& painter) const
{
    painter.setPen(QPen{palette().color(QPalette::WindowText), 0});
    int const bottom = plot().bottom() + 1;
    int before = bottom;
    for (int percent = 0; percent <= highest_share + 1; ++percent) {
        int const left = x_of(percent - 0.5) - 1;
        int const top = percent <= highest_share ? y_of(exact_.at(static_cast<std::size_t>(percent))) : bottom;
        if (before != top) painter.drawLine(left, before, left, top);
        if (top < bottom) painter.drawLine(left, top, x_of(percent + 0.5) - 1, top);
        before = top;
    }
}

void CasualtyHistogram::draw_mean(QPainter& painter) const
{
    QFontMetrics const metrics = fontMetrics();
    int const line = metrics.height();
    int const x = x_of(mean_);
    painter.setPen(QPen{palette().color(QPalette::WindowText), 1, Qt::DashLine});
    painter.drawLine(x, plot().top() - line / 4, x, plot().bottom());
    QString const label = "mean " + mean_text_ + "%";
    painter.drawText(std::min(x + line / 3, width() - metrics.horizontalAdvance(label)),
                     plot().top() - metrics.descent() - line / 8, label);
}

OutcomeBar::OutcomeBar(Tally const& tally, NumberFormat const& format, QWidget* parent) : QWidget(parent)
{
    prefer_fixed_height(*this);
    setAccessibleName("Wins and ties");
    show_tally(tally, format);
}

void OutcomeBar::show_tally(Tally const& tally, NumberFormat const& format)
{
    auto const part = [&](BattleWinner winner, char const* what, Qt::BrushStyle pattern) {
        double const share = tally.percent_won(winner);
        return Part{QString{"%1 %2%"}.arg(what, to_qt(one_decimal(share, format))), share, pattern};
    };
    parts_ = {part(side_a_won, "Side A wins", Qt::SolidPattern), part(tie, "Tied", Qt::NoBrush),
              part(side_b_won, "Side B wins", Qt::BDiagPattern)};
    setAccessibleDescription(parts_[0].label + ", " + parts_[1].label + ", " + parts_[2].label + ".");
    updateGeometry();
    update();
}

QSize OutcomeBar::sizeHint() const
{
    int const line = fontMetrics().height();
    int width = line * 6;
    for (auto const& part : parts_) width += fontMetrics().horizontalAdvance(part.label) + line * 2;
    return {width, line * 3};
}

void OutcomeBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    int const line = fontMetrics().height();
    QColor const text = palette().color(QPalette::WindowText);
    auto const fill = [&](QRect const& box, Qt::BrushStyle pattern) {
        painter.fillRect(box, palette().color(QPalette::Base));
        painter.fillRect(box, QBrush{palette().color(QPalette::Highlight), pattern});
        painter.setPen(text);
        painter.drawRect(box.adjusted(0, 0, -1, -1));
    };
    double passed = 0;
    int legend = 0;
    for (auto const& part : parts_) {
        int const left = qRound(passed * width() / 100);
        passed += part.share;
        int const right = qRound(std::min(passed, 100.0) * width() / 100);
        if (right > left) fill({left, 0, right - left, line * 5 / 4}, part.pattern);

        int const legend_top = line * 7 / 4;
        fill({legend, legend_top, line, line}, part.pattern);
        painter.drawText(QRect{legend + line * 4 / 3, legend_top, width(), line}, Qt::AlignLeft | Qt::AlignVCenter,
                         part.label);
        legend += line * 3 + fontMetrics().horizontalAdvance(part.label);
    }
}

} // namespace warhost
