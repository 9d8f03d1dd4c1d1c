// The window compared with an empty one of the same size, as whole processes; the cost of a key and of a battle.

#include "battle/random.h"
#include "ui/main.h"
#include "ui/qt/dialogs/qt_desktop.h"
#include "ui/qt/look/page_style.h"
#include "ui/qt/screens/window.h"

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace warhost;

constexpr QSize created_size{856, 640};

/// A desktop with the list of modifiers in a given folder, which asks nothing.
class BenchDesktop final : public QtDesktop {
public:
    explicit BenchDesktop(std::string folder) : folder_(std::move(folder)) {}
    std::string program_directory() override { return folder_; }
    Answer message_box(Message const& box) override { return box.default_answer; }

private:
    std::string folder_;
};

/// Returns when the window is on the screen and has been painted.
void show_ready(QWidget& window)
{
    window.show();
    while (!window.windowHandle()->isExposed()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
}

struct Program {
    BenchDesktop desktop;
    Generator random{1};
    Main form{desktop, random};
    Window window{form, desktop};

    explicit Program(std::string const& folder) : desktop(folder) { show_ready(window); }
};

// What a child process can show instead of the program with the list in a folder.
constexpr char const* empty_window = "--empty";
constexpr char const* window_with_menus = "--menus"; // its captions are the first text, for which the fonts are loaded

/// The work of a child process: shows a window, waits until it is painted, and ends.
[[noreturn]] void show_once(int argc, char** argv, std::string const& what)
{
    QApplication const application{argc, argv};
    QApplication::setStyle(new PageStyle);
    if (what != empty_window && what != window_with_menus) {
        Program const program{what};
        ::_exit(0);
    }
    QMainWindow window;
    window.resize(created_size);
    if (what == window_with_menus) {
        for (char const* const caption : {"File", "Web Links", "Help"}) window.menuBar()->addMenu(caption);
    }
    show_ready(window);
    ::_exit(0);
}

/// The processor time of a child process in milliseconds.
double child_time(std::string const& what)
{
    pid_t const child = ::fork();
    if (child == 0) {
        ::execl("/proc/self/exe", "window_bench", "--show", what.c_str(), nullptr);
        ::_exit(1);
    }
    int status = 0;
    rusage usage{};
    if (::wait4(child, &status, 0, &usage) != child || status != 0) {
        std::cerr << "No window was shown by --show " << what << '\n';
        std::exit(EXIT_FAILURE);
    }
    auto const milliseconds = [](timeval time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

std::string program_folder() { return std::string{BENCH_PROGRAM_FOLDER}; }

/// A folder with a list of 300 rows of 500 values.
std::string long_list_folder()
{
    std::string folder = "/tmp/warhost-bench-XXXXXX";
    if (::mkdtemp(folder.data()) == nullptr) return {};
    std::ofstream list{folder + "/modif.txt", std::ios::binary};
    for (int row = 0; row < 300; ++row) list << "Row " << row << "\r\n0|1,500\r\n";
    return folder;
}

/// The best of several rounds; the candidates take turns in each.
void start(benchmark::State& state)
{
    constexpr int rounds = 20;
    std::string const folder = long_list_folder();
    std::array<std::string, 4> const shown{empty_window, window_with_menus, program_folder(), folder};
    std::array<double, 4> best{1e9, 1e9, 1e9, 1e9};
    auto const& [empty, menus, window, long_list] = best;
    for (auto _ : state) {
        for (int round = 0; round < rounds; ++round) {
            for (std::size_t k = 0; k < shown.size(); ++k) best.at(k) = std::min(best.at(k), child_time(shown.at(k)));
        }
        state.SetIterationTime(window * 1e-3);
    }
    ::unlink((folder + "/modif.txt").c_str());
    ::rmdir(folder.c_str());
    state.counters["empty_ms"] = empty;
    state.counters["menus_ms"] = menus;
    state.counters["window_ms"] = window;
    state.counters["long_list_ms"] = long_list;
    state.counters["window/empty"] = window / empty;
    state.counters["window/menus"] = window / menus;
    state.counters["long_list/window"] = long_list / window;
}
BENCHMARK(start)->UseManualTime()->Iterations(1);

void measure(benchmark::State& state, int tab, void (*act)(Program&))
{
    Program program{program_folder()};
    program.form.TabStrip.choose(tab);
    double slowest = 0;
    for (auto _ : state) {
        std::clock_t const before = std::clock();
        act(program);
        QCoreApplication::processEvents(); // paints the changes
        slowest = std::max(slowest, 1e3 * static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC);
    }
    state.counters["slowest_ms"] = slowest;
}

void type_soldiers(benchmark::State& state)
{
    measure(state, tab_side_a, [](Program& program) {
        program.form.txtUnitNum(0).set_text(program.form.txtUnitNum(0).text() == "1234" ? "123" : "1234");
    });
}
BENCHMARK(type_soldiers)->Unit(benchmark::kMillisecond)->Iterations(200);

void roll_all(benchmark::State& state)
{
    measure(state, tab_combat, [](Program& program) { program.form.cmdRollAll.press(); });
}
BENCHMARK(roll_all)->Unit(benchmark::kMillisecond)->Iterations(200);

} // namespace

int main(int argc, char* argv[])
{
    if (argc == 3 && std::string{argv[1]} == "--show") show_once(argc, argv, argv[2]);
    QApplication const application{argc, argv};
    QApplication::setStyle(new PageStyle);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
