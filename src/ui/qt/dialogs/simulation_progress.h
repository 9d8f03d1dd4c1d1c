// What is shown during a long simulation.
#pragma once

#include "army/value_conversion.h"
#include "battle/simulation.h"

#include <QElapsedTimer>

#include <cstdint>
#include <memory>

class QWidget;

namespace warhost {

/// After half a second, a modal window: the battles fought, percent, time left and the outcome so far, updated at most
/// ten times a second. It accepts no input; the user regains control with the report.
class SimulationProgress {
public:
    SimulationProgress(QWidget* window, NumberFormat format);
    ~SimulationProgress();
    SimulationProgress(SimulationProgress const&) = delete;
    SimulationProgress& operator=(SimulationProgress const&) = delete;

    /// At least one battle.
    void show(std::int32_t fought, std::int32_t battles, Tally const& so_far);

private:
    class Dialog;

    QWidget* window_;
    NumberFormat format_;
    QElapsedTimer since_start_;
    qint64 shown_at_ = 0; // milliseconds
    std::unique_ptr<Dialog> dialog_;
};

} // namespace warhost
