#include "minihost/suites/Panels.h"

#include "minihost/suites/Host.h"

namespace minihost {

namespace {

class BlindPanel : public PanelView {
  public:
    NSView* container() const override { return nullptr; }
    void resize(double, double) override {}
    void set_title(const std::string& utf8) override { _title = utf8; }
    std::string title() const override { return _title; }
    void show(bool visible) override { _visible = visible; }
    bool is_visible() const override { return _visible; }

  private:
    std::string _title;
    bool _visible = false;
};

// The panel takes the size that it likes best; at most 5 may be told.
void snap(Host& host, PanelView& view, const AEGP_PanelFunctions1& functions,
          AEGP_PanelRefcon refcon) {
    A_LPoint sizes[5] = {};
    A_long count = 0;
    if (host.ask_snap_sizes(functions, refcon, sizes, count) != 0 || count < 1) return;
    if (sizes[0].x > 0 && sizes[0].y > 0) view.resize(sizes[0].x, sizes[0].y);
}

} // namespace

PanelMaker blind_panels() {
    return [] { return std::make_unique<BlindPanel>(); };
}

void Panels::register_hook(const std::string& match_name, AEGP_CreatePanelHook hook,
                           AEGP_CreatePanelRefcon refcon) {
    Kind& kind = _kinds[match_name];
    kind.hook = hook;
    kind.refcon = refcon;
}

std::vector<std::string> Panels::match_names() const {
    std::vector<std::string> names;
    for (const auto& [name, kind] : _kinds) names.push_back(name);
    return names;
}

A_Err Panels::create(Host& host, Kind& kind) {
    kind.view = _make();
    kind.handle = host.handles.open_panel();
    AEGP_PanelFunctions1 functions{};
    AEGP_PanelRefcon refcon = nullptr;
    const A_Err error =
        host.make_panel(kind.hook, kind.refcon, *kind.view, kind.handle, functions, refcon);
    if (error == 0) {
        snap(host, *kind.view, functions, refcon);
        return 0;
    }
    host.handles.close(kind.handle);
    kind.view.reset();
    return error;
}

A_Err Panels::toggle(Host& host, const std::string& match_name) {
    Kind& kind = _kinds.at(match_name);
    if (!kind.view)
        if (const A_Err error = create(host, kind)) return error;
    kind.view->show(!kind.view->is_visible());
    return 0;
}

bool Panels::set_title(std::uint64_t panel, const std::string& title) {
    for (auto& [name, kind] : _kinds) {
        if (!kind.view || Handles::number_of(kind.handle) != panel) continue;
        kind.view->set_title(title);
        return true;
    }
    return false;
}

PanelView* Panels::view() const {
    for (const auto& [name, kind] : _kinds)
        if (kind.view) return kind.view.get();
    return nullptr;
}

bool Panels::close(Host& host) {
    bool any = false;
    for (auto& [name, kind] : _kinds) {
        if (!kind.view) continue;
        any = true;
        host.handles.close(kind.handle);
        host.visit([&kind = kind] { kind.view.reset(); });
    }
    return any;
}

} // namespace minihost
