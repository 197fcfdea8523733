// Shows a menu's list in a window of its own and lets mouse and keys choose from it, lists of
// submenus included.
//
// 1. The list opens while the mouse button is down (or from the keyboard).
// 2. A drag moves the highlight; the release over an enabled item chooses it. A release where the
//    button went down leaves the list open: then the next click chooses, or closes it when outside.
// 3. Up, Down, Home and End move the highlight, Right and Left open and close a submenu, Return,
//    Enter and Space choose, Escape closes.
// When no event can come any more, the list closes without a choice.
#pragma once

#include <AppKit/NSMenu.h>
#include <Foundation/NSGeometry.h>

#include <vector>

@class NSEvent, NSMenuListView, NSWindow;

namespace cocoa {

// Where the items of a list are, from its top, without the list being open.
double menu_list_width(NSMenu* menu);
double menu_list_height(NSMenu* menu);
double menu_item_top(NSMenu* menu, NSInteger index);

class MenuTracker {
  public:
    MenuTracker() = default;
    ~MenuTracker() { close_to(0); }
    MenuTracker(const MenuTracker&) = delete;
    MenuTracker& operator=(const MenuTracker&) = delete;

    // The list's upper left corner in screen coordinates (moved so that the list is on the screen),
    // its least width, and the item to highlight at first (-1: none).
    void open(NSMenu* menu, NSPoint top_left, double width, NSInteger highlighted);

    // Answers the chosen item, autoreleased, or nil. `start` is where the mouse went down on the
    // screen, with `pressed` saying whether the button is still down.
    NSMenuItem* run(NSPoint start, bool pressed);

    // Moves the highlight of the innermost list to the next item that can be chosen (1), or back
    // (-1).
    void step(int direction);

    // For the menu bar: the screen rectangle in which the tracker hands the mouse back to its
    // caller, but for the title of the open list, and which way the arrows left it (-1, 0, 1).
    void set_bar(NSRect bar, NSRect title) {
        bar_ = bar;
        title_ = title;
    }
    bool left_for_bar() const { return left_for_bar_; }
    int side_step() const { return side_step_; }
    bool still_pressed() const { return pressed_; }

    // Where a list of that width and height is shown for a wished corner.
    static NSPoint on_screen(NSPoint top_left, double width, double height);

  private:
    struct Level {
        NSMenu* menu;         // retained
        NSWindow* window;     // retained
        NSMenuListView* view; // the window's
    };
    enum class Verdict { go_on, cancelled, chosen };

    void close_to(size_t count);
    int level_at(NSPoint screen) const;
    void highlight_at(NSPoint screen);
    void open_submenu();
    Verdict on_mouse(NSEvent* event);
    Verdict on_key(NSEvent* event);
    Verdict choose();

    std::vector<Level> levels_;
    NSPoint start_ = {0, 0};
    NSRect bar_ = {{0, 0}, {0, 0}};
    NSRect title_ = {{0, 0}, {0, 0}};
    bool pressed_ = false;
    bool moved_ = false;
    bool left_for_bar_ = false;
    int side_step_ = 0;
};

} // namespace cocoa
