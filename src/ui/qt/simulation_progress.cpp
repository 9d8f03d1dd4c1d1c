#include "ui/qt/simulation_progress.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace warhost {

namespace {

constexpr qint64 first_shown = 500; // milliseconds
constexpr qint64 between_repaints = 100;
constexpr int bar_steps = 1000;

QString time_left(qint64 elapsed, std::int32_t fought, std::int32_t battles)
{
    auto const left = static_cast<double>(elapsed) * (battles - fought) / fought;
    auto const seconds = static_cast<qint64>(left / 1000) + 1;
    return seconds < 60 ? QString("%1 s left").arg(seconds)
                        : QString("%1 min %2 s left").arg(seconds / 60).arg(seconds % 60);
}

} // namespace

/// Closes when its owner says so, not by a key.
class ProgressDialog : public QDialog {
public:
    explicit ProgressDialog(QWidget* window) : QDialog(window, Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    {
        setWindowTitle("Simulate N Battles");
        setWindowModality(Qt::ApplicationModal);
        bar_.setRange(0, bar_steps);
        bar_.setMinimumWidth(fontMetrics().averageCharWidth() * 50);
        bar_.setAccessibleName("Battles fought");
        column_.addWidget(&bar_);
        column_.addWidget(&left_);
    }

    void show_share(int steps, QString const& left)
    {
        bar_.setValue(steps);
        left_.setText(left);
    }

    void reject() override {}

private:
    QVBoxLayout column_{this};
    QProgressBar bar_{this};
    QLabel left_{this};
};

SimulationProgress::SimulationProgress() { since_start_.start(); }

SimulationProgress::~SimulationProgress() = default;

void SimulationProgress::show(QWidget* window, std::int32_t fought, std::int32_t battles)
{
    qint64 const elapsed = since_start_.elapsed();
    if (elapsed < first_shown || elapsed - shown_at_ < between_repaints) return;
    shown_at_ = elapsed;
    if (!dialog_) dialog_ = std::make_unique<ProgressDialog>(window);
    dialog_->show_share(static_cast<int>(static_cast<std::int64_t>(fought) * bar_steps / battles),
                        time_left(elapsed, fought, battles));
    dialog_->show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace warhost
