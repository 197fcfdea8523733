// Drives the plug-in's dialog as a user would, and takes pictures of it. An interface, so that a
// host can do without Cocoa.

#pragma once

#include "minihost/dialog/Controls.h"
#include "minihost/dialog/Events.h"
#include "minihost/dialog/Picture.h"
#include "minihost/suites/Panels.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace minihost {

class DialogDriver {
  public:
    virtual ~DialogDriver() = default;

    virtual std::unique_ptr<PanelView> make_panel() = 0;

    // The floating dialog that the plug-in created last.
    virtual bool has_floating_dialog() const = 0;
    virtual bool floating_dialog_is_visible() const = 0;
    virtual std::string floating_dialog_title() const = 0;

    // In these, a null panel stands for the floating dialog.
    virtual std::vector<Control> controls(const PanelView* panel) = 0;
    virtual Picture picture(const PanelView* panel, double scale) = 0; // pixels per point
    // As a user does it; see Controls.h. Throw ControlError.
    virtual void set(const PanelView* panel, int id, const std::string& name,
                     const std::string& value) = 0;
    virtual void click(const PanelView* panel, int id, const std::string& name) = 0;
    // Queues a raw event until settle() handles all that are queued. Throws ControlError.
    virtual void post(const PanelView* panel, const RawEvent& event) = 0;
    virtual void settle() = 0;

    // Alert panels: which button (from 1) answers the next one, and the texts of those shown since
    // the last call.
    virtual void answer_next_alert(int button) = 0;
    virtual std::vector<std::string> new_alerts() = 0;

    // Runs `body` within an autorelease pool, if there is anything to release.
    virtual void with_pool(const std::function<void()>& body) = 0;
};

// Cocoa's display, headless unless another was chosen. Without `make_panel` each panel is in a
// window of its own.
std::unique_ptr<DialogDriver> make_dialog_driver(PanelMaker make_panel = {});

// Loads the fonts by drawing a text off screen, so that processes forked later have them.
void load_fonts();

} // namespace minihost
