#include "ui/qt/simulation_progress.h"

#include "ui/qt/progress_dialog.h"

#include <QString>

namespace warhost {

namespace {

constexpr qint64 first_shown = 500; // milliseconds
constexpr qint64 between_repaints = 100;

QString time_left(qint64 elapsed, std::int32_t fought, std::int32_t battles)
{
    auto const left = static_cast<double>(elapsed) * (battles - fought) / fought;
    auto const seconds = static_cast<qint64>(left / 1000) + 1;
    return seconds < 60 ? QString("%1 s left").arg(seconds)
                        : QString("%1 min %2 s left").arg(seconds / 60).arg(seconds % 60);
}

} // namespace

SimulationProgress::SimulationProgress() { since_start_.start(); }

SimulationProgress::~SimulationProgress() = default;

void SimulationProgress::show(QWidget* window, std::int32_t fought, std::int32_t battles)
{
    qint64 const elapsed = since_start_.elapsed();
    if (elapsed < first_shown || elapsed - shown_at_ < between_repaints) return;
    shown_at_ = elapsed;
    if (!dialog_) dialog_ = std::make_unique<ProgressDialog>(window, "Simulate N Battles", "Battles fought");
    dialog_->show_share(static_cast<double>(fought) / battles, time_left(elapsed, fought, battles));
}

} // namespace warhost
