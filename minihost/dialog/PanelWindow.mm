#include "minihost/dialog/PanelWindow.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/HostWindow.h"

namespace minihost {

namespace {

class PanelWindow : public PanelView {
  public:
    PanelWindow() {
        const AutoreleasePool pool;
        [NSApplication sharedApplication];
        const double width = default_panel_width, height = default_panel_height;
        _window = [[HostWindow alloc] initWithContentRect:NSMakeRect(100, 100, width, height)
                                                styleMask:NSTitledWindowMask];
    }
    ~PanelWindow() override {
        const AutoreleasePool pool;
        remove_subviews(container());
        [_window close];
        [_window release];
    }
    PanelWindow(const PanelWindow&) = delete;
    PanelWindow& operator=(const PanelWindow&) = delete;

    NSView* container() const override { return [_window contentView]; }
    void resize(double width, double height) override {
        const AutoreleasePool pool;
        [_window setContentSize:NSMakeSize(width, height)];
    }
    void set_title(const std::string& utf8) override {
        const AutoreleasePool pool;
        NSString* title = [NSString stringWithUTF8String:utf8.c_str()];
        [_window setTitle:title ? title : @""];
    }
    std::string title() const override {
        const AutoreleasePool pool;
        return [[_window title] UTF8String];
    }
    void show(bool visible) override {
        const AutoreleasePool pool;
        if (visible)
            [_window makeKeyAndOrderFront:nil];
        else
            [_window orderOut:nil];
    }
    bool is_visible() const override { return [_window isVisible]; }

  private:
    HostWindow* _window;
};

} // namespace

std::unique_ptr<PanelView> make_panel_window() {
    return std::make_unique<PanelWindow>();
}

void remove_subviews(NSView* container) {
    NSArray* views = [[[container subviews] copy] autorelease];
    for (NSUInteger i = 0; i < [views count]; ++i) [[views objectAtIndex:i] removeFromSuperview];
}

} // namespace minihost
