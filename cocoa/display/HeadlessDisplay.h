// A display in memory: a screen of any size and scale that nobody sees, events that the program
// posts, a clipboard of its own.
#pragma once

#include "Display.h"

#include <deque>

namespace cocoa {

class HeadlessDisplay final : public Display {
  public:
    HeadlessDisplay(ScreenSize size, double scale) : _size(size), _scale(scale) {}

    void post(DisplayEvent event) { _events.push_back(std::move(event)); }

    ScreenSize size() const override { return _size; }
    double scale() const override { return _scale; }
    void present(const ScreenPixels&) override {}
    void set_title(const std::string&) override {}
    bool next_event(DisplayEvent& event, double seconds) override;
    bool has_user() const override { return false; }
    std::string clipboard() const override { return _clipboard; }
    void set_clipboard(const std::string& text) override { _clipboard = text; }

  private:
    ScreenSize _size;
    double _scale;
    std::deque<DisplayEvent> _events;
    std::string _clipboard;
};

} // namespace cocoa
