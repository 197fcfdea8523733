// The host's panels: which hooks make them, which are open. What a panel looks like is behind
// PanelView, so that a host can do without a display.

#pragma once

#include "sdk/Host.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace minihost {

class Host;

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

// Makes an empty, hidden one.
using PanelMaker = std::function<std::unique_ptr<PanelView>()>;
// Of panels without a display: no view, only a title.
PanelMaker blind_panels();

class Panels {
  public:
    explicit Panels(PanelMaker make) : _make(std::move(make)) {}

    void register_hook(const std::string& match_name, AEGP_CreatePanelHook hook,
                       AEGP_CreatePanelRefcon refcon);
    bool is_registered(const std::string& match_name) const { return _kinds.contains(match_name); }
    std::vector<std::string> match_names() const;
    // Shows or hides the panel; makes it first if need be, through its hook. The hook's error, with
    // no panel then.
    A_Err toggle(Host& host, const std::string& match_name);
    // Whether there was such a panel.
    bool set_title(std::uint64_t panel, const std::string& title);

    // The panel that is open, the first by match name; null without one.
    PanelView* view() const;
    // The host disposes of all panels; the plug-in is not told. False when there was none.
    bool close(Host& host);
    // No hook is called any more. All panels are closed before.
    void forget() { _kinds.clear(); }

  private:
    struct Kind {
        AEGP_CreatePanelHook hook;
        AEGP_CreatePanelRefcon refcon;
        AEGP_PanelH handle = nullptr;
        std::unique_ptr<PanelView> view;
    };
    A_Err create(Host& host, Kind& kind);

    PanelMaker _make;
    std::map<std::string, Kind> _kinds; // by match name
};

} // namespace minihost
