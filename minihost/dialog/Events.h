// Raw events of a user's mouse and keyboard over the plug-in's dialog. They are posted one by one
// and handled together: a control that tracks the mouse, or an open pop-up list, takes the events
// that follow from the queue and gives up when it is empty.

#pragma once

#include "sdk/HostTypes.h"

#include <string>

namespace minihost {

// Modifier keys, as bits.
enum ModifierKeys : unsigned { ShiftKey = 1, ControlKey = 2, OptionKey = 4, CommandKey = 8 };

struct RawEvent {
    enum class Kind { MouseDown, MouseUp, MouseMove, Wheel, Key, Text };
    Kind kind = Kind::MouseMove;
    double x = 0, y = 0;   // points from the dialog's upper left corner, y downwards
    double dx = 0, dy = 0; // of a wheel, in lines
    bool right_button = false;
    int clicks = 1;
    unsigned modifiers = 0;
    char16_t key = 0; // a character, or the platform's code for a key that writes none
    std::string text; // typed, UTF-8
};

class EventPoster {
  public:
    // Queues an event over `root`; without a view, mouse events are dropped. Keys go to whatever
    // has the focus. Throws ControlError for text that is not UTF-8.
    void post(NSView* root, const RawEvent& event);
    // Lets the application handle all queued events, and forgets a button that is still held.
    void settle();

  private:
    bool _has_queued = false;
    bool _left_is_down = false, _right_is_down = false;
};

} // namespace minihost
