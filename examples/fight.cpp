// A battle between two army files in the terminal, on the form without a screen.

#include "army/modifier_options.h"
#include "base/failure.h"
#include "files/army_format.h"
#include "files/whole_file.h"
#include "ui/main.h"
#include "ui/rich_text_reader.h"
#include "ui/simulation_report.h"

#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace {

using namespace warhost;

constexpr std::string_view usage = "Usage: fight ARMY_A ARMY_B [SEED]\n";
constexpr std::string_view help = "\n"
                                  "Loads two .Army files as Side A and Side B, prints both armies, fights 1000\n"
                                  "battles and prints the odds, then fights one battle, applies its casualties and\n"
                                  "prints the survivors. No file is changed.\n"
                                  "\n"
                                  "SEED is a whole number from 0 to 18446744073709551615. The same seed gives the\n"
                                  "same battles; without one, the clock decides.\n";

constexpr std::size_t columns = 80;

/// The text with lines broken at blanks to fit the columns; a longer word stays whole.
std::string wrapped(std::string text)
{
    std::size_t line = 0;
    std::size_t blank = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '\n') {
            line = at + 1;
        } else if (text[at] == ' ') {
            blank = at;
        } else if (at - line >= columns && blank > line) {
            text[blank] = '\n';
            line = blank + 1;
        }
    }
    return text;
}

[[noreturn]] void stop(std::string_view reason)
{
    std::cerr << "fight: " << reason << '\n';
    std::exit(EXIT_FAILURE);
}

/// Answers every question from the command line; an error ends the program.
class Terminal final : public Desktop {
public:
    explicit Terminal(char const* program) : program_(program) {}

    /// The answer to the next file dialog.
    std::string path;

    Answer message_box(Message const& box) override
    {
        std::string text = box.text;
        std::erase(text, '\r');
        if (box.buttons == Buttons::abort_retry_ignore) stop(text);
        (box.icon == Icon::exclamation ? std::cerr : std::cout) << text << '\n';
        return Answer::ok;
    }
    void show_report(Message const& report, Tally const& /*tally*/, Odds const& odds) override
    {
        message_box(report);
        std::cout << wrapped(long_run_text(odds, number_format())) << "\n\n";
    }
    std::string input_box(InputBox const& box) override { return box.default_text; }
    std::optional<std::string> file_dialog(FileDialog const& /*dialog*/) override { return path; }

    bool minimized() override { return true; }
    ClientArea client_area() override { return {}; }
    double twips_per_pixel_x() override { return 15; }
    double twips_per_pixel_y() override { return 15; }
    void close_window() override {}
    [[noreturn]] void end_program() override { std::exit(EXIT_FAILURE); }
    NumberFormat number_format() override { return {}; }
    std::string program_directory() override
    {
        std::error_code error;
        auto program = std::filesystem::canonical("/proc/self/exe", error);
        if (error) program = std::filesystem::absolute(program_);
        return program.parent_path().string();
    }
    void show_help(int /*topic*/) override {}
    bool open_address(std::string const& /*address*/) override { return false; }
    void show_about() override {}

private:
    char const* program_;
};

std::string plain(std::string const& document)
{
    std::string text;
    for (auto const& paragraph : read_rich_text(document)) {
        if (!text.empty()) text += '\n';
        for (auto const& run : paragraph) text += run.text;
    }
    return text;
}

/// Ends the program if the file is not an army; the form's message would not name the file.
void check_army(std::string const& path)
{
    std::string bytes;
    try {
        bytes = read_file(path);
    } catch (Failure const& failure) {
        stop(failure.text);
    }
    try {
        static_cast<void>(decode_army(bytes));
    } catch (Failure const& failure) {
        stop(path + ": " + failure.text);
    }
}

void load(Main& form, Terminal& terminal, int side, char const* path)
{
    check_army(path);
    form.TabStrip.choose(side);
    terminal.path = path;
    form.cmdLoadArmy.press();
}

void print_units(Main& form)
{
    for (int row = 0; row < unit_rows; ++row) {
        if (form.txtUnitType(row).text().empty() && form.txtUnitNum(row).text() == "0") continue;
        std::cout << std::setw(9) << form.txtUnitNum(row).text() << "  " << form.txtUnitType(row).text() << '\n';
    }
    std::cout << std::setw(9) << form.txtTotalNo.text() << "  soldiers in all\n";
}

void print_army(Main& form, int side)
{
    form.TabStrip.choose(side);
    std::cout << side_name(side - tab_side_a) << ": " << form.txtArmyName.text() << '\n';
    print_units(form);
    for (auto const& option : options) {
        if (!form.opt(option.index).selected()) continue;
        std::cout << "  " << category_captions.at(static_cast<std::size_t>(option.category)) << ": " << option.caption
                  << ", " << form.cmbOpt(option.category).text() << '\n';
    }
    for (auto const& [row, box] : form.chkMisc) {
        if (box.state() == 1) std::cout << "  " << box.caption() << ": " << form.cmbMisc(row).text() << '\n';
    }
    std::cout << "  Troop ratio " << form.lblRatio.caption() << " gives " << form.lblRatioBonus.caption() << '\n'
              << "  Average level " << form.cmbLevel.text() << " vs " << form.lblOtherLevel.caption() << " gives "
              << form.lblLevelBonus.caption() << '\n'
              << "  Total modifier " << form.txtTotal.text() << "\n\n";
}

void print_battle(Main& form)
{
    std::cout << "Side A gets " << form.txtResult(0).text() << ", Side B gets " << form.txtResult(1).text()
              << "\nWinner: " << form.lblWinner.caption() << " by " << form.lblWinBy.caption() << " points\n\n"
              << "Loser's casualties: " << form.txtLoserCasualty.text() << " percent\n"
              << wrapped(plain(form.txtBattleResults.document())) << "\n\n"
              << "Victor's casualty roll " << form.txtVictorCasRoll.text() << ", range " << form.lblCasRange.caption()
              << ": " << form.txtVictorCasPercent.text() << "% of loser's " << form.lblLoserPercent.caption() << " is "
              << form.txtVictorCas.text() << "%\n"
              << wrapped(plain(form.txtVictorDesc.document())) << "\n\n";
}

void print_losses(Main& form, int Index)
{
    std::cout << side_name(Index) << std::setw(18) << "Had" << std::setw(10) << "Loses" << '\n';
    for (int row = 0; row < unit_rows; ++row) {
        int const field = combat_row(Index, row);
        if (form.txtAName(field).text().empty() && form.txtANum(field).text() == "0") continue;
        std::cout << std::setw(24) << form.txtANum(field).text() << std::setw(10) << form.txtLoses(field).text() << "  "
                  << form.txtAName(field).text() << '\n';
    }
    std::cout << '\n';
}

void print_survivors(Main& form, int Index)
{
    std::cout << side_name(Index) << ", survivors\n";
    form.TabStrip.choose(Index + 1);
    print_units(form);
    std::cout << "  Total modifier " << form.txtTotal.text() << "\n\n";
}

std::optional<std::uint64_t> seed_of(std::string_view text)
{
    std::uint64_t seed = 0;
    auto const read = std::from_chars(text.data(), text.data() + text.size(), seed);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return {};
    return seed;
}

std::uint64_t seed_of_the_clock()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

/// The exit status if nothing else has failed.
int written()
{
    if (!std::cout.flush()) stop("The output could not be written.");
    return EXIT_SUCCESS;
}

} // namespace

int main(int argument_count, char** arguments)
{
    if (argument_count == 2 && std::string_view{arguments[1]} == "--help") {
        std::cout << usage << help;
        return written();
    }
    if (argument_count < 3 || argument_count > 4) {
        std::cerr << usage << "fight --help explains more.\n";
        return EXIT_FAILURE;
    }
    auto const seed = argument_count == 4 ? seed_of(arguments[3]) : std::optional{seed_of_the_clock()};
    if (!seed) stop("SEED is a whole number from 0 to 18446744073709551615, not \"" + std::string{arguments[3]} + '"');
    Generator generator{*seed};
    Terminal terminal{arguments[0]};
    Main form{terminal, generator};
    form.Form_Load();
    load(form, terminal, tab_side_a, arguments[1]);
    load(form, terminal, tab_side_b, arguments[2]);
    print_army(form, tab_side_a);
    print_army(form, tab_side_b);

    form.TabStrip.choose(tab_combat);
    form.cmdSimulate.press();
    form.cmdRollAll.press();
    print_battle(form);
    if (form.chkPlus5.state() == 1 || form.chkMinus5.state() == 1) {
        std::cout << "The victor rolls again.\n\n";
        form.cmdRollCasualty.press();
        form.cmdRollVictorCas.press();
        print_battle(form);
    }
    for (int const Index : {0, 1}) print_losses(form, Index);
    for (int const Index : {0, 1}) form.cmdApplyCasualties(Index).press();
    for (int const Index : {0, 1}) print_survivors(form, Index);

    return written();
}
