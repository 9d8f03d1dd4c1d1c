// The dialogs of the real window system, answered by keys.
#include "battle/simulation.h"
#include "ui/qt/qt_desktop.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace warhost {

TEST(Dialogs, take_enter_for_the_default_answer_and_do_no_harm_on_escape)
{
    QtDesktop desktop;
    std::tuple<Buttons, Answer, Answer> const rows[] = {{Buttons::ok, Answer::ok, Answer::ok},
                                                        {Buttons::yes_no, Answer::yes, Answer::no},
                                                        {Buttons::abort_retry_ignore, Answer::abort, Answer::ignore}};
    for (auto const& [buttons, by_enter, by_escape] : rows) {
        for (auto const& [key, answer] : {std::pair{Qt::Key_Enter, by_enter}, {Qt::Key_Escape, by_escape}}) {
            QTimer::singleShot(0, [key = key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
            EXPECT_EQ(desktop.message_box({.text = "<b>&", .buttons = buttons, .default_answer = by_enter}), answer);
        }
    }
}

TEST(Dialogs, the_report_draws_who_won)
{
    QtDesktop desktop;
    std::array<std::ptrdiff_t, 2> bars{};
    for (int const winner : {side_a_won, tie}) {
        Tally tally;
        tally.count(Tally::place_of(winner, winner == tie ? 0 : 5));
        QTimer::singleShot(0, [&] {
            auto* const box = QApplication::activeModalWidget();
            QImage const picture = box->grab().toImage();
            auto const* const dots = reinterpret_cast<QRgb const*>(picture.constBits());
            QRgb const colour = box->palette().color(QPalette::Highlight).rgb();
            bars.at(winner == tie) = std::count(dots, dots + picture.sizeInBytes() / sizeof(QRgb), colour);
            QTest::keyClick(box, Qt::Key_Enter);
        });
        desktop.show_report({.text = "Battle Results", .title = "Warhost Simulation"}, tally);
    }
    EXPECT_GT(bars[0], 2 * bars[1]);
}

} // namespace warhost
