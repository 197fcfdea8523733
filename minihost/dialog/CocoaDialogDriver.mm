#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/DialogDriver.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>

namespace minihost {

namespace {

// Until the plug-in tells which size it likes.
constexpr double usual_width = 320, usual_height = 480;

class CocoaPanel : public PanelView {
  public:
    NSView* container() const override { return _panel.container(); }
    void resize(double width, double height) override { _panel.resize(width, height); }
    void set_title(const std::string& utf8) override { _panel.set_title(utf8); }
    std::string title() const override { return _panel.title(); }
    void show(bool visible) override { _panel.show(visible); }
    bool is_visible() const override { return _panel.is_visible(); }

  private:
    Panel _panel{usual_width, usual_height};
};

class CocoaScreen : public Screen {
  public:
    explicit CocoaScreen(PanelMaker make_panel) : _make_panel(std::move(make_panel)) {}

    std::unique_ptr<PanelView> make_panel() override {
        return _make_panel ? _make_panel() : std::make_unique<CocoaPanel>();
    }

    bool has_window() const override { return floating_dialog() != nil; }
    bool window_is_visible() const override { return floating_dialog_is_visible(); }
    std::string window_title() const override { return floating_dialog_title(); }

    std::vector<Control> controls(const PanelView* panel) override {
        return read_controls(root(panel));
    }
    Picture picture(const PanelView* panel, double scale) override {
        return render(root(panel), scale);
    }
    void set(const PanelView* panel, int id, const std::string& name,
             const std::string& value) override {
        set_control(root(panel), id, name, value);
    }
    void click(const PanelView* panel, int id, const std::string& name) override {
        click_control(root(panel), id, name);
    }
    void post(const PanelView* panel, const RawEvent& event) override {
        _hands.post(root(panel), event);
    }
    void settle() override { _hands.settle(); }

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
    static NSView* root(const PanelView* panel) {
        return panel ? panel->container() : floating_dialog();
    }

    Hands _hands;
    PanelMaker _make_panel;
};

} // namespace

void load_fonts() {
    const AutoreleasePool pool;
    NSTextField* field = [[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 20, 20)];
    [field setStringValue:@"A"];
    render(field, 1);
    [field release];
}

std::unique_ptr<Screen> make_screen(PanelMaker make_panel) {
    return std::make_unique<CocoaScreen>(std::move(make_panel));
}

} // namespace minihost
