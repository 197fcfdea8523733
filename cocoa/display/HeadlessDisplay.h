// A display in memory: a screen of any size and scale that nobody sees, events that a program
// posts, a clipboard of its own.
#pragma once

#include "Display.h"

#include <deque>

namespace cocoa {

class HeadlessDisplay final : public Display {
  public:
    HeadlessDisplay(ScreenSize size, double scale) : size_(size), scale_(scale) {}

    void set_screen(ScreenSize size, double scale);
    void post(DisplayEvent event) { events_.push_back(std::move(event)); }

    ScreenSize size() const override { return size_; }
    double scale() const override { return scale_; }
    bool is_seen() const override { return false; }
    void present(const ScreenPixels&) override {}
    void set_title(const std::string&) override {}
    bool next_event(DisplayEvent& event, double seconds) override;
    bool has_user() const override { return false; }
    std::string clipboard() const override { return clipboard_; }
    void set_clipboard(const std::string& text) override { clipboard_ = text; }

  private:
    ScreenSize size_;
    double scale_;
    std::deque<DisplayEvent> events_;
    std::string clipboard_;
};

} // namespace cocoa
