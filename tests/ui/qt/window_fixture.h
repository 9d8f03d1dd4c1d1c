// A started program with its window, whose dialogs answer as planted.
#pragma once

#include "battle/random.h"
#include "ui/main.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/screens/window.h"

#include <QAction>
#include <QApplication>
#include <QFont>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace warhost {

class PlantedDesktop final : public QtDesktop {
public:
    explicit PlantedDesktop(std::string directory) : directory_(std::move(directory)) {}

    std::deque<Answer> answers; // the default answer when there is none
    std::optional<std::string> path;
    std::vector<std::string> titles;   // of the messages shown
    std::function<void()> while_asked; // runs while a message is open

    Answer message_box(Message const& box) override
    {
        titles.push_back(box.title);
        if (while_asked) while_asked();
        if (answers.empty()) return box.default_answer;
        Answer const answer = answers.front();
        answers.pop_front();
        return answer;
    }
    void show_report(Message const& report, Tally const&, Odds const&) override { message_box(report); }
    std::string input_box(InputBox const& box) override { return box.default_text; }
    std::optional<std::string> file_dialog(FileDialog const&) override { return path; }
    std::string program_directory() override { return directory_; }

private:
    std::string directory_;
};

/// font_share: of the base font's size.
struct Screen {
    PlantedDesktop desktop;
    Generator random{7};
    Main form{desktop, random};
    Window window;

    /// directory: the program's.
    explicit Screen(double font_share = 1, std::string const& directory = WARHOST_DATA)
        : desktop(directory),
          window(form_with_font(font_share), desktop)
    {
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    template <class Widget> Widget& named(QString const& name)
    {
        auto* const widget = window.findChild<Widget*>(name);
        if (widget == nullptr) throw std::runtime_error{"no widget " + name.toStdString()};
        return *widget;
    }

    void choose_tab(int position)
    {
        auto& tabs = named<QTabBar>("TabStrip");
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(position - 1).center());
        QCoreApplication::processEvents();
    }

    void trigger(char const* action) { named<QAction>(action).trigger(); }

private:
    Main& form_with_font(double share)
    {
        QFont font{"DejaVu Sans"};
        font.setPointSizeF(8.25 * share);
        QApplication::setFont(font);
        return form;
    }
};

/// "opt(0-3)" stands for opt(0) to opt(3), "a,b(0-1)" for a(0), b(0), a(1) and b(1).
inline QStringList spelled_out(QString const& ranges)
{
    QStringList names;
    for (QString const& word : ranges.split(' ')) {
        auto const range = QRegularExpression{R"(^([\w,]+)\((\d+)-(\d+)\)$)"}.match(word);
        if (!range.hasMatch()) names.push_back(word);
        else
            for (int k = range.captured(2).toInt(); k <= range.captured(3).toInt(); ++k)
                for (QString const& name : range.captured(1).split(','))
                    names.push_back(QString{"%1(%2)"}.arg(name).arg(k));
    }
    return names;
}

} // namespace warhost
