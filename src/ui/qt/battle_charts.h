// The pictures under a simulation's report, drawn in the palette's colours at any scale.
#pragma once

#include "battle/simulation.h"

#include <QString>
#include <QWidget>

#include <array>

namespace warhost {

/// The share of battles by the percentage that one side lost, 0 to 110, with the mean marked.
class CasualtyHistogram : public QWidget {
    Q_OBJECT

public:
    /// mean_text: as the report's text writes it.
    CasualtyHistogram(QString const& side, std::array<std::int64_t, highest_share + 1> const& battles, double mean,
                      QString const& mean_text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect plot() const;
    int x_of(double percent) const;
    int y_of(double share) const;
    void draw_axes(QPainter& painter) const;
    void draw_bars(QPainter& painter) const;
    void draw_mean(QPainter& painter) const;

    QString title_;
    QString mean_text_;
    double mean_;
    std::array<double, highest_share + 1> shares_{}; // percent of the battles
    double step_ = 1; // percent of the battles from one line of the left axis to the next
    int steps_ = 0;
};

/// A part of the bar: one way in which the battles ended.
struct OutcomePart {
    QString label; // "Side A wins 47.5%"
    double share;  // percent of the battles
    Qt::BrushStyle pattern;
};

/// One bar for wins and ties; the parts are told apart by pattern and label, not by colour alone.
class OutcomeBar : public QWidget {
    Q_OBJECT

public:
    explicit OutcomeBar(std::array<OutcomePart, 3> parts, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::array<OutcomePart, 3> parts_;
};

} // namespace warhost
