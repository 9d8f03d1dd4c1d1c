// The dialogs of the real window system, answered by keys.
#include "battle/simulation.h"
#include "ui/qt/qt_desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace warhost {

namespace {

/// Runs on the dialog that opens next.
void answer_next_box(std::function<void(QWidget& box)> const& answer)
{
    QTimer::singleShot(0, [=] { answer(*QApplication::activeModalWidget()); });
}

TEST(Dialogs, take_enter_for_the_default_answer_and_do_no_harm_on_escape)
{
    QtDesktop desktop;
    std::tuple<Buttons, Answer, Answer> const rows[] = {{Buttons::ok, Answer::ok, Answer::ok},
                                                        {Buttons::yes_no, Answer::yes, Answer::no},
                                                        {Buttons::abort_retry_ignore, Answer::abort, Answer::ignore}};
    for (auto const& [buttons, by_enter, by_escape] : rows) {
        for (auto const& [key, answer] : {std::pair{Qt::Key_Enter, by_enter}, {Qt::Key_Escape, by_escape}}) {
            answer_next_box([key = key](QWidget& box) { QTest::keyClick(&box, key); });
            EXPECT_EQ(desktop.message_box({.text = "<b>&", .buttons = buttons, .default_answer = by_enter}), answer);
        }
    }
}

TEST(Dialogs, keep_the_order_of_their_buttons_on_every_desktop)
{
    QtDesktop desktop;
    std::tuple<Buttons, Answer, QStringList> const rows[] = {
        {Buttons::yes_no, Answer::yes, {"Yes", "No"}},
        {Buttons::abort_retry_ignore, Answer::ignore, {"Abort", "Retry", "Ignore"}}};
    for (int layout = QDialogButtonBox::WinLayout; layout <= QDialogButtonBox::AndroidLayout; ++layout) {
        SCOPED_TRACE(layout);
        qApp->setStyleSheet(QString{"QDialogButtonBox { button-layout: %1 }"}.arg(layout));
        for (auto const& [buttons, by_default, order] : rows) {
            QStringList shown;
            answer_next_box([&](QWidget& box) {
                auto found = box.findChildren<QPushButton*>();
                std::ranges::sort(found, {}, &QPushButton::x);
                for (auto* const button : found) shown << button->text().remove('&');
                QTest::keyClick(&box, Qt::Key_Enter);
            });
            EXPECT_EQ(desktop.message_box({.text = "?", .buttons = buttons, .default_answer = by_default}), by_default);
            EXPECT_EQ(shown, order);
        }
    }
    qApp->setStyleSheet({});
}

TEST(Dialogs, show_a_path_of_any_length_whole_and_within_the_screen)
{
    QtDesktop desktop;
    for (std::size_t const length : {20, 300, 3000, 60000}) {
        SCOPED_TRACE(length);
        std::string const text = "File '" + std::string(length, 'w') + "' not found.";
        answer_next_box([&](QWidget& box) {
            auto* const shown = box.findChild<QTextEdit*>();
            ASSERT_NE(shown, nullptr);
            QSize const text_size = shown->document()->size().toSize();
            QSize const screen = box.screen()->availableSize();
            EXPECT_LE(text_size.width(), shown->viewport()->width());
            EXPECT_TRUE(text_size.height() <= shown->viewport()->height() || shown->verticalScrollBar()->isVisible());
            EXPECT_TRUE(box.width() < screen.width() && box.height() < screen.height());
            shown->selectAll();
            shown->copy();
            EXPECT_EQ(QApplication::clipboard()->text().toStdString(), text);
            QTest::keyClick(&box, Qt::Key_Enter);
        });
        desktop.message_box({.text = text, .icon = Icon::critical});
    }
}

TEST(Dialogs, the_report_draws_who_won)
{
    QtDesktop desktop;
    std::array<std::ptrdiff_t, 2> bars{};
    for (int const winner : {side_a_won, tie}) {
        Tally tally;
        tally.count(Tally::place_of(winner, winner == tie ? 0 : 5));
        answer_next_box([&](QWidget& box) {
            QImage const picture = box.grab().toImage();
            auto const* const dots = reinterpret_cast<QRgb const*>(picture.constBits());
            QRgb const colour = box.palette().color(QPalette::Highlight).rgb();
            bars.at(winner == tie) = std::count(dots, dots + picture.sizeInBytes() / sizeof(QRgb), colour);
            QTest::keyClick(&box, Qt::Key_Enter);
        });
        desktop.show_report({.text = "Battle Results", .title = "Warhost Simulation"}, tally);
    }
    EXPECT_GT(bars[0], 2 * bars[1]);
}

} // namespace

} // namespace warhost
