// Where a plug-in's dialog is shown: the host's panel, a view in a window that the host owns, and
// the floating windows that a plug-in makes itself.

#pragma once

#include <string>
#include <vector>

#ifdef __OBJC__
@class NSView, NSWindow;
#else
class NSView;
class NSWindow;
#endif

namespace minihost {

// One panel, open from its making to its end, shown or not.
class Panel {
  public:
    // Hidden, with an empty container of this size in points.
    Panel(double width, double height);
    // Takes the plug-in's views out and the window with it.
    ~Panel();
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;

    // The view that the plug-in fills.
    NSView* container() const;

    void resize(double width, double height);
    void set_title(const std::string& utf8);
    std::string title() const;
    void show(bool visible);
    bool is_visible() const;

  private:
    NSWindow* _window;
};

// Takes all views out of a container that is to go: the plug-in may still hold them.
void empty_container(NSView* container);

// Says that a window is the host's own for as long as it lives, or that it is gone.
void claim_window(NSWindow* window);
void disclaim_window(NSWindow* window);

// The content of the floating dialog that the plug-in made last, shown or not; null without one.
// All windows but the host's own and its panels count.
NSView* floating_dialog();
bool floating_dialog_is_visible();
std::string floating_dialog_title();

// A picture: RGBA, 8 bits each, premultiplied, rows from the top.
struct Picture {
    int width = 0, height = 0; // pixels
    std::vector<unsigned char> rgba;
};
// A view as it is drawn at `scale` pixels per point; empty if it has no area.
Picture render(NSView* view, double scale);

} // namespace minihost
