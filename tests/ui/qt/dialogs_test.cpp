// The dialogs of the real window system, answered by keys.
#include "battle/odds.h"
#include "temporary_folder.h"
#include "ui/qt/dialogs/file_chooser.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/widgets/text.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <utility>

namespace warhost {

namespace {

/// Runs on the dialog that opens next.
void answer_next_box(std::function<void(QWidget& box)> const& answer)
{
    QTimer::singleShot(0, [=] { answer(*QApplication::activeModalWidget()); });
}

TEST(Dialogs, keep_the_order_of_their_buttons_and_are_harmless_on_escape)
{
    QtDesktop desktop;
    std::tuple<Buttons, Answer, Answer, QStringList> const rows[] = {
        {Buttons::ok, Answer::ok, Answer::ok, {"OK"}},
        {Buttons::yes_no, Answer::yes, Answer::no, {"Yes", "No"}},
        {Buttons::abort_retry_ignore, Answer::ignore, Answer::ignore, {"Abort", "Retry", "Ignore"}},
        {Buttons::abort_retry_ignore, Answer::abort, Answer::ignore, {"Abort", "Retry", "Ignore"}}};
    for (auto const& [buttons, by_enter, by_escape, order] : rows) {
        for (auto const& [key, answer] : {std::pair{Qt::Key_Enter, by_enter}, {Qt::Key_Escape, by_escape}}) {
            QStringList shown;
            answer_next_box([&, pressed = key](QWidget& box) {
                auto found = box.findChildren<QPushButton*>();
                std::ranges::sort(found, {}, &QPushButton::x);
                for (auto* const button : found) shown << button->text().remove('&');
                QTest::keyClick(&box, pressed);
            });
            EXPECT_EQ(desktop.message_box({"<b>&", "?", buttons, Icon::none, by_enter}), answer);
            EXPECT_EQ(shown, order);
        }
    }
}

TEST(Dialogs, show_a_path_of_any_length_whole_and_within_the_screen)
{
    QtDesktop desktop;
    for (std::size_t const length : {20, 300, 3000, 60000}) {
        std::string const text = "File '" + std::string(length, 'w') + "' not found.";
        answer_next_box([&](QWidget& box) {
            auto& shown = *box.findChild<QTextEdit*>();
            QSize const size = shown.document()->size().toSize(), room = shown.viewport()->size();
            EXPECT_LE(size.width(), room.width()) << length;
            EXPECT_TRUE(size.height() <= room.height() || shown.verticalScrollBar()->isVisible()) << length;
            EXPECT_EQ(box.size().boundedTo(box.screen()->availableSize()), box.size()) << length;
            shown.selectAll();
            shown.copy();
            EXPECT_EQ(QApplication::clipboard()->text().toStdString(), text);
            QTest::keyClick(&box, Qt::Key_Enter);
        });
        desktop.message_box({.text = text, .icon = Icon::critical});
    }
}

/// Chooses in a folder with a few files; what is asked is answered as planted, else by its default.
struct FileChoice : testing::Test {
    TemporaryFolder folder;
    std::vector<std::string> asked;
    std::deque<Answer> answers;
    FileDialog open{.title = "Load",
                    .default_extension = ".Army",
                    .filter = "Army Files (*.Army)|*.Army|All Files|*.*",
                    .file_name = {},
                    .file_must_exist = true,
                    .folder_must_exist = true};
    FileDialog save = open;

    FileChoice()
    {
        save.kind = FileDialogKind::save;
        save.file_must_exist = false;
        save.overwrite_prompt = true;
        for (char const* name : {"plain.Army", "both", "both.Army", "bare", "v1.2.Army", ".Army"})
            folder.write(name, "");
        std::filesystem::create_directory(folder.path("sub.Army"));
    }
    Answer ask(Message const& box)
    {
        asked.push_back(box.text);
        EXPECT_EQ(box.default_answer, box.buttons == Buttons::yes_no ? Answer::no : Answer::ok);
        if (answers.empty()) return box.default_answer;
        Answer const answer = answers.front();
        answers.pop_front();
        return answer;
    }
    FileChooser chooser(FileDialog const& request)
    {
        return {request, [this](Message const& box) { return ask(box); }};
    }
};

TEST_F(FileChoice, opens_the_chosen_file_and_writes_only_to_the_path_that_was_asked_about)
{
    auto const replace = [](std::string const& name) { return name + " already exists.\nDo you want to replace it?"; };
    std::string const long_name(251, 'x');
    // The path in the folder, "" when refused; what is said, with a path behind a colon.
    std::tuple<FileDialog const&, std::string, std::string, std::string> const rows[] = {
        {open, "bare", "bare", ""},
        {open, "both", "both", ""},
        {open, "plain", "plain.Army", ""},
        {open, "v1.2", "v1.2.Army", ""},
        {open, "none", "", "The file was not found:"},
        {open, "none/x", "", "The folder was not found:"},
        {open, "sub", "", "This is a folder, not a file:"},
        {save, "new", "new.Army", ""},
        {save, "plain", "plain.Army", replace("plain.Army")},
        {save, "both", "both.Army", replace("both.Army")},
        {save, "both.Army", "both.Army", replace("both.Army")},
        {save, "v1.2", "v1.2", ""},
        {save, "none/x", "", "The folder was not found:"},
        {save, "sub", "", "This is a folder, not a file:"},
        {save, long_name.substr(1), long_name.substr(1) + ".Army", ""},
        {save, long_name, "", "The file name is too long:"},
    };
    for (auto const& [request, chosen, path, said] : rows) {
        SCOPED_TRACE(chosen);
        asked.clear();
        answers = {Answer::yes};
        auto const settled = chooser(request).settled(to_qt(folder.path(chosen)));
        EXPECT_EQ(settled.value_or("").toStdString(), path.empty() ? "" : folder.path(path));
        ASSERT_EQ(asked.size(), said.empty() ? 0U : 1U);
        EXPECT_TRUE(said.empty() || asked[0].starts_with(said)) << asked[0];
    }
}

TEST_F(FileChoice, refused_after_the_desktops_dialog_shows_it_again)
{
    std::deque<std::optional<FileChooser::Choice>> choices;
    std::vector<std::string> starts;
    auto const show = [&](QString const& start) {
        starts.push_back(start.toStdString());
        auto const choice = choices.front();
        choices.pop_front();
        if (choice)
            return std::optional{FileChooser::Choice{to_qt(folder.path(choice->path.toStdString())), choice->settled}};
        return choice;
    };
    save.file_name = "Elves.Army";
    choices = {{{"plain"}}, {{"none/x"}}, {{"plain"}}};
    answers = {Answer::no, Answer::ok, Answer::yes};
    EXPECT_EQ(chooser(save).choose(show), to_qt(folder.path("plain.Army")));
    EXPECT_EQ(starts, (std::vector<std::string>{"Elves.Army", folder.path("plain"), folder.path("none/x")}));
    EXPECT_EQ(asked.size(), 3U);
    choices = {{{"plain"}}, std::nullopt};
    EXPECT_EQ(chooser(save).choose(show), std::nullopt);
    choices = {{{"plain.Army", true}}}; // judged while the dialog was open
    EXPECT_EQ(chooser(save).choose(show), to_qt(folder.path("plain.Army")));
    EXPECT_EQ(asked.size(), 4U);
}

TEST_F(FileChoice, refused_in_the_toolkits_dialog_leaves_it_open_with_the_typed_text)
{
    QtDesktop desktop;
    std::string const too_long = folder.path(std::string(300, 'x'));
    // The first is refused, the second accepted; "" cancels.
    std::tuple<FileDialog const&, std::string, std::string, std::string> const rows[] = {
        {save, folder.path("plain"), folder.path("new"), folder.path("new.Army")},
        {save, too_long, folder.path("v1.3"), folder.path("v1.3")},
        {save, folder.path("none/x"), "", ""},
        {open, folder.path("none"), folder.path("plain"), folder.path("plain.Army")},
        {open, folder.path("none/x"), folder.path("both"), folder.path("both")},
    };
    for (auto const& [request, refused, accepted, path] : rows) {
        SCOPED_TRACE(refused);
        answer_next_box([&, first = refused, then = accepted](QWidget& box) {
            auto& dialog = dynamic_cast<QFileDialog&>(box);
            EXPECT_EQ(dialog.nameFilters(), (QStringList{"Army Files (*.Army)", "All Files (*)"}));
            auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
            auto* const buttons = dialog.findChild<QDialogButtonBox*>();
            name->setText(to_qt(first));
            answer_next_box([&](QWidget& question) {
                asked.push_back(question.windowTitle().toStdString());
                QTest::keyClick(&question, Qt::Key_Enter); // No, or OK
            });
            buttons->buttons().at(0)->click();
            EXPECT_EQ(std::exchange(asked, {}).size(), 1U);
            EXPECT_EQ(name->text().toStdString(), first);
            EXPECT_TRUE(dialog.isVisible());
            name->setText(to_qt(then));
            QTest::keyClick(name, then.empty() ? Qt::Key_Escape : Qt::Key_Return);
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_EQ(desktop.file_dialog(request).value_or(""), path);
    }
}

TEST_F(FileChoice, lists_the_armies_of_the_folder_with_the_hidden_one_when_loading)
{
    answer_next_box([&](QWidget& box) {
        auto& dialog = dynamic_cast<QFileDialog&>(box);
        auto* const list = dialog.findChild<QAbstractItemView*>("listView");
        auto const names = [&] {
            std::set<std::string> found;
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                found.insert(list->model()->index(row, 0, list->rootIndex()).data().toString().toStdString());
            return found;
        };
        std::set<std::string> const armies{".Army", "both.Army", "plain.Army", "sub.Army", "v1.2.Army"};
        EXPECT_TRUE(QTest::qWaitFor([&] { return names() == armies; }));
        dialog.reject();
    });
    EXPECT_FALSE(chooser(open).show_dialog(to_qt(folder.path()), {}, nullptr));
}

TEST_F(FileChoice, neither_reads_nor_changes_the_toolkits_settings_of_the_user)
{
    QFile settings{qEnvironmentVariable("XDG_CONFIG_HOME") + "/QtProject.conf"};
    ASSERT_TRUE(settings.open(QIODevice::ReadWrite | QIODevice::NewOnly));
    QByteArray const own = "[FileDialog]\nlastVisited=file:///own\n";
    settings.write(own);
    settings.flush();
    answer_next_box([&](QWidget& box) {
        EXPECT_FALSE(QSettings(QSettings::UserScope, "QtProject").contains("FileDialog/lastVisited"));
        dynamic_cast<QDialog&>(box).reject();
    });
    EXPECT_FALSE(chooser(open).show_dialog(to_qt(folder.path()), {}, nullptr));
    settings.close();
    ASSERT_TRUE(settings.open(QIODevice::ReadOnly));
    EXPECT_EQ(settings.readAll(), own);
    settings.remove();
}

TEST(Dialogs, the_input_box_returns_the_text_or_nothing_if_cancelled)
{
    QtDesktop desktop;
    for (auto const& [key, text] : {std::pair{Qt::Key_Enter, "1000"}, {Qt::Key_Escape, ""}}) {
        answer_next_box([pressed = key](QWidget& box) { QTest::keyClick(&box, pressed); });
        EXPECT_EQ(desktop.input_box({.prompt = "How many?", .title = "Simulate", .default_text = "1000"}), text);
    }
}

} // namespace

} // namespace warhost
