// The charts of a simulation's report and progress, drawn in the palette's colours at any scale.
#pragma once

#include "army/value_conversion.h"
#include "battle/odds.h"
#include "battle/simulation.h"

#include <QString>
#include <QWidget>

#include <array>

namespace warhost {

/// The share of battles by the percentage that one side lost, 0 to 110: bars for the sample, with their mean marked,
/// and a mark at each height for the exact odds. The histograms of both sides have the same scale.
class CasualtyHistogram : public QWidget {
    Q_OBJECT

public:
    /// Index: 0 for Side A, 1 for Side B. The mean is formatted as in the text of the report.
    CasualtyHistogram(int Index, Tally const& tally, Odds const& odds, NumberFormat const& format,
                      QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect plot() const;
    int x_of(double percent) const;
    int y_of(double share) const;
    void draw_title(QPainter& painter) const;
    void draw_axes(QPainter& painter) const;
    void draw_bars(QPainter& painter) const;
    void draw_marks(QPainter& painter) const;
    void draw_mean(QPainter& painter) const;

    int Index_;
    QString mean_text_;
    double mean_;
    std::array<double, highest_share + 1> shares_{}; // percent of the battles
    std::array<double, highest_share + 1> exact_{};  // of all battles in the long run
    double step_ = 1; // percent of the battles from one line of the left axis to the next
    int steps_ = 0;
};

/// One bar for wins and ties. The parts differ in pattern and label, not in colour alone.
class OutcomeBar : public QWidget {
    Q_OBJECT

public:
    /// The label of a part: inside it, or below it if the part is too narrow.
    struct Label {
        QString text;
        QRect room;
        bool inside = false;
    };

    /// At least one battle.
    OutcomeBar(Tally const& tally, NumberFormat const& format, QWidget* parent = nullptr);

    void show_tally(Tally const& tally, NumberFormat const& format);

    /// The labels of Side A's wins, the ties and Side B's wins; no two overlap.
    std::array<Label, 3> labels() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// One way in which the battles ended.
    struct Part {
        QString label;       // "Side A wins 47.5%"
        QString short_label; // "A 47.5%"
        double share = 0;    // percent of the battles
    };

    std::array<QRect, 3> rooms() const;
    void draw_part(QPainter& painter, std::size_t part, QRect const& room) const;
    void draw_tick(QPainter& painter, QRect const& part, QRect const& label) const;

    std::array<Part, 3> parts_;
};

} // namespace warhost
