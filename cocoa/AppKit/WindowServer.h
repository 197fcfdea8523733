// Which windows there are, how they lie on the screen, and which of them an event of the display
// is for. One for the process; it lives on a headless display until another is chosen.
#pragma once

#include "display/Display.h"

#include <Foundation/NSGeometry.h>
#include <memory>
#include <vector>

@class NSEvent, NSWindow;

namespace cocoa {

class WindowServer {
  public:
    static WindowServer& shared();

    Display& display() { return *display_; }
    void set_display(std::unique_ptr<Display> display);
    NSSize screen_size() const;
    double scale() const { return display_->scale(); }

    // Windows, none of them retained. A number is never used twice.
    NSInteger add(NSWindow* window);
    void remove(NSWindow* window);
    const std::vector<NSWindow*>& all() const { return all_; }
    const std::vector<NSWindow*>& ordered() const { return ordered_; } // front to back
    NSWindow* window_with_number(NSInteger number) const;
    NSWindow* window_at(NSPoint screen) const; // nil: none

    // Among the windows of its level.
    void order_front(NSWindow* window);
    void order_back(NSWindow* window);
    void order_out(NSWindow* window);

    // nil for what is nobody's business: movements that nobody follows, a change of the screen.
    NSEvent* translate(const DisplayEvent& event);
    NSPoint mouse_location() const { return mouse_; }
    void follow_moves(bool on) { moves_ += on ? 1 : -1; }

    // Draws the windows that need it and brings them to the display, if anybody sees it.
    void update();
    void screen_needs_update() { stale_ = true; }
    unsigned long frames() const { return frames_; }
    // The screen as it looks: RGBA, rows top to bottom.
    std::vector<unsigned char> compose(int& width, int& height);

  private:
    WindowServer();
    NSEvent* translate_mouse(const DisplayEvent& event);
    NSEvent* translate_key(const DisplayEvent& event);
    void screen_changed();

    std::unique_ptr<Display> display_;
    std::vector<NSWindow*> all_;
    std::vector<NSWindow*> ordered_;
    NSInteger next_number_ = 1;
    NSInteger next_event_ = 1;
    NSInteger captured_ = 0; // number of the window that the pressed button belongs to
    bool pressed_ = false;
    bool right_pressed_ = false;
    int moves_ = 0;
    bool stale_ = true;
    std::vector<unsigned char>
        shown_; // what the display has; empty when it must get the screen anew
    unsigned long frames_ = 0;
    NSPoint mouse_ = {0, 0};
};

} // namespace cocoa
