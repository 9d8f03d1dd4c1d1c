#include "ui/qt/dialogs/battle_charts.h"

#include "army/armies.h"
#include "ui/qt/look/colours.h"
#include "ui/qt/look/contrast.h"
#include "ui/qt/look/device_pixels.h"
#include "ui/qt/look/marks.h"
#include "ui/qt/look/scale.h"
#include "ui/qt/look/type.h"
#include "ui/qt/widgets/text.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace warhost {

namespace {

constexpr int percent_marks = 10; // along the lower axis

// Pixels of the base size. A histogram from top to bottom: title, mean, plot, percentages, their unit.
constexpr QSize histogram_size{378, 260};
constexpr QRect plot_room{36, 44, 3 * (highest_share + 1), 178}; // per percent: a bar of two, a gap of one
constexpr int title_height = 20;
constexpr int title_gap = 7;
constexpr int mean_top = 27;
constexpr int percentages_top = 6; // below the plot
constexpr int unit_top = 22;
constexpr int label_gap = 4; // between an axis or a line and its text
constexpr int bar_height = 32;
constexpr int bar_corner = 4;
constexpr int least_part = 2;
constexpr int between_parts = 2;
constexpr int label_margin = 10; // inside a part
constexpr int between_labels = 12;
constexpr int tick_length = 5;
constexpr double hatch_step = 7;
constexpr double hatch_width = 2;

/// A step of 1, 2 or 5 times a power of ten that divides `highest` into at most four parts.
double round_step(double highest)
{
    double const power = std::pow(10.0, std::floor(std::log10(std::max(highest, 1e-6) / 4)));
    for (double const factor : {1.0, 2.0, 5.0}) {
        if (highest <= 4 * factor * power) return factor * power;
    }
    return 10 * power;
}

template <class Value> std::array<double, highest_share + 1> percentages(Endings<Value> const& endings, int Index)
{
    std::array<double, highest_share + 1> made{};
    std::ranges::transform(endings.histogram(Index), made.begin(), [&](auto value) {
        return 100 * static_cast<double>(value) / static_cast<double>(endings.total());
    });
    return made;
}

QString percent_label(double value) { return QLocale::system().toString(value, 'g', 3) + "%"; }

/// Moves the labels below the bar, which are in order, until all are at least `least` apart.
void keep_apart(std::array<OutcomeBar::Label, 3>& labels, int least, int width)
{
    auto const move_each = [&](auto first, auto last, auto limit) {
        for (; first != last; ++first) {
            if (!first->inside) limit(first->room);
        }
    };
    int left = 0;
    move_each(labels.begin(), labels.end(), [&](QRect& room) {
        room.moveLeft(std::max(room.left(), left));
        left = room.left() + room.width() + least;
    });
    int right = width;
    move_each(labels.rbegin(), labels.rend(), [&](QRect& room) {
        room.moveLeft(std::min(room.left(), right - room.width()));
        right = room.left() - least;
    });
}

} // namespace

CasualtyHistogram::CasualtyHistogram(int Index, Tally const& tally, Odds const& odds, NumberFormat const& format,
                                     QWidget* parent)
    : QWidget(parent),
      Index_(Index),
      mean_text_(to_qt(one_decimal(tally.mean_casualties(Index), format))),
      mean_(tally.mean_casualties(Index)),
      shares_(percentages(tally, Index)),
      exact_(percentages(odds, Index))
{
    double highest = 0;
    for (int const side : {0, 1}) {
        highest =
            std::max({highest, std::ranges::max(percentages(tally, side)), std::ranges::max(percentages(odds, side))});
    }
    step_ = round_step(highest);
    steps_ = static_cast<int>(std::ceil(highest / step_));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto const* const most = std::ranges::max_element(shares_);
    setAccessibleName(to_qt(side_name(Index)) + " casualties: share of the battles by percent lost");
    setAccessibleDescription(QString{"Histogram. Mean %1%. The most frequent loss is %2%, in %3% of the battles. The "
                                     "marks show the long run."}
                                 .arg(mean_text_)
                                 .arg(most - shares_.begin())
                                 .arg(to_qt(one_decimal(*most, format))));
}

QSize CasualtyHistogram::sizeHint() const
{
    Scale const scale = scale_of(this);
    return {scale.from_base(histogram_size.width()), scale.from_base(histogram_size.height())};
}

void CasualtyHistogram::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    draw_title(painter);
    draw_axes(painter);
    draw_bars(painter);
    draw_marks(painter);
    draw_mean(painter);
}

QRect CasualtyHistogram::plot() const
{
    Scale const scale = scale_of(this);
    return {scale.from_base(plot_room.x()), scale.from_base(plot_room.y()), scale.from_base(plot_room.width()),
            scale.from_base(plot_room.height())};
}

int CasualtyHistogram::x_of(double percent) const
{
    return plot().left() + qRound(plot().width() * (percent + 0.5) / (highest_share + 1));
}

int CasualtyHistogram::y_of(double share) const
{
    return plot().bottom() + 1 - qRound(plot().height() * share / (step_ * steps_));
}

void CasualtyHistogram::draw_title(QPainter& painter) const
{
    Scale const scale = scale_of(this);
    int const mark = scale.from_base(mark_size);
    QRect room{0, 0, width(), scale.from_base(title_height)};
    QColor const side = colours().side.at(static_cast<std::size_t>(Index_));
    draw_side_mark(painter, Index_, QRect{1, (room.height() - mark) / 2, mark, mark}, side);

    auto const write = [&](QString const& text, Type type, QColor const& colour) {
        painter.setFont(in_type(font(), type));
        painter.setPen(colour);
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, text);
        room.setLeft(room.left() + painter.fontMetrics().horizontalAdvance(text) + scale.from_base(title_gap));
    };
    room.setLeft(mark + scale.from_base(title_gap));
    write(to_qt(side_name(Index_)), type::name, side);
    write("bars: share of battles; marks: in the long run", type::plain, colours().dim);
}

void CasualtyHistogram::draw_axes(QPainter& painter) const
{
    Scale const scale = scale_of(this);
    int const line = fontMetrics().height();
    QRect const area = plot();
    DevicePixels pixels{painter};
    painter.setFont(font());
    for (int mark = steps_; mark >= 0; --mark) {
        int const y = y_of(mark * step_);
        pixels.draw_line(QRect{area.left(), y, area.width(), scale.line()}, mark > 0 ? colours().hair : colours().firm);
        painter.setPen(colours().dim);
        painter.drawText(QRect{0, y - line / 2, area.left() - scale.from_base(label_gap), line},
                         Qt::AlignRight | Qt::AlignVCenter, percent_label(mark * step_));
    }
    int const bottom = area.bottom() + 1;
    for (int percent = 0; percent <= highest_share; percent += percent_marks) {
        int const x = x_of(percent);
        pixels.draw_line(QRect{x, bottom, scale.line(), scale.from_base(tick_length)}, colours().firm);
        painter.drawText(QRect{x - line * 2, bottom + scale.from_base(percentages_top), line * 4, line},
                         Qt::AlignHCenter, QString::number(percent));
    }
    painter.drawText(QRect{area.left(), bottom + scale.from_base(unit_top), area.width(), line}, Qt::AlignHCenter,
                     QString{"casualties of %1, percent"}.arg(to_qt(side_name(Index_))));
}

void CasualtyHistogram::draw_bars(QPainter& painter) const
{
    int const bottom = plot().bottom() + 1;
    for (int percent = 0; percent <= highest_share; ++percent) {
        double const share = shares_.at(static_cast<std::size_t>(percent));
        if (share <= 0) continue;
        int const left = x_of(percent - 0.5);
        int const width = std::max(x_of(percent + 0.5) - left - 1, 1);
        int const height = std::max(bottom - y_of(share), 1); // even the rarest loss is visible
        painter.fillRect(left, bottom - height, width, height, colours().side.at(static_cast<std::size_t>(Index_)));
    }
}

/// A mark at the height that each bar has in the long run; none where it would hide a low bar.
void CasualtyHistogram::draw_marks(QPainter& painter) const
{
    int const line = scale_of(this).line();
    int const bottom = plot().bottom() + 1;
    for (int percent = 0; percent <= highest_share; ++percent) {
        int const left = x_of(percent - 0.5);
        int const top = y_of(exact_.at(static_cast<std::size_t>(percent)));
        if (bottom - top >= 3 * line) painter.fillRect(left, top, x_of(percent + 0.5) - left - 1, line, colours().text);
    }
}

void CasualtyHistogram::draw_mean(QPainter& painter) const
{
    Scale const scale = scale_of(this);
    int const x = x_of(mean_);
    int const top = scale.from_base(mean_top);
    painter.setPen(QPen{colours().text, static_cast<double>(scale.line()), Qt::DashLine, Qt::FlatCap});
    painter.drawLine(x, top, x, plot().bottom());
    painter.setFont(in_type(font(), type::caption));
    QString const label = "mean " + mean_text_ + "%";
    int const width = painter.fontMetrics().horizontalAdvance(label);
    int const gap = scale.from_base(label_gap + 1);
    bool const right = x + gap + width <= this->width();
    painter.drawText(QRect{right ? x + gap : x - gap - width, top, width, plot().top() - top},
                     Qt::AlignLeft | Qt::AlignVCenter, label);
}

OutcomeBar::OutcomeBar(Tally const& tally, NumberFormat const& format, QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName("Wins and ties");
    show_tally(tally, format);
}

void OutcomeBar::show_tally(Tally const& tally, NumberFormat const& format)
{
    auto const part = [&](BattleWinner winner, QString const& shortly, QString const& what) {
        double const share = tally.percent_won(winner);
        QString const percent = QString{" %1%"}.arg(to_qt(one_decimal(share, format)));
        return Part{what + percent, shortly + percent, share};
    };
    parts_ = {part(side_a_won, "A", "Side A wins"), part(tie, "Tied", "Tied"), part(side_b_won, "B", "Side B wins")};
    setAccessibleDescription(parts_[0].label + ", " + parts_[1].label + ", " + parts_[2].label + ".");
    updateGeometry();
    update();
}

/// Wide enough for the three labels side by side.
QSize OutcomeBar::sizeHint() const
{
    Scale const scale = scale_of(this);
    QFontMetrics const below{in_type(font(), type::caption)};
    int width = 2 * scale.from_base(between_labels);
    for (auto const& part : parts_) width += below.horizontalAdvance(part.label);
    return {width, scale.from_base(bar_height) + scale.from_base(tick_length) + below.height()};
}

/// The rectangles of the parts, from left to right. An ending that occurred is visible; one that did not is empty.
std::array<QRect, 3> OutcomeBar::rooms() const
{
    Scale const scale = scale_of(this);
    auto const shown = std::ranges::count_if(parts_, [](Part const& part) { return part.share > 0; });
    int const gap = scale.from_base(between_parts);
    int const whole = width() - gap * (static_cast<int>(shown) - 1);
    std::array<int, 3> widths{};
    std::ranges::transform(parts_, widths.begin(), [&](Part const& part) {
        return part.share > 0 ? std::max(scale.from_base(least_part), qRound(whole * part.share / 100)) : 0;
    });
    *std::ranges::max_element(widths) += whole - widths[0] - widths[1] - widths[2];

    std::array<QRect, 3> made;
    int left = 0;
    for (std::size_t part = 0; part < made.size(); ++part) {
        made.at(part) = {left, 0, widths.at(part), scale.from_base(bar_height)};
        if (widths.at(part) > 0) left += widths.at(part) + gap;
    }
    return made;
}

std::array<OutcomeBar::Label, 3> OutcomeBar::labels() const
{
    Scale const scale = scale_of(this);
    QFontMetrics const inside{in_type(font(), type::name)};
    QFontMetrics const below{in_type(font(), type::caption)};
    auto const in_bar = rooms();
    auto const fits = [&](std::size_t part, QString const& text) {
        return inside.horizontalAdvance(text) <= in_bar.at(part).width() - 2 * scale.from_base(label_margin);
    };
    // The labels of both sides' wins are both short or both long.
    bool const shortly = (fits(0, parts_[0].short_label) && !fits(0, parts_[0].label)) ||
                         (fits(2, parts_[2].short_label) && !fits(2, parts_[2].label));
    std::array<Label, 3> made;
    for (std::size_t part = 0; part < made.size(); ++part) {
        Label& label = made.at(part);
        label.inside = fits(part, parts_.at(part).short_label);
        label.text = label.inside && shortly ? parts_.at(part).short_label : parts_.at(part).label;
        label.room = in_bar.at(part);
        if (label.inside) continue;
        int const wide = below.horizontalAdvance(label.text);
        int const top = label.room.height() + scale.from_base(tick_length);
        label.room = {std::clamp(label.room.center().x() - wide / 2, 0, std::max(0, width() - wide)), top, wide,
                      below.height()};
    }
    keep_apart(made, scale.from_base(between_labels), width());
    return made;
}

void OutcomeBar::draw_part(QPainter& painter, std::size_t part, QRect const& room) const
{
    Scale const scale = scale_of(this);
    bool const tied = part == 1;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath whole;
    whole.addRoundedRect(QRect{0, 0, width(), room.height()}, scale.from_base(bar_corner), scale.from_base(bar_corner));
    QPainterPath own;
    own.addRect(room);
    painter.setClipPath(whole & own);
    QColor const fill = tied ? colours().tie : colours().side.at(part / 2);
    painter.fillRect(room, fill);
    if (part == 2) {
        painter.setPen(QPen{mixture(fill, colours().page, 12), scale.factor() * hatch_width});
        double const high = room.height();
        double const step = scale.factor() * hatch_step;
        int const stripes = static_cast<int>((room.width() + high) / step) + 1;
        for (int stripe = 0; stripe < stripes; ++stripe) {
            double const x = room.left() - high + stripe * step;
            painter.drawLine(QLineF{x, high, x + high, 0});
        }
    }
    painter.restore();
}

/// A line from the middle of a part to its label below, with a corner if necessary.
void OutcomeBar::draw_tick(QPainter& painter, QRect const& part, QRect const& label) const
{
    double const from = part.center().x() + 0.5;
    double const to = std::clamp<double>(from, label.left() + 0.5, label.right() + 0.5);
    int const half_way = (part.bottom() + 1 + label.top()) / 2;
    double const middle = half_way + 0.5;
    painter.setPen(QPen{colours().firm, static_cast<double>(scale_of(this).line())});
    painter.drawPolyline(
        QPolygonF{{{from, part.bottom() + 1.0}, {from, middle}, {to, middle}, {to, label.top() + 0.0}}});
}

void OutcomeBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter{this};
    auto const in_bar = rooms();
    auto const labels = this->labels();
    for (std::size_t part = 0; part < labels.size(); ++part) {
        if (!in_bar.at(part).isEmpty()) draw_part(painter, part, in_bar.at(part));
    }
    for (std::size_t part = 0; part < labels.size(); ++part) {
        auto const& [text, room, inside] = labels.at(part);
        painter.setFont(in_type(font(), inside ? type::name : type::caption));
        painter.setPen(inside && part != 1 ? colours().text_on_side.at(part / 2) : colours().text);
        int const margin = inside ? scale_of(this).from_base(label_margin) : 0;
        painter.drawText(room.adjusted(margin, 0, -margin, 0),
                         static_cast<int>(Qt::AlignVCenter | (!inside || part == 0 ? Qt::AlignLeft
                                                              : part == 1          ? Qt::AlignHCenter
                                                                                   : Qt::AlignRight)),
                         text);
        if (!inside && !in_bar.at(part).isEmpty()) draw_tick(painter, in_bar.at(part), room);
    }
}

} // namespace warhost
