#include "ui/qt/end_signals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <optional>
#include <unistd.h>
#include <utility>

namespace warhost {

namespace {

constexpr std::array end_signals{SIGTERM, SIGHUP};

/// The write end of the pipe that records a signal: a signal handler may do little more than write.
std::sig_atomic_t volatile& write_end()
{
    static volatile std::sig_atomic_t end = -1;
    return end;
}

extern "C" void note_signal(int /*number*/)
{
    int const error = errno;
    // A full pipe already holds a request.
    [[maybe_unused]] auto const written = write(write_end(), "", 1);
    errno = error;
}

} // namespace

class EndSignals::Watch {
public:
    explicit Watch(std::function<void()> on_request) : on_request_(std::move(on_request))
    {
        if (pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return; // the signals then end the program as usual
        write_end() = pipe_[1];
        notifier_.emplace(pipe_[0], QSocketNotifier::Read);
        QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_, [this] {
            std::array<char, 64> requests{};
            while (read(pipe_[0], requests.data(), requests.size()) > 0) {}
            on_request_();
        });
        struct sigaction action {};
        action.sa_handler = note_signal;
        action.sa_flags = SA_RESTART;
        for (std::size_t k = 0; k < end_signals.size(); ++k) {
            sigaction(end_signals.at(k), nullptr, &before_.at(k));
            if (before_.at(k).sa_handler != SIG_IGN) sigaction(end_signals.at(k), &action, nullptr);
        }
    }
    ~Watch()
    {
        if (!notifier_) return;
        for (std::size_t k = 0; k < end_signals.size(); ++k) sigaction(end_signals.at(k), &before_.at(k), nullptr);
        for (int const end : pipe_) close(end);
    }
    Watch(Watch const&) = delete;
    Watch& operator=(Watch const&) = delete;

private:
    std::function<void()> on_request_;
    std::array<int, 2> pipe_{};
    std::optional<QSocketNotifier> notifier_;
    std::array<struct sigaction, end_signals.size()> before_{};
};

EndSignals::EndSignals(std::function<void()> on_request) : watch_(std::make_unique<Watch>(std::move(on_request))) {}

EndSignals::~EndSignals() = default;

} // namespace warhost
