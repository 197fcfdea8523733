// The interface between the window system and what shows it: one screen of pixels goes out, events
// and the clipboard's text come in. Windows, menu bar and pop-up lists are composed above it.
#pragma once

#include <string>

namespace cocoa {

struct ScreenSize {
    double width = 0; // points
    double height = 0;
};

// Modifier keys of an event, as bits.
enum Modifiers : unsigned { Shift = 1, Control = 2, Option = 4, Command = 8 };

struct DisplayEvent {
    enum class Kind { MouseDown, MouseUp, MouseMove, Wheel, KeyDown, KeyUp, Resized, Quit };
    Kind kind = Kind::MouseMove;
    double x = 0; // points from the upper left corner of the screen, y downwards
    double y = 0;
    bool right_button = false;
    int clicks = 1;
    double lines = 0; // of the wheel, positive away from the user
    unsigned modifiers = 0;
    std::string characters; // UTF-8; keys that type nothing: the function key's character
};

// Pixels of the screen: RGBA, 8 bits each, premultiplied, the topmost row first, rows of width * 4
// bytes.
struct ScreenPixels {
    const unsigned char* rgba = nullptr;
    int width = 0;
    int height = 0;
};

class Display {
  public:
    virtual ~Display() = default;

    virtual ScreenSize size() const = 0;
    virtual double scale() const = 0; // pixels per point, above 0

    // Whether anybody sees the screen and can send events.
    virtual bool has_user() const = 0;
    virtual void present(const ScreenPixels& pixels) = 0;
    virtual void set_title(const std::string& title) = 0;

    // Takes the next event, waiting for at most the given seconds; false if there is none. A
    // display without a user does not wait.
    virtual bool next_event(DisplayEvent& event, double seconds) = 0;

    virtual std::string clipboard() const = 0; // UTF-8
    virtual void set_clipboard(const std::string& text) = 0;
};

} // namespace cocoa
