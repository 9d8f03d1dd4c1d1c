// The window system as the form sees it.
#pragma once

#include "ui/desktop.h"
#include "ui/qt/dialogs/simulation_progress.h"
#include "ui/qt/look/scale.h"

#include <QSize>
#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace warhost {

class QtDesktop : public Desktop {
public:
    /// The main window, the parent of the dialogs.
    void attach(QWidget* window) { window_ = window; }
    QWidget* window() const { return window_; }
    void set_scale(Scale const& scale) { scale_ = scale; }
    void set_client_size(QSize pixels) { client_ = pixels; }
    /// From now on no report is shown: it would keep the program running.
    void window_was_closed() { is_closed_ = true; }
    bool simulates() const { return progress_.has_value(); }

    Answer message_box(Message const& box) override;
    void show_report(Message const& report, Tally const& tally, Odds const& odds) override;
    void show_progress(std::int32_t fought, std::int32_t battles, Tally const& so_far) override;
    void wait_for(std::function<void()> const& work) override;
    std::string input_box(InputBox const& box) override;
    std::optional<std::string> file_dialog(FileDialog const& dialog) override;
    bool minimized() override;
    ClientArea client_area() override;
    double twips_per_pixel_x() override { return scale_.twips_per_pixel(); }
    double twips_per_pixel_y() override { return scale_.twips_per_pixel(); }
    void close_window() override;
    [[noreturn]] void end_program() override;
    NumberFormat number_format() override;
    std::string program_directory() override;
    void show_help(int topic) override;
    bool open_address(std::string const& address) override;
    void show_about() override;

    /// Show the manual and the About box; requests are ignored while these are empty.
    std::function<void(int topic)> help;
    std::function<void()> about;

private:
    QString folder_for(FileDialogKind kind);

    QWidget* window_ = nullptr;
    bool is_closed_ = false;
    Scale scale_;
    QSize client_;
    std::optional<SimulationProgress> progress_; // of the running simulation
    QString last_folder_;                        // of the file that the user chose last
};

} // namespace warhost
