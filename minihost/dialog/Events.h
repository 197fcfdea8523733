// Raw events, as a user's hands make them at the plug-in's dialog: posted one by one, and answered
// together, since what follows a press or an open list takes the events that wait and gives up when
// there are none.

#pragma once

#include <string>

#ifdef __OBJC__
@class NSView;
#else
class NSView;
#endif

namespace minihost {

// Modifier keys, as bits.
enum ModifierKeys : unsigned { shift_key = 1, control_key = 2, option_key = 4, command_key = 8 };

struct RawEvent {
    enum class Kind { MouseDown, MouseUp, MouseMove, Wheel, Key, Text };
    Kind kind = Kind::MouseMove;
    double x = 0, y = 0;   // points from the dialog's upper left corner, y downwards
    double dx = 0, dy = 0; // of a wheel, in lines
    bool right_button = false;
    int clicks = 1;
    unsigned modifiers = 0;
    char16_t key = 0; // the character of a key, or the platform's for one that writes nothing
    std::string text; // typed, UTF-8
};

// Hands over a view. Null has no place for the mouse: nothing happens. Keys go where the
// application sends them.
class Hands {
  public:
    // Throws ControlError for a text that is no UTF-8.
    void post(NSView* root, const RawEvent& event);
    // Lets the application answer all that waits, and lets go of a button that is still held.
    void settle();

  private:
    bool _waits = false;
    bool _left_is_down = false, _right_is_down = false;
};

} // namespace minihost
