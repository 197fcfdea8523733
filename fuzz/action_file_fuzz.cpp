// Any text as a file of actions: refused with its place, or carried out on a small scene, where an
// action that cannot be done is reported. What would write files is left out.

#include "fuzz/Bytes.h"
#include "minihost/actions/ActionFile.h"
#include "minihost/dialog/Picture.h"
#include "minihost/model/SceneReader.h"
#include "minihost/preview/Preview.h"

#include <sstream>

using namespace minihost;

// Pictures are no part of this.
namespace minihost {
std::string encode_png(const Picture&) {
    return {};
}
void write_preview(const Scene&, const std::string&, double) {}
} // namespace minihost

namespace {

// Of a host without a display: panels have no view, and there is never a dialog.
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

bool writes_files(const ParsedAction& parsed) {
    const std::string_view name = parsed.action->name;
    return name == "save" || name == "preview" || name == "panel";
}

void carry_out(const std::vector<ParsedAction>& actions) {
    std::ostringstream out;
    Session session(parse_scene(R"({"format": "minihost scene 1", "layers": [
                        {"name": "A", "kind": "shape", "three_d": true},
                        {"name": "B C", "kind": "camera"}], "selection": [0]})",
                                "small"),
                    {}, std::make_unique<NullDialogDriver>(), out, [](const std::string&) {});
    for (const ParsedAction& parsed : actions) {
        if (writes_files(parsed)) continue;
        try {
            run_action(session, parsed);
        } catch (const ActionError&) {
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const std::vector<ParsedAction> actions = parse_actions(text, "input");
        for (const ParsedAction& parsed : actions) {
            const int count = static_cast<int>(parsed.arguments.size());
            fuzz::require(
                count >= parsed.action->min_arguments &&
                    (parsed.action->max_arguments < 0 || count <= parsed.action->max_arguments),
                "as many arguments as the action takes");
        }
        carry_out(actions);
    } catch (const UsageError& error) {
        fuzz::require(std::string_view(error.what()).starts_with("input:"),
                      "an error names file and line");
    }
    return 0;
}
