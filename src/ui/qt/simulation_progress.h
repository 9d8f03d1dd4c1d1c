// What is seen while a long simulation runs.
#pragma once

#include <QElapsedTimer>

#include <cstdint>
#include <memory>

class QWidget;

namespace warhost {

class ProgressDialog;

/// A modal window from half a second on: the share done and the time left, at most ten times a second. It takes no
/// input, so that the run is the user's only after its report.
class SimulationProgress {
public:
    SimulationProgress();
    ~SimulationProgress();
    SimulationProgress(SimulationProgress const&) = delete;
    SimulationProgress& operator=(SimulationProgress const&) = delete;

    void show(QWidget* window, std::int32_t fought, std::int32_t battles);

private:
    QElapsedTimer since_start_;
    qint64 shown_at_ = 0; // milliseconds
    std::unique_ptr<ProgressDialog> dialog_;
};

} // namespace warhost
