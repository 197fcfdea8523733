// Shows a menu's list in a window of its own and lets mouse and keys choose from it and from those
// of its submenus.
//
// 1. The list opens while the mouse button is down (or from the keyboard).
// 2. A drag moves the highlight; the release over an enabled item chooses it. A release where the
//    button went down leaves the list open: then the next click chooses, or closes it when outside.
// 3. Up, Down, Home and End move the highlight, Right and Left open and close a submenu, Return,
//    Enter and Space choose, Escape closes.
// When no more events can come, the list closes without a choice.
#pragma once

#include <AppKit/NSMenu.h>
#include <Foundation/NSGeometry.h>

#include <vector>

@class NSEvent, NSMenuListView, NSWindow;

namespace cocoa {

// The size of a list, and the distance of an item from its top, in points.
double menu_list_width(NSMenu* menu);
double menu_list_height(NSMenu* menu);
double menu_item_top(NSMenu* menu, NSInteger index);

class MenuTracker {
  public:
    MenuTracker() = default;
    ~MenuTracker() { close_to(0); }
    MenuTracker(const MenuTracker&) = delete;
    MenuTracker& operator=(const MenuTracker&) = delete;

    // At the upper left corner in screen coordinates, moved so that the list is on the screen, and
    // at least `width` wide; `highlighted` is the item that is highlighted at first, -1 for none.
    void open(NSMenu* menu, NSPoint top_left, double width, NSInteger highlighted);

    // Returns the chosen item, autoreleased, or nil. `start` is where the mouse went down on the
    // screen, `pressed` whether the button is still down.
    NSMenuItem* run(NSPoint start, bool pressed);

    // Moves the highlight of the innermost list to the next (1) or previous (-1) item that can be
    // chosen.
    void step(int direction);

    // For the menu bar: in its rectangle on the screen, except over the title of the open list, the
    // tracker ends and leaves the mouse to its caller. side_step is where the arrows left to: -1
    // or 1.
    void set_bar(NSRect bar, NSRect title) {
        _bar = bar;
        _title = title;
    }
    bool left_for_bar() const { return _left_for_bar; }
    int side_step() const { return _side_step; }
    bool still_pressed() const { return _pressed; }

  private:
    struct Level {
        NSMenu* menu;         // retained
        NSWindow* window;     // retained
        NSMenuListView* view; // the window's
    };
    enum class Verdict { Continue, Cancelled, Chosen };

    void close_to(size_t count);
    int level_at(NSPoint screen) const;
    void highlight_at(NSPoint screen);
    void open_submenu();
    Verdict on_mouse(NSEvent* event);
    Verdict on_key(NSEvent* event);
    Verdict choose();

    std::vector<Level> _levels;
    NSPoint _start = {0, 0};
    NSRect _bar = {{0, 0}, {0, 0}};
    NSRect _title = {{0, 0}, {0, 0}};
    bool _pressed = false;
    bool _moved = false;
    bool _left_for_bar = false;
    int _side_step = 0;
};

} // namespace cocoa
