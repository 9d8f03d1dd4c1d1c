#include "ui/qt/dialogs/simulation_progress.h"

#include "ui/qt/dialogs/battle_charts.h"
#include "ui/qt/dialogs/progress_dialog.h"
#include "ui/qt/look/type.h"
#include "ui/qt/widgets/text.h"
#include "ui/simulation_report.h"

#include <QLabel>
#include <QString>

#include <utility>

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

class SimulationProgress::Dialog : public ProgressDialog {
public:
    Dialog(QWidget* window, Tally const& so_far, NumberFormat const& format)
        : ProgressDialog(window, "Simulate N Battles", "Battles fought"),
          outcome_(so_far, format)
    {
        set_type(count_, font(), type::name);
        column().insertWidget(0, &count_);
        column().addWidget(&outcome_);
    }

    void show_battles(std::int32_t fought, std::int32_t battles, Tally const& so_far, NumberFormat const& format,
                      QString const& left)
    {
        count_.setText(to_qt(grouped_text(fought, format) + " of " + battles_text(battles, format)));
        outcome_.show_tally(so_far, format);
        double const share = static_cast<double>(fought) / battles;
        show_share(share, QString{"%1%"}.arg(static_cast<int>(100 * share)), left);
    }

private:
    QLabel count_;
    OutcomeBar outcome_;
};

SimulationProgress::SimulationProgress(QWidget* window, NumberFormat format)
    : window_(window),
      format_(std::move(format))
{
    since_start_.start();
}

SimulationProgress::~SimulationProgress() = default;

void SimulationProgress::show(std::int32_t fought, std::int32_t battles, Tally const& so_far)
{
    qint64 const elapsed = since_start_.elapsed();
    if (elapsed < first_shown || elapsed - shown_at_ < between_repaints) return;
    shown_at_ = elapsed;
    if (!dialog_) dialog_ = std::make_unique<Dialog>(window_, so_far, format_);
    dialog_->show_battles(fought, battles, so_far, format_, time_left(elapsed, fought, battles));
}

} // namespace warhost
