// What the user does reaches the form, what the form writes shows.
#include "window_fixture.h"

#include "battle/dice.h"
#include "temporary_folder.h"
#include "ui/agreement.h"
#include "ui/qt/end_signals.h"
#include "ui/qt/widgets/option_choice.h"
#include "ui/qt/widgets/text.h"
#include "ui/qt/widgets/value_box.h"

#include <QAccessible>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDialog>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>

#include <atomic>
#include <clocale>
#include <csignal>

namespace warhost {

namespace {

/// Counts the runs of a handler that stays in place.
int& counted(Notification& handler)
{
    auto const runs = std::make_shared<int>(0);
    handler = [runs, before = handler] {
        ++*runs;
        if (before) before();
    };
    return *runs;
}

TEST(Window, what_is_typed_reaches_the_handler_once_per_key)
{
    Screen screen;
    int const& changes = counted(screen.form.txtArmyName.Change);
    auto& name = screen.named<QLineEdit>("txtArmyName");
    EXPECT_EQ(screen.window.focusWidget(), &name);
    QTest::keyClicks(&name, "Orks");
    EXPECT_EQ(changes, 4);
    QTest::keyClick(&name, Qt::Key_Left);
    QTest::keyClick(&name, Qt::Key_Backspace);
    QTest::keyClicks(&name, "c");
    EXPECT_EQ(changes, 6);
    EXPECT_EQ(screen.form.ArmyA.Name, "Orcs");
    EXPECT_EQ(name.cursorPosition(), 3);
}

TEST(Window, what_a_rule_writes_shows_and_does_not_come_back)
{
    Screen screen;
    for (int const tab : {3, 1}) screen.choose_tab(tab);
    for (auto const& [box, typed] : {std::pair{"txtUnitNum(2)", " men"}, {"txtUnitNum(3)", "40"}}) {
        QTest::keyClick(&screen.named<QLineEdit>(box), Qt::Key_End); // behind the 0
        QTest::keyClicks(&screen.named<QLineEdit>(box), typed);
    }
    EXPECT_EQ(screen.named<QLineEdit>("txtTotalNo").text(), "40");
    EXPECT_EQ(screen.named<QLineEdit>("txtANum(2)").text(), "0 men");

    int const& changes = counted(screen.form.txtUnitType(0).Change);
    std::string const odd = "two\nlines\r & <b>no markup</b>" + std::string(40000, 'x');
    screen.form.txtUnitType(0).set_text(odd);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(screen.form.txtUnitType(0).text(), odd);
}

TEST(Window, a_value_box_gives_what_is_typed_or_chosen)
{
    Screen screen;
    auto& box = screen.named<ValueBox>("cmbOpt(5)");
    QTest::mouseClick(&screen.named<OptionChoice>("opt(29)"), Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(box.currentText(), "+5");

    int const& clicks = counted(screen.form.cmbOpt(5).Click);
    int const& changes = counted(screen.form.cmbOpt(5).Change);
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, "+7");
    QTest::keyClick(&box, Qt::Key_Enter);
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(clicks, 0);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(screen.form.CurArmy.OptValue.at(5), 8);
    EXPECT_EQ(clicks, 1);

    box.showPopup();
    EXPECT_EQ(box.count(), 16);
    EXPECT_EQ(box.currentText(), "+8");
    box.hidePopup();
    box.lineEdit()->selectAll();
    QTest::keyClicks(&box, "fifty & more");
    EXPECT_EQ(screen.form.cmbOpt(5).text(), "fifty & more");
}

TEST(Window, the_wheel_changes_only_the_value_box_that_has_the_focus)
{
    Screen screen;
    auto& box = screen.named<ValueBox>("cmbOpt(5)");
    screen.form.opt(29).set_selected(true);
    QWidget* const focus = screen.window.focusWidget();
    auto const turn_over = [&](QWidget& at) {
        QPoint const place{4, 4};
        QWheelEvent turn{place, at.mapToGlobal(place), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false};
        QSpontaneKeyEvent::setSpontaneous(&turn); // as from a wheel: such a turn may move the focus
        QCoreApplication::instance()->notify(&at, &turn);
    };
    for (QWidget* const at : {static_cast<QWidget*>(&box), static_cast<QWidget*>(box.lineEdit())}) turn_over(*at);
    turn_over(screen.named<QTabBar>("TabStrip"));
    EXPECT_EQ(screen.form.cmbOpt(5).text(), "+5");
    EXPECT_EQ(screen.window.focusWidget(), focus);
    EXPECT_EQ(screen.form.TabStrip.position(), 1);
    box.setFocus();
    turn_over(box);
    EXPECT_EQ(screen.form.cmbOpt(5).text(), "+6");
}

TEST(Window, limits_typed_texts_and_shows_texts_from_a_file_in_full)
{
    Screen screen;
    auto& name = screen.named<QLineEdit>("txtArmyName");
    auto& level = *screen.named<ValueBox>("cmbLevel").lineEdit();
    std::string euros;
    for (int k = 0; k < 65535; ++k) euros += "\u20AC"; // the longest text of a file
    screen.form.txtArmyName.set_text(euros);
    EXPECT_TRUE(name.text() == to_qt(euros));
    EXPECT_TRUE(screen.form.ArmyA.Name == euros);
    for (QLineEdit* const box : {&name, &level}) {
        box->clear();
        box->insert(QString{100000, '1'});
        EXPECT_EQ(box->text().size(), 65535);
    }
    EXPECT_EQ(screen.form.ArmyA.Name.size(), 65535U);
}

TEST(Window, a_list_may_hold_a_caption_of_any_length)
{
    TemporaryFolder const folder;
    std::string const name = "The " + std::string(20000000, 'x');
    folder.write("modif.txt", name + "\n1,3\n");
    Screen screen{1, folder.path()};
    auto& box = screen.named<QCheckBox>("chkMisc(1)");
    EXPECT_TRUE(box.text().startsWith("The xxx"));
    EXPECT_TRUE(box.text().endsWith(QChar{0x2026}));
    EXPECT_LT(box.text().size(), 100);
    EXPECT_LT(box.toolTip().size(), 5000);
    EXPECT_LT(box.accessibleName().size(), 5000);
    EXPECT_EQ(screen.form.chkMisc(1).caption(), name + " (+1 to +3)");
}

TEST(Window, option_buttons_follow_the_form)
{
    Screen screen;
    auto& trained = screen.named<OptionChoice>("opt(1)");
    auto& disciplined = screen.named<OptionChoice>("opt(2)");
    int const& clicks = counted(screen.form.opt(1).Click);
    QTest::mouseClick(&trained, Qt::LeftButton, {}, {8, 8});
    QTest::mouseClick(&trained, Qt::LeftButton, {}, {8, 8});
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(trained.isChecked());

    QTest::keyClick(&trained, Qt::Key_Down);
    EXPECT_TRUE(screen.form.opt(2).selected());
    EXPECT_FALSE(trained.isChecked());
    EXPECT_EQ(screen.window.focusWidget(), &disciplined);

    screen.choose_tab(2);
    EXPECT_FALSE(disciplined.isChecked()) << "Side B has none selected";
}

TEST(Window, ticking_a_misc_row_counts)
{
    Screen screen;
    auto& box = screen.named<QCheckBox>("chkMisc(1)");
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(screen.form.CurArmy.MiscCheck.at(1), 1);
    EXPECT_TRUE(box.font().bold());
}

TEST(Window, tabs_swap_the_armies_and_the_menus_and_their_keys_save_and_load_them)
{
    TemporaryFolder const folder;
    Screen screen;
    screen.desktop.path = folder.path("elves.Army");
    auto& name = screen.named<QLineEdit>("txtArmyName");
    QTest::keyClicks(&name, "Elves");
    QTest::keyClick(&name, Qt::Key_S, Qt::ControlModifier);
    screen.choose_tab(2);
    QTest::keyClicks(screen.window.focusWidget(), "Dwarves");
    EXPECT_EQ(name.text(), "Dwarves");
    screen.trigger("mnuLoad");
    EXPECT_EQ(name.text(), "Elves");
    EXPECT_EQ(screen.form.ArmyB.Name, "Elves");
    screen.choose_tab(3);
    EXPECT_FALSE(name.isVisible());
    screen.trigger("mnuLoad");
    EXPECT_EQ(screen.desktop.titles.size(), 1U) << "refused while neither side is chosen";
}

TEST(Window, a_dropped_army_is_loaded_into_the_side_shown)
{
    TemporaryFolder const folder;
    Screen screen;
    auto& name = screen.named<QLineEdit>("txtArmyName");
    auto const drop = [&](QString const& file) {
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(to_qt(folder.path()) + "/" + file)});
        QDropEvent event{name.geometry().center(), Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, {}};
        QCoreApplication::sendEvent(screen.window.windowHandle(), &event);
        QCoreApplication::processEvents();
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    };
    screen.desktop.path = folder.path("elves.Army");
    QTest::keyClicks(&name, "Elves");
    screen.trigger("mnuSave");
    folder.write("damaged.army", "no army");
    screen.choose_tab(2);
    EXPECT_EQ(drop("elves.Army"), Qt::CopyAction);
    EXPECT_EQ(screen.form.ArmyB.Name, "Elves");
    drop("damaged.army");
    screen.choose_tab(3);
    drop("elves.Army");
    EXPECT_EQ(screen.desktop.titles, (std::vector<std::string>{"Error!", "Warhost"})); // damaged; refused
    screen.window.setEnabled(false);
    EXPECT_EQ(drop("elves.Army"), Qt::IgnoreAction);
    EXPECT_EQ(screen.form.ArmyB.Name, "Elves");
}

/// What assistive technology can do to a window, whatever it shows.
void act_from_the_side(Screen& screen)
{
    auto const interface = [](QObject& at) { return QAccessible::queryAccessibleInterface(&at); };
    auto const press = QAccessibleActionInterface::pressAction();
    interface(screen.named<QTabBar>("TabStrip"))->child(1)->actionInterface()->doAction(press);
    interface(screen.named<QLineEdit>("txtArmyName"))->editableTextInterface()->insertText(0, "x");
    interface(*screen.named<ValueBox>("cmbOpt(0)").lineEdit())->editableTextInterface()->insertText(0, "7");
    for (char const* box : {"chkMisc(1)", "opt(1)", "cmdSaveArmy"})
        interface(screen.named<QWidget>(box))->actionInterface()->doAction(press);
    screen.trigger("mnuSave");
    QCoreApplication::processEvents();
}

TEST(Window, takes_no_input_from_anywhere_while_it_waits_for_a_disk_or_an_answer)
{
    Screen screen;
    auto const untouched = [&] {
        return screen.form.txtArmyName.text() + screen.form.cmbOpt(0).text() == "Elves+0" &&
               screen.desktop.titles.empty() && screen.named<QTabBar>("TabStrip").currentIndex() == 0 &&
               screen.form.TabStrip.position() == 1 && screen.form.chkMisc(1).state() == 0 &&
               !screen.form.opt(1).selected();
    };
    screen.form.txtArmyName.set_text("Elves");
    QWidget* const focus = screen.window.focusWidget();
    std::atomic<bool> told = false;
    QTimer::singleShot(700, [&] {
        EXPECT_TRUE(QApplication::activeModalWidget()->isVisible());
        EXPECT_TRUE(QApplication::activeModalWidget()->isEnabled());
        EXPECT_FALSE(screen.window.isEnabled());
        act_from_the_side(screen);
        EXPECT_TRUE(untouched());
        told = true;
    });
    screen.desktop.wait_for([&] {
        for (int wait = 0; wait < 500 && !told; ++wait) QThread::msleep(10);
    });
    EXPECT_TRUE(told);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(screen.window.isEnabled());
    EXPECT_EQ(screen.window.focusWidget(), focus);
    QTimer::singleShot(0, [&] {
        act_from_the_side(screen);
        EXPECT_TRUE(untouched());
        QApplication::activeModalWidget()->close();
    });
    screen.desktop.QtDesktop::message_box({.text = "A question"});
    screen.desktop.path.reset();
    act_from_the_side(screen);
    EXPECT_FALSE(untouched()); // all that was in reach
    EXPECT_THROW(screen.desktop.wait_for([] { throw Failure{1, "slow"}; }), Failure);
}

/// An input method, which commits its text when the focus is about to leave.
struct InputMethod : QObject {
    bool eventFilter(QObject* box, QEvent* event) override
    {
        if (event->type() != QEvent::FocusAboutToChange) return false;
        QInputMethodEvent commit;
        commit.setCommitString(std::exchange(text, {}));
        QCoreApplication::sendEvent(box, &commit);
        return false;
    }
    QString text = "ves";
};

TEST(Window, takes_what_an_input_method_commits_when_a_dialog_opens)
{
    Screen screen;
    auto& name = screen.named<QLineEdit>("txtArmyName");
    QTest::keyClicks(&name, "El");
    InputMethod method;
    name.installEventFilter(&method);
    QTimer::singleShot(0, [] { QApplication::activeModalWidget()->close(); });
    screen.desktop.QtDesktop::message_box({.text = "A question"});
    EXPECT_EQ(screen.form.ArmyA.Name, "Elves");
}

TEST(Window, whatever_is_clicked_and_typed_the_records_and_the_screen_agree)
{
    TemporaryFolder const folder;
    Screen screen;
    Generator chance{3};
    auto const any = [&](int last) { return roll_between(chance, 0, last); };
    char const* const typed[] = {"7", "-", "x y", "99999", " ", "2.5", "\b"};
    for (int round = 0; round < 1500 && !testing::Test::HasFatalFailure(); ++round) {
        SCOPED_TRACE(round);
        screen.desktop.path = folder.path(any(1) == 0 ? "one.Army" : "two.Army");
        // A total holds what is typed over it.
        auto in_reach = screen.window.findChildren<QWidget*>(QRegularExpression{"^(?!txtTotal)"});
        in_reach.removeIf([](auto* at) { return !at->isVisible() || (at->focusPolicy() & Qt::TabFocus) == 0; });
        QWidget* const widget = in_reach.at(any(static_cast<int>(in_reach.size()) - 1));
        if (any(1) == 0) QTest::mouseClick(widget, Qt::LeftButton, {}, {any(widget->width() - 1), 10});
        else QTest::keyClicks(widget, typed[any(6)]);
        if (auto* const list = QApplication::activePopupWidget())
            QTest::keyClick(list, any(1) == 0 ? Qt::Key_Escape : Qt::Key_Enter);
        QCoreApplication::processEvents();
        check_agreement(screen.form);
        ASSERT_EQ(screen.named<QLineEdit>("txtArmyName").text(), to_qt(screen.form.txtArmyName.text()));
        for (int k = 0; k < 8; ++k) {
            auto const& number = screen.named<QLineEdit>(QString{"txtUnitNum(%1)"}.arg(k));
            auto const& result = screen.named<ValueBox>(QString{"cmbOpt(%1)"}.arg(k));
            ASSERT_EQ(number.text(), to_qt(screen.form.txtUnitNum(k).text()));
            ASSERT_EQ(result.currentText(), to_qt(screen.form.cmbOpt(k).text()));
        }
    }
}

TEST(Window, shows_and_reads_numbers_as_the_user_writes_them)
{
    Screen screen;
    QString const point = QString::fromUtf8(std::localeconv()->decimal_point);
    auto& level = screen.named<ValueBox>("cmbLevel");
    level.lineEdit()->selectAll();
    QTest::keyClicks(&level, "2" + point + "5");
    EXPECT_EQ(screen.form.ArmyA.Level, 2.5F);
    screen.choose_tab(3);
    for (auto const& [box, percent] : {std::pair{"txtLoserCasualty", "37"}, {"txtVictorCasPercent", "45"}}) {
        screen.named<QLineEdit>(box).selectAll();
        QTest::keyClicks(&screen.named<QLineEdit>(box), percent);
    }
    EXPECT_EQ(screen.named<QLineEdit>("txtVictorCas").text(), "16" + point + "7");
}

TEST(Window, closing_asks_first)
{
    Screen screen;
    screen.desktop.answers = {Answer::no, Answer::yes};
    screen.desktop.while_asked = [&] { // a second request
        QCloseEvent again;
        QCoreApplication::sendEvent(&screen.window, &again);
        EXPECT_FALSE(again.isAccepted());
    };
    EXPECT_FALSE(screen.window.close());
    EXPECT_TRUE(screen.window.isVisible());
    screen.window.menuBar()->hide(); // the desktop may show the menus itself
    screen.trigger("mnuQuit");
    EXPECT_FALSE(screen.window.isVisible());
    EXPECT_EQ(screen.desktop.titles, (std::vector<std::string>{"Quit Warhost?", "Quit Warhost?"}));
}

TEST(Window, the_end_of_the_session_asks_once_and_respects_a_refusal)
{
    Screen screen;
    EXPECT_TRUE(screen.window.session_may_end(false)) << "nothing may be asked";
    screen.desktop.answers = {Answer::no, Answer::yes};
    EXPECT_FALSE(screen.window.session_may_end(true));
    QCoreApplication::processEvents();
    EXPECT_TRUE(screen.window.isVisible());
    screen.desktop.while_asked = [&] { EXPECT_FALSE(screen.window.session_may_end(true)) << "asked already"; };
    EXPECT_TRUE(screen.window.session_may_end(true));
    EXPECT_TRUE(screen.window.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !screen.window.isVisible(); }));
    EXPECT_TRUE(screen.window.close());
    EXPECT_EQ(screen.desktop.titles.size(), 2U);
}

#ifndef Q_OS_WIN
TEST(Window, a_signal_to_end_asks_once_and_closes_the_open_dialogs)
{
    Screen screen;
    EndSignals const end_signals{[&] { screen.window.close(); }};
    screen.desktop.answers = {Answer::no, Answer::yes};
    screen.desktop.while_asked = [] {
        for (int const signal : {SIGTERM, SIGHUP}) std::raise(signal);
        QCoreApplication::processEvents();
    };
    std::raise(SIGHUP);
    EXPECT_TRUE(QTest::qWaitFor([&] { return screen.desktop.titles.size() == 1; }));
    QCoreApplication::processEvents();
    EXPECT_TRUE(screen.window.isVisible());

    QDialog outer{&screen.window};
    QDialog inner{&outer};
    bool left_open = false;
    QTimer::singleShot(3000, &outer, [&] {
        left_open = true;
        inner.reject();
        outer.reject();
    });
    QTimer::singleShot(0, [&] {
        std::raise(SIGTERM);
        inner.exec();
    });
    outer.exec();
    EXPECT_FALSE(left_open);
    EXPECT_FALSE(screen.window.isVisible());
    EXPECT_EQ(screen.desktop.titles.size(), 2U);
}

TEST(Window, a_signal_to_end_waits_for_a_file)
{
    Screen screen;
    EndSignals const end_signals{[&] { screen.window.close(); }};
    screen.desktop.answers = {Answer::no};
    std::atomic<bool> noticed = false;
    QTimer::singleShot(700, [&] {
        for (int const signal : {SIGTERM, SIGTERM}) std::raise(signal);
        QTimer::singleShot(300, [&] { noticed = true; });
    });
    screen.desktop.wait_for([&] {
        for (int wait = 0; wait < 500 && !noticed; ++wait) QThread::msleep(10);
    });
    EXPECT_TRUE(noticed);
    EXPECT_TRUE(screen.desktop.titles.empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !screen.desktop.titles.empty(); }));
    EXPECT_EQ(screen.desktop.titles.size(), 1U);
}
#endif

TEST(Window, the_four_containers_follow_the_windows_size)
{
    Screen screen;
    auto const panel_height = screen.named<QWidget>("FrameMisc").height();
    EXPECT_EQ(screen.named<QWidget>("TabStrip").size(), QSize(852, 633));
    auto const name_place = screen.named<QWidget>("txtArmyName").mapTo(&screen.window, QPoint{});
    EXPECT_EQ(screen.form.FrameMisc.box(), (Frame::Box{6360, 360, 6120, 8520}));
    screen.window.resize(screen.window.size() + QSize{100, -200});
    QCoreApplication::processEvents();
    EXPECT_EQ(screen.named<QWidget>("FrameMisc").height(), panel_height - 200);
    EXPECT_EQ(screen.form.FrameMisc.box(), (Frame::Box{6360, 360, 6120 + 1500, 8520 - 3000}));
    EXPECT_EQ(screen.named<QWidget>("txtArmyName").mapTo(&screen.window, QPoint{}), name_place);
}

} // namespace

} // namespace warhost
