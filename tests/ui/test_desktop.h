// A desktop without a screen, chance by script, and a started program to use them with.
#pragma once

#include "battle/random.h"
#include "temporary_folder.h"
#include "ui/desktop.h"
#include "ui/main.h"

#include <array>
#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace warhost {

/// Thrown where the real program would end.
struct ProgramEnded {};

/// "title: text [buttons, icon, default button]"
inline std::string described(MessageBox const& box)
{
    constexpr std::array buttons{"OK", "Yes No", "Abort Retry Ignore"};
    constexpr std::array icons{"no icon", "exclamation", "critical"};
    constexpr std::array answers{"OK", "Yes", "No", "Abort", "Retry", "Ignore"};
    return box.title + ": " + box.text + " [" + buttons.at(static_cast<std::size_t>(box.buttons)) + ", " +
           icons.at(static_cast<std::size_t>(box.icon)) + ", " +
           answers.at(static_cast<std::size_t>(box.default_answer)) + "]";
}

class TestDesktop final : public Desktop {
public:
    std::vector<std::string> boxes;    // every message box, described
    std::deque<Answer> answers;        // to the next message boxes; after them each gets its default answer
    std::function<void()> while_asked; // runs while a message box is open
    std::vector<InputBox> inputs;
    std::string typed;
    std::vector<FileDialog> dialogs;
    std::optional<std::string> chosen;
    std::vector<std::string> requests; // everything else that was asked for
    NumberFormat format;
    bool is_minimized = false;
    ClientArea client{12840, 9600};
    double twips = 15;
    std::string directory;

    Answer message_box(MessageBox const& box) override
    {
        boxes.push_back(described(box));
        if (while_asked) while_asked();
        if (answers.empty()) return box.default_answer;
        Answer const answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::string input_box(InputBox const& box) override
    {
        inputs.push_back(box);
        return typed;
    }
    std::optional<std::string> file_dialog(FileDialog const& dialog) override
    {
        dialogs.push_back(dialog);
        return chosen;
    }
    bool minimized() override { return is_minimized; }
    ClientArea client_area() override { return client; }
    double twips_per_pixel_x() override { return twips; }
    double twips_per_pixel_y() override { return twips; }
    void close_window() override { requests.emplace_back("close"); }
    [[noreturn]] void end_program() override { throw ProgramEnded{}; }
    NumberFormat number_format() override { return format; }
    std::string program_directory() override { return directory; }
    void show_help(int topic) override { requests.push_back("help " + std::to_string(topic)); }
    bool open_address(std::string const& address) override
    {
        requests.push_back(address);
        return false;
    }
    void show_about() override { requests.emplace_back("about"); }
};

/// Gives the planted values one after another, then `otherwise` for ever; running out without one is a failure.
class ScriptedRandom final : public RandomSource {
public:
    std::deque<double> values;
    std::optional<double> otherwise;
    int drawn = 0;

    double next() override
    {
        ++drawn;
        if (values.empty()) {
            EXPECT_TRUE(otherwise.has_value()) << "more was rolled than the script holds";
            return otherwise.value_or(0);
        }
        double const value = values.front();
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

/// A started program with a list of three misc modifiers, or another list, or none.
struct Program {
    static constexpr char const* usual_list = "High ground\r\n101|1,3\r\nAmbush\r\n102|3,1\r\nRain\r\n-2\r\n";

    TemporaryFolder folder;
    TestDesktop desktop;
    ScriptedRandom random;
    Main form{desktop, random};

    explicit Program(std::optional<std::string> const& list = usual_list)
    {
        if (list) folder.write("modif.txt", *list);
        desktop.directory = folder.path();
        form.Form_Load();
    }
};

} // namespace warhost
