// What is shown of a simulation while it runs and when it is done.
#include "battle/odds.h"
#include "ui/qt/dialogs/battle_charts.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/dialogs/report_box.h"
#include "ui/qt/look/colours.h"
#include "ui/qt/look/type.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

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

Tally tally_of(int a_wins, int ties, int b_wins)
{
    Tally tally;
    while (a_wins-- > 0) tally.count(side_a_won, 3, 10);
    while (ties-- > 0) tally.count(tie, 0, 100);
    while (b_wins-- > 0) tally.count(side_b_won, 3, 10);
    return tally;
}

Tally one_tie() { return tally_of(0, 1, 0); }

TEST(Report, shows_the_exact_odds_beside_its_text_and_on_the_bars_and_copies_its_texts)
{
    ReportBox box{{.text = "A  B \r\n"}, one_tie(), Odds{10, 0}, {}, nullptr};
    std::string const shown = words(box);
    for (char const* const text : {"A  B \n|", "In the long run: Side A wins 86.3%", "1 battle; 95 % confidence"})
        EXPECT_NE(shown.find(text), std::string::npos) << shown;
    auto const picture = [](Odds const& odds) { return CasualtyHistogram{0, one_tie(), odds, {}}.grab().toImage(); };
    EXPECT_NE(picture({0, 0}), picture({10, 0}));

    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    auto const copied = [&] {
        QTest::keyClick(&box, Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text();
    };
    EXPECT_TRUE(copied().contains("A  B \n")) << copied().toStdString();
    EXPECT_TRUE(copied().contains("95 % confidence")) << copied().toStdString();
    box.findChild<QLabel*>()->setSelection(0, 4);
    EXPECT_EQ(copied(), "A  B");
}

TEST(CasualtyHistogram, draws_the_bars_and_the_mean_of_its_own_side_on_the_scale_of_both)
{
    Tally tally; // B loses 50% once and 100% three times, A twice 20% and twice 30%
    for (int const share : {20, 20, 30}) tally.count(side_a_won, 31, share);
    tally.count(side_a_won, 14, 60);
    struct Row {
        double left, right, mean;       // percent lost
        double left_share, right_share; // battles
    };
    double unit = 0, start = 0, high = 0; // pixels of one percent lost; where no loss stands; pixels of one battle
    for (Row const& row : {Row{50, 100, 87.5, 1, 3}, Row{20, 30, 25, 2, 2}}) {
        int const Index = row.left == 20 ? 0 : 1;
        QImage const image = CasualtyHistogram{Index, tally, {0, 0}, {}}.grab().toImage();
        std::map<int, int> bars, lines; // pixels by column, below the title
        for (int y = image.height() / 8; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                QColor const pixel = image.pixelColor(x, y);
                bars[x] += pixel == colours().side.at(static_cast<std::size_t>(Index)) ? 1 : 0;
                lines[x] += pixel == colours().text ? 1 : 0;
            }
        }
        int const mean = std::ranges::max_element(lines, {}, &std::pair<int const, int>::second)->first;
        std::erase_if(bars, [](auto const& column) { return column.second < 10; });
        ASSERT_FALSE(bars.empty());
        auto const [left, left_height] = *bars.begin();
        auto const [right, right_height] = *bars.rbegin();
        if (Index == 1) unit = (right - left) / 50.0, start = left - 50 * unit, high = right_height / 3.0;
        EXPECT_NEAR(left_height, row.left_share * high, 2);
        EXPECT_NEAR(right_height, row.right_share * high, 2);
        EXPECT_NEAR(left, start + row.left * unit, 3);
        EXPECT_NEAR(right, start + row.right * unit, 3);
        EXPECT_NEAR(mean, start + row.mean * unit, 3);
    }
}

TEST(OutcomeBar, writes_each_share_in_its_part_or_below_it_without_overlap)
{
    std::tuple<Tally, int, QString> const rows[] = {
        // the texts in the bar
        {tally_of(0, 1, 0), 388, "Tied 100.0%"},
        {tally_of(1, 0, 0), 388, "Side A wins 100.0%"},
        {tally_of(2, 3, 995), 388, "Side B wins 99.5%"},
        {tally_of(995, 3, 2), 388, "Side A wins 99.5%"},
        {tally_of(5, 990, 5), 388, "Tied 99.0%"},
        {tally_of(658, 40, 302), 388, "A 65.8%|B 30.2%"},
        {tally_of(658, 40, 302), 766, "Side A wins 65.8%|Side B wins 30.2%"},
        {tally_of(340, 320, 340), 388, "A 34.0%|Tied 32.0%|B 34.0%"},
    };
    for (auto const& [tally, width, written] : rows) {
        OutcomeBar bar{tally, {}};
        bar.setFont(QFont{"DejaVu Sans"}); // whose digits are wide
        bar.resize(width, bar.sizeHint().height());
        auto const labels = bar.labels();
        QStringList inside;
        for (auto const& label : labels) {
            QFontMetrics const metrics{in_type(bar.font(), label.inside ? type::name : type::caption)};
            EXPECT_LE(metrics.horizontalAdvance(label.text), label.room.width()) << label.text.toStdString();
            EXPECT_TRUE(bar.rect().contains(label.room)) << label.text.toStdString();
            if (label.inside) inside << label.text;
            for (auto const& other : labels) EXPECT_TRUE(&label == &other || !label.room.intersects(other.room));
        }
        EXPECT_EQ(inside.join("|"), written);
    }
}

TEST(SimulationProgress, shows_battles_percent_time_left_and_outcome_after_half_a_second)
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
