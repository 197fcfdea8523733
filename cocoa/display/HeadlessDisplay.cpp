#include "HeadlessDisplay.h"

namespace cocoa {

void HeadlessDisplay::set_screen(ScreenSize size, double scale) {
    size_ = size;
    scale_ = scale;
    DisplayEvent event;
    event.kind = DisplayEvent::Kind::resized;
    events_.push_back(event);
}

bool HeadlessDisplay::next_event(DisplayEvent& event, double) {
    if (events_.empty()) return false;
    event = std::move(events_.front());
    events_.pop_front();
    return true;
}

} // namespace cocoa
