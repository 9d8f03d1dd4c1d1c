#include "ui/qt/end_signals.h"

namespace warhost {

class EndSignals::Watch {};

EndSignals::EndSignals(std::function<void()> /*on_request*/) {}

EndSignals::~EndSignals() = default;

} // namespace warhost
