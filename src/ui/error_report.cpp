#include "files/whole_file.h"
#include "ui/main.h"

#include <string>
#include <string_view>
#include <utility>

namespace warhost {

void Main::ErrReport(std::string_view context)
{
    if (pending_error.number == 0) return;
    Failure const failure = std::exchange(pending_error, {});
    auto answer = Answer::ignore;
    quiet_step([&] {
        std::string text = "Error " + plain_text(failure.number) + ": '" + failure.text + "'.\r\n";
        if (!context.empty()) text.append("Raised while ").append(context).append("\r\n");
        text += "\r\nPress Ignore to continue.\r\n"
                "If you press Abort, the program will end and you will lose any unsaved data."
                "\r\nIf this error occurs again, try reinstalling Gamemind.\r\n";
        answer = desktop_.message_box({text, "Error!", Buttons::abort_retry_ignore, Icon::critical, Answer::ignore});
    });
    if (answer == Answer::abort) desktop_.end_program();
}

bool Main::CheckFile(std::string const& path)
{
    if (FileExists(path)) return true;
    desktop_.message_box({"File '" + path +
                              "' not found. Make sure the file hasn't been moved or deleted. Please reinstall the "
                              "program if this occurs again.",
                          "File Not Found", Buttons::ok, Icon::exclamation, Answer::ok});
    return false;
}

} // namespace warhost
