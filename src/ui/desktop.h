// Everything that the form asks of the window system, apart from its fields.
#pragma once

#include "army/value_conversion.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace warhost {

inline constexpr char const* program_title = "Warhost";

enum class Buttons { ok, yes_no, abort_retry_ignore };
enum class Icon { none, exclamation, critical };
enum class Answer { ok, yes, no, abort, retry, ignore };

/// A modal message. default_answer is the button that Enter presses.
struct Message {
    std::string text;
    std::string title = program_title;
    Buttons buttons = Buttons::ok;
    Icon icon = Icon::none;
    Answer default_answer = Answer::ok;
};

struct InputBox {
    std::string prompt;
    std::string title;
    std::string default_text;
};

enum class FileDialogKind { open, save };

struct FileDialog {
    FileDialogKind kind = FileDialogKind::open;
    std::string title;
    std::string default_extension;
    std::string filter; // description and pattern pairs, separated by "|"
    std::string file_name;
    bool file_must_exist = false;
    bool folder_must_exist = false;
    bool overwrite_prompt = false;
};

/// The window's inner size in twips.
struct ClientArea {
    double width, height;
};

class Odds;
class Tally;

class Desktop {
public:
    Desktop() = default;
    Desktop(Desktop const&) = delete;
    Desktop& operator=(Desktop const&) = delete;
    virtual ~Desktop() = default;

    virtual Answer message_box(Message const& box) = 0;

    /// Shows the report of a simulation; its box may show the tally and the exact odds beside the text.
    virtual void show_report(Message const& report, Tally const& /*tally*/, Odds const& /*odds*/)
    {
        message_box(report);
    }

    /// Shows how many battles of a simulation have been fought; called every few milliseconds, the last time with all
    /// of them. The tally may lack the last battle. Accepts no input.
    virtual void show_progress(std::int32_t /*fought*/, std::int32_t /*battles*/, Tally const& /*so_far*/) {}

    /// Runs work that waits for a disk or a network folder, and returns when it is done; what it throws is thrown here.
    /// Shows a message when it takes long. Accepts no input meanwhile.
    virtual void wait_for(std::function<void()> const& work) { work(); }

    /// The text typed; empty when cancelled.
    [[nodiscard]] virtual std::string input_box(InputBox const& box) = 0;

    /// The chosen path, UTF-8; nothing when cancelled.
    [[nodiscard]] virtual std::optional<std::string> file_dialog(FileDialog const& dialog) = 0;

    virtual bool minimized() = 0;
    virtual ClientArea client_area() = 0;
    virtual double twips_per_pixel_x() = 0;
    virtual double twips_per_pixel_y() = 0;

    /// Asks the main window to close, as its close button does.
    virtual void close_window() = 0;

    /// Ends the program at once, asking nothing. Does not return.
    [[noreturn]] virtual void end_program() = 0;

    virtual NumberFormat number_format() = 0;

    /// The folder that holds the program, without a separator at its end.
    virtual std::string program_directory() = 0;

    /// Opens the manual at its contents, or at a topic when the number is not 0; does not wait.
    virtual void show_help(int topic) = 0;

    /// Opens an address in the default browser, does not wait; false when that failed.
    [[nodiscard]] virtual bool open_address(std::string const& address) = 0;

    /// Shows the About box, or brings the open one to the front; does not wait.
    virtual void show_about() = 0;
};

} // namespace warhost
