// Where dialogs are seen and used, as the actions need it: in front of Cocoa, or of nothing at all
// for a host without a display.

#pragma once

#include "minihost/dialog/Controls.h"
#include "minihost/dialog/Events.h"
#include "minihost/dialog/Panel.h"
#include "minihost/suites/Panels.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace minihost {

class Screen {
  public:
    virtual ~Screen() = default;

    virtual std::unique_ptr<PanelView> make_panel() = 0;

    // The floating dialog that the plug-in made last.
    virtual bool has_window() const = 0;
    virtual bool window_is_visible() const = 0;
    virtual std::string window_title() const = 0;

    // Of a panel, or with null of the floating dialog.
    virtual std::vector<Control> controls(const PanelView* panel) = 0;
    virtual Picture picture(const PanelView* panel, double scale) = 0;
    // As a user would. Each throws ControlError.
    virtual void set(const PanelView* panel, int id, const std::string& name,
                     const std::string& value) = 0;
    virtual void click(const PanelView* panel, int id, const std::string& name) = 0;
    // A raw event, which waits until settle() lets all be answered. Throws ControlError.
    virtual void post(const PanelView* panel, const RawEvent& event) = 0;
    virtual void settle() = 0;

    // Alert panels: the button (from 1) that answers the next one; the texts of those shown since
    // the last asking.
    virtual void answer_next_alert(int button) = 0;
    virtual std::vector<std::string> new_alerts() = 0;

    // Runs something that makes objects of the display, which are gone afterwards.
    virtual void with_pool(const std::function<void()>& body) = 0;
};

// A host without a display: panels without a view, no dialog ever.
std::unique_ptr<Screen> make_blind_screen();

// Draws a text to nowhere, so that the fonts are there for every process that is forked off later.
void load_fonts();

// The display that this build has: Cocoa's, headless unless another was chosen. Without a maker a
// panel is in a window of its own.
std::unique_ptr<Screen> make_screen(PanelMaker make_panel = {});

} // namespace minihost
