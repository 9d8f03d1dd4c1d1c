// What is seen while a long simulation runs.
#pragma once

#include "army/value_conversion.h"
#include "battle/simulation.h"

#include <QElapsedTimer>

#include <cstdint>
#include <memory>

class QWidget;

namespace warhost {

/// A modal window from half a second on: the battles fought, percent, time left and the outcome so far, at most ten
/// times a second. It takes no input; the user gets control back with the report.
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
