#include "minihost/suites/Panels.h"

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

} // namespace

PanelMaker blind_panels() {
    return [] { return std::make_unique<BlindPanel>(); };
}

void Panels::register_hook(const std::string& match_name, AEGP_CreatePanelHook hook,
                           AEGP_CreatePanelRefcon refcon) {
    PanelKind& kind = _kinds[match_name];
    kind.hook = hook;
    kind.refcon = refcon;
}

bool Panels::set_title(AEGP_PanelH panel, const std::string& title) {
    for (auto& [name, kind] : _kinds) {
        if (!kind.view || kind.handle != panel) continue;
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

} // namespace minihost
