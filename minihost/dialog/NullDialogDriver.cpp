#include "minihost/dialog/DialogDriver.h"

namespace minihost {

namespace {

class NullDialogDriver : public DialogDriver {
  public:
    std::unique_ptr<PanelView> make_panel() override { return blind_panels()(); }
    bool has_floating_dialog() const override { return false; }
    bool floating_dialog_is_visible() const override { return false; }
    std::string floating_dialog_title() const override { return {}; }
    std::vector<Control> controls(const PanelView*) override { return {}; }
    Picture picture(const PanelView*, double) override { return {}; }
    void set(const PanelView*, int, const std::string& name, const std::string&) override {
        throw ControlError("control '" + name + "': the host has no display");
    }
    void click(const PanelView* panel, int id, const std::string& name) override {
        set(panel, id, name, "");
    }
    void post(const PanelView*, const RawEvent&) override {
        throw ControlError("the host has no display");
    }
    void settle() override {}
    void answer_next_alert(int) override {}
    std::vector<std::string> new_alerts() override { return {}; }
    void with_pool(const std::function<void()>& body) override { body(); }
};

} // namespace

std::unique_ptr<DialogDriver> make_null_dialog_driver() {
    return std::make_unique<NullDialogDriver>();
}

} // namespace minihost
