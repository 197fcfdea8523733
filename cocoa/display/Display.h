// The seam between the window system and whatever shows it: one screen of pixels goes out, events
// and the clipboard's text come in. Windows, menu bar and pop-up lists are put together above it.
#pragma once

#include <string>

namespace cocoa {

struct ScreenSize {
    double width = 0; // points
    double height = 0;
};

// Modifier keys of an event, as bits.
enum Modifiers : unsigned { shift = 1, control = 2, option = 4, command = 8, caps_lock = 16 };

struct DisplayEvent {
    enum class Kind { mouse_down, mouse_up, mouse_move, wheel, key_down, key_up, resized, quit };
    Kind kind = Kind::mouse_move;
    double x = 0; // points from the upper left corner of the screen, y downwards
    double y = 0;
    bool right_button = false;
    int clicks = 1;
    double dx = 0; // wheel: lines, away from the user positive
    double dy = 0;
    unsigned modifiers = 0;
    std::string characters; // UTF-8; keys that write nothing: the function key's character
    std::string characters_unmodified; // as without modifier keys other than Shift
    unsigned short key_code = 0;
    bool repeat = false;
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

    // Is anybody looking, so that the screen is worth drawing?
    virtual bool is_seen() const = 0;
    virtual void present(const ScreenPixels& pixels) = 0;
    virtual void set_title(const std::string& title) = 0;

    // Takes the next event, waiting for it for at most the given time (seconds, 0: not at all). A
    // display without a user does not wait: nothing could come.
    virtual bool next_event(DisplayEvent& event, double seconds) = 0;
    virtual bool has_user() const = 0;

    virtual std::string clipboard() const = 0; // UTF-8
    virtual void set_clipboard(const std::string& text) = 0;
};

} // namespace cocoa
