// All windows, their order on the screen, and which of them an event of the display is for. One for
// the process; it uses a headless display until another is chosen.
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

    Display& display() { return *_display; }
    void set_display(std::unique_ptr<Display> display);
    NSSize screen_size() const;
    double scale() const { return _display->scale(); }

    // Windows are not retained. Their numbers are never reused.
    NSInteger add(NSWindow* window);
    void remove(NSWindow* window);
    const std::vector<NSWindow*>& all() const { return _all; }
    const std::vector<NSWindow*>& ordered() const { return _ordered; } // front to back
    NSWindow* window_with_number(NSInteger number) const;
    NSWindow* window_at(NSPoint screen) const; // nil if there is none

    // Among the windows of its level.
    void order_front(NSWindow* window);
    void order_back(NSWindow* window);
    void order_out(NSWindow* window);

    // nil when no window needs to know: movements that nobody follows, a change of the screen.
    NSEvent* translate(const DisplayEvent& event);
    void follow_moves(bool on) { _moves += on ? 1 : -1; }

    // Draws the windows that need it and presents the screen, if anybody sees it.
    void update();
    void screen_needs_update() { _stale = true; }
    unsigned long frames() const { return _frames; }
    // The screen's pixels: RGBA, rows top to bottom.
    std::vector<unsigned char> compose(int& width, int& height);

  private:
    WindowServer();
    NSEvent* translate_mouse(const DisplayEvent& event);
    NSEvent* translate_key(const DisplayEvent& event);
    void screen_changed();

    std::unique_ptr<Display> _display;
    std::vector<NSWindow*> _all;
    std::vector<NSWindow*> _ordered;
    NSInteger _next_number = 1;
    NSInteger _captured = 0; // number of the window that the pressed button belongs to
    bool _pressed = false;
    bool _right_pressed = false;
    int _moves = 0;
    bool _stale = true;
    std::vector<unsigned char> _shown; // what was presented last; empty after a change of display
    unsigned long _frames = 0;
};

} // namespace cocoa
