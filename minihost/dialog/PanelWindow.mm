#include "minihost/dialog/PanelWindow.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/HostWindows.h"

namespace minihost {

namespace {

class PanelWindow : public PanelView {
  public:
    PanelWindow() {
        const AutoreleasePool pool;
        [NSApplication sharedApplication];
        const NSSize size = NSMakeSize(default_panel_width, default_panel_height);
        _window =
            [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, size.width, size.height)
                                        styleMask:NSTitledWindowMask
                                          backing:NSBackingStoreBuffered
                                            defer:YES];
        [_window setReleasedWhenClosed:NO];
        NSView* container =
            [[NSView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
        [_window setContentView:container];
        [container release];
        claim_window(_window);
    }
    ~PanelWindow() override {
        const AutoreleasePool pool;
        disclaim_window(_window);
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
    NSWindow* _window;
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
