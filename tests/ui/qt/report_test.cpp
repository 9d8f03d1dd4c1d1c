// What is shown of a simulation while it runs and when it is done.
#include "battle/odds.h"
#include "ui/qt/dialogs/battle_charts.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/dialogs/report_box.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include <gtest/gtest.h>

namespace warhost {
namespace {

/// The labels' texts and what a screen reader hears of the pictures.
std::string words(QWidget const& box)
{
    QStringList words;
    for (auto const* const label : box.findChildren<QLabel*>()) words << label->text();
    for (auto const* const widget : box.findChildren<QWidget*>()) words << widget->accessibleDescription();
    return words.join("|").toStdString();
}

Tally one_tie()
{
    Tally tally;
    tally.count(tie, 0, 100);
    return tally;
}

TEST(Report, shows_the_exact_odds_beside_its_text_and_around_the_bars)
{
    std::string const shown = words(ReportBox{{.text = "A  B \r\n"}, one_tie(), Odds{10, 0}, {}, nullptr});
    for (char const* const text : {"A  B \n|", "In the long run: Side A wins 86.3%", "1 battle; 95 % confidence"})
        EXPECT_NE(shown.find(text), std::string::npos) << shown;
    auto const picture = [](Odds const& odds) { return CasualtyHistogram{0, one_tie(), odds, {}}.grab().toImage(); };
    EXPECT_NE(picture({0, 0}), picture({10, 0}));
}

TEST(SimulationProgress, shows_battles_percent_time_left_and_outcome_from_half_a_second_on)
{
    QtDesktop desktop;
    desktop.show_progress(1, 400, one_tie());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    QTest::qSleep(600);
    desktop.show_progress(100, 400, one_tie());
    ASSERT_NE(QApplication::activeModalWidget(), nullptr);
    std::string const shown = words(*QApplication::activeModalWidget());
    for (char const* const text : {"100 of 400 battles", "25%", " s left", "Tied 100"})
        EXPECT_NE(shown.find(text), std::string::npos) << shown;
    auto const* const bar = QApplication::activeModalWidget()->findChild<QProgressBar*>();
    EXPECT_EQ(100 * bar->value() / bar->maximum(), 25);
    desktop.show_progress(400, 400, one_tie());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(desktop.simulates());
}

} // namespace
} // namespace warhost
