// The controls that a plug-in has put into a view: read off the view tree, and used as a user
// would, through mouse and key events.

#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#ifdef __OBJC__
@class NSView;
#else
class NSView;
#endif

namespace minihost {

struct Control {
    std::optional<int> id; // the view's tag; none for a view without one
    std::string kind; // button, check box, radio button, edit, pop-up, text, box, slider, picture
    std::string text; // what stands in or on it, UTF-8
    bool enabled = true;
    // The number shown in an edit, whether a check box or radio button is on, the selected title of
    // a pop-up; nothing where there is none.
    std::variant<std::monostate, double, bool, std::string> value;
    std::optional<std::vector<std::string>> entries; // of a pop-up
    double top = 0, left = 0, bottom = 0, right = 0; // points, in the coordinates of its dialog
};

// What cannot be done: a control that is not there or disabled, a value that it does not take.
class ControlError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// All controls in `root` and below, in the order of the views. Null has none.
std::vector<Control> read_controls(NSView* root);

// Sets a control as a user would. A number field gets the text as typed and ends editing; a check
// box is clicked when its state (`on`, `off`) differs; a radio button is clicked (`on`); a pop-up
// gets the entry with that title picked, or that of an index (`#2`). `name` is how messages call
// the control. Throws ControlError. The view's window must be on the screen.
void set_control(NSView* root, int id, const std::string& name, const std::string& value);

// Clicks a control in its middle. Throws ControlError.
void click_control(NSView* root, int id, const std::string& name);

} // namespace minihost
