#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/DialogDriver.h"
#include "minihost/dialog/HostWindow.h"
#include "minihost/dialog/PanelWindow.h"

#include <AppKit/NSDisplayStandIn.h>

namespace minihost {

namespace {

class CocoaDialogDriver : public DialogDriver {
  public:
    explicit CocoaDialogDriver(PanelMaker make_panel) : _make_panel(std::move(make_panel)) {}

    std::unique_ptr<PanelView> make_panel() override { return _make_panel(); }

    bool has_floating_dialog() const override {
        const AutoreleasePool pool;
        return floating_dialog() != nil;
    }
    bool floating_dialog_is_visible() const override {
        const AutoreleasePool pool;
        return [floating_dialog() isVisible];
    }
    std::string floating_dialog_title() const override {
        const AutoreleasePool pool;
        NSString* title = [floating_dialog() title];
        return title ? [title UTF8String] : "";
    }

    std::vector<Control> controls(const PanelView* panel) override {
        return read_controls(content(panel));
    }
    Picture picture(const PanelView* panel, double scale) override {
        return render_view(content(panel), scale);
    }
    void set(const PanelView* panel, int id, const std::string& name,
             const std::string& value) override {
        set_control(content(panel), id, name, value);
    }
    void click(const PanelView* panel, int id, const std::string& name) override {
        click_control(content(panel), id, name);
    }
    void post(const PanelView* panel, const RawEvent& event) override {
        _events.post(content(panel), event);
    }
    void settle() override { _events.settle(); }

    void answer_next_alert(int button) override {
        NSSetNextAlertAnswer(static_cast<NSUInteger>(button));
    }
    std::vector<std::string> new_alerts() override {
        std::vector<std::string> texts;
        for (const NSShownAlert& alert : NSShownAlerts())
            texts.push_back(alert.message.empty() ? alert.title : alert.message);
        NSForgetShownAlerts();
        return texts;
    }

    void with_pool(const std::function<void()>& body) override {
        const AutoreleasePool pool;
        body();
    }

  private:
    static NSView* content(const PanelView* panel) {
        const AutoreleasePool pool;
        return panel ? panel->container() : [floating_dialog() contentView];
    }

    PanelMaker _make_panel;
    EventPoster _events;
};

} // namespace

std::unique_ptr<DialogDriver> make_dialog_driver(PanelMaker make_panel) {
    return std::make_unique<CocoaDialogDriver>(make_panel ? std::move(make_panel)
                                                          : make_panel_window);
}

void load_fonts() {
    const AutoreleasePool pool;
    NSTextField* field = [[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 20, 20)];
    [field setStringValue:@"A"];
    render_view(field, 1);
    [field release];
}

} // namespace minihost
