// The system's request to end the program, outside of any window system.
#pragma once

#include <functional>
#include <memory>

namespace warhost {

/// While it exists, SIGTERM and SIGHUP call a function from the event loop instead of ending the process. A signal that
/// was ignored when the program started stays ignored. At most one may exist; it needs the application. On Windows,
/// where the window system makes every such request, it does nothing.
class EndSignals {
public:
    explicit EndSignals(std::function<void()> on_request);
    ~EndSignals();
    EndSignals(EndSignals const&) = delete;
    EndSignals& operator=(EndSignals const&) = delete;

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace warhost
