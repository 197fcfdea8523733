#include "HeadlessDisplay.h"

namespace cocoa {

bool HeadlessDisplay::next_event(DisplayEvent& event, double) {
    if (_events.empty()) return false;
    event = std::move(_events.front());
    _events.pop_front();
    return true;
}

} // namespace cocoa
