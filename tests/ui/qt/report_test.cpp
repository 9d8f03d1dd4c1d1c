// What is shown of a simulation.
#include "battle/odds.h"
#include "ui/qt/battle_charts.h"
#include "ui/qt/report_box.h"

#include <QLabel>

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

} // namespace
} // namespace warhost
