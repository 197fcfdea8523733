// The kinds of panel that the plug-in has registered, and those panels that exist. The display is
// behind PanelView, so that a host works without one.

#pragma once

#include "sdk/Host.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace minihost {

// The view that a plug-in fills, and the frame around it.
class PanelView {
  public:
    virtual ~PanelView() = default;
    virtual NSView* container() const = 0;
    virtual void resize(double width, double height) = 0; // points
    virtual void set_title(const std::string& utf8) = 0;
    virtual std::string title() const = 0;
    virtual void show(bool visible) = 0;
    virtual bool is_visible() const = 0;
};

// Makes an empty, hidden view.
using PanelMaker = std::function<std::unique_ptr<PanelView>()>;
// Makes panels without a display, which have only a title.
PanelMaker blind_panels();

struct PanelKind {
    AEGP_CreatePanelHook hook;
    AEGP_CreatePanelRefcon refcon;
    AEGP_PanelH handle = nullptr;
    std::unique_ptr<PanelView> view; // null when there is no such panel
};

class Panels {
  public:
    void register_hook(const std::string& match_name, AEGP_CreatePanelHook hook,
                       AEGP_CreatePanelRefcon refcon);
    // By match name.
    std::map<std::string, PanelKind>& kinds() { return _kinds; }
    // False when there is no such panel.
    bool set_title(AEGP_PanelH panel, const std::string& title);
    // The first panel by match name; null without one.
    PanelView* view() const;

  private:
    std::map<std::string, PanelKind> _kinds;
};

} // namespace minihost
