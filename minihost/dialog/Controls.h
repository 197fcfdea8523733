// The controls that a plug-in has put into a view: read from the view tree, and operated as a user
// does, with mouse and key events.

#pragma once

#include "sdk/HostTypes.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace minihost {

struct Control {
    std::optional<int> id; // the view's tag, if it has one
    std::string kind; // button, check box, radio button, edit, pop-up, text, box, slider, picture
    std::string text; // its text or title, UTF-8
    bool enabled = true;
    // The number in an edit, whether a check box or radio button is on, the selected title of a
    // pop-up.
    std::variant<std::monostate, double, bool, std::string> value;
    std::optional<std::vector<std::string>> entries; // of a pop-up
    double top = 0, left = 0, bottom = 0, right = 0; // points, in the coordinates of its dialog
};

// The control is missing, hidden or disabled, or does not accept the value.
class ControlError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// All controls in `root` and below, in the order of the views; empty for null.
std::vector<Control> read_controls(NSView* root);

// Sets a control as a user does: types into an edit and ends editing; clicks a check box whose
// state differs from `value` (`on`, `off`); clicks a radio button (`on`); picks a pop-up's entry by
// title or by index (`#2`). Messages call the control `name`. The view's window must be on the
// screen. Throws ControlError.
void set_control(NSView* root, int id, const std::string& name, const std::string& value);

// Clicks the middle of a control. Throws ControlError.
void click_control(NSView* root, int id, const std::string& name);

} // namespace minihost
