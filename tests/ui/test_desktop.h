// A desktop without a screen, chance by script, and a started program to use them with.
#pragma once

#include "battle/random.h"
#include "temporary_folder.h"
#include "ui/desktop.h"
#include "ui/main.h"
#include "ui/simulation_report.h"

#include <array>
#include <clocale>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace warhost {

/// The C library's number format is the user's, as in the program.
inline auto const* const users_locale = std::setlocale(LC_ALL, "");

/// Thrown where the real program would end.
struct ProgramEnded {};

class TestDesktop final : public Desktop {
public:
    std::vector<std::string> boxes;      // every message box: "title: text [buttons, icon, default button]"
    std::optional<Answer> answer;        // to every message box; without it each gets its default answer
    std::function<void()> while_asked;   // runs while a message box is open
    std::function<void()> while_waiting; // runs while a file dialog is open, and while a file is waited for
    std::string typed;
    std::optional<std::string> chosen;
    std::array<std::string, 2> beside_report; // the lines on the long run and on the sample
    std::vector<std::string> requests;        // everything else that was asked for
    NumberFormat format;
    bool is_minimized = false;
    ClientArea client{12840, 9600};
    double twips = 15;
    std::string directory;

    Answer message_box(Message const& box) override
    {
        constexpr std::array buttons{"OK", "Yes No", "Abort Retry Ignore"};
        constexpr std::array icons{"no icon", "exclamation", "critical"};
        constexpr std::array answers{"OK", "Yes", "No", "Abort", "Retry", "Ignore"};
        auto const word = [](auto const& words, auto place) { return words.at(static_cast<std::size_t>(place)); };
        boxes.push_back(box.title + ": " + box.text + " [" + word(buttons, box.buttons) + ", " + word(icons, box.icon) +
                        ", " + word(answers, box.default_answer) + "]");
        if (while_asked) while_asked();
        return answer.value_or(box.default_answer);
    }
    std::string input_box(InputBox const& box) override
    {
        return noted(box.prompt + "|" + box.title + "|" + box.default_text, typed);
    }
    void wait_for(std::function<void()> const& work) override
    {
        if (while_waiting) while_waiting();
        work();
    }
    std::optional<std::string> file_dialog(FileDialog const& dialog) override
    {
        if (while_waiting) while_waiting();
        return noted((dialog.kind == FileDialogKind::open ? "open|" : "save|") + dialog.title + "|" +
                         dialog.default_extension + "|" + dialog.filter + "|" + dialog.file_name +
                         (dialog.file_must_exist ? " file-must-exist" : "") +
                         (dialog.folder_must_exist ? " folder-must-exist" : "") +
                         (dialog.overwrite_prompt ? " ask-before-overwriting" : ""),
                     chosen);
    }
    bool minimized() override { return is_minimized; }
    ClientArea client_area() override { return client; }
    double twips_per_pixel_x() override { return twips; }
    double twips_per_pixel_y() override { return twips; }
    void close_window() override { noted("close", true); }
    [[noreturn]] void end_program() override { throw ProgramEnded{}; }
    NumberFormat number_format() override { return format; }
    std::string program_directory() override { return directory; }
    void show_report(Message const& report, Tally const& tally, Odds const& odds) override
    {
        beside_report = {long_run_text(odds, format), sample_text(tally, format)};
        message_box(report);
    }
    void show_progress(std::int32_t fought, std::int32_t battles, Tally const& /*so_far*/) override
    {
        noted(std::to_string(fought) + " of " + std::to_string(battles), true);
    }
    void show_help(int topic) override { noted("help " + std::to_string(topic), true); }
    bool open_address(std::string const& address) override { return noted(address, false); }
    void show_about() override { noted("about", true); }

private:
    template <class Reply> Reply noted(std::string const& request, Reply reply)
    {
        requests.push_back(request);
        return reply;
    }
};

/// Gives the planted values one after another; that more is rolled than the script holds is a failure.
class ScriptedRandom final : public RandomSource {
public:
    std::deque<double> values;

    double next() override
    {
        double const value = values.at(0);
        values.pop_front();
        return value;
    }
};

/// The random value of a die that shows `face`, and of `percent` out of a range.
constexpr double d20(int face) { return (face - 0.5) / 20; }
constexpr double share(int percent, int low, int high) { return (percent - low + 0.5) / (high - low + 1); }

inline std::string const& shown(TextBox const& box) { return box.text(); }
inline std::string const& shown(TextLabel const& label) { return label.caption(); }

/// What the fields show, with a "/" between them.
template <class First, class... Fields> std::string texts(First const& first, Fields const&... fields)
{
    return (shown(first) + ... + ("/" + shown(fields)));
}

/// The box that reports a simulation, of its five numbers.
inline std::string report(std::array<std::string, 5> const& numbers)
{
    return "Warhost Simulation: Battle Results\r\n--------------\r\nSide A\r\n   Wins: " + numbers[0] +
           "% of the time\r\n   Average casualties: " + numbers[1] + "%\r\n\r\nSide B\r\n   Wins: " + numbers[2] +
           "% of the time\r\n   Average casualties: " + numbers[3] + "%\r\n\r\nTied:\r\n   " + numbers[4] +
           "% of the time\r\n\r\n [OK, no icon, OK]";
}

/// A started program with a list of three misc modifiers, or another list, or none.
template <class Random> struct Started {
    static constexpr char const* usual_list = "High ground\r\n101|1,3\r\nAmbush\r\n102|3,1\r\nRain\r\n-2\r\n";

    TemporaryFolder folder;
    TestDesktop desktop;
    Random random;
    Main form{desktop, random};

    explicit Started(Random source, std::optional<std::string> const& list = usual_list) : random(std::move(source))
    {
        if (list) folder.write("modif.txt", *list);
        desktop.directory = folder.path();
        form.Form_Load();
    }
};

struct Program : Started<ScriptedRandom> {
    explicit Program(std::optional<std::string> const& list = usual_list) : Started({}, list) {}
};

} // namespace warhost
