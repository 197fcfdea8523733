#include "minihost/window/Show.h"

#include "minihost/actions/Actions.h"
#include "minihost/model/OutputFile.h"
#include "minihost/view/AutoreleasePool.h"
#include "minihost/view/PictureFile.h"
#include "minihost/window/Commands.h"
#include "minihost/window/CompositionView.h"
#include "minihost/window/Desk.h"
#include "minihost/window/DockedPanel.h"
#include "minihost/window/LayerList.h"
#include "minihost/window/Layout.h"
#include "minihost/window/Look.h"
#include "minihost/window/Questions.h"

#include <AppKit/NSDisplayStandIn.h>
#include <optional>

using namespace minihost;

namespace {

// More often than ten times a second, also when other things come between.
constexpr double seconds_between_idle_calls = 0.085;

} // namespace

// It fills the screen below the menu bar, behind whatever the plug-in opens.
@interface DeskWindow : NSWindow
@end
@implementation DeskWindow
- (BOOL)canBecomeKeyWindow {
    return YES;
}
@end

// Fires between the user's events.
@interface Ticker : NSObject {
  @public
    void* _work; // a Ticking: the runtime cannot describe it
}
- (void)tick:(NSTimer*)timer;
@end

// What is to be done then.
struct Ticking {
    minihost::Session& session;
    std::function<void()> after;
    bool inside = false;

    // None inside another, and no idle call while the plug-in itself waits for the user.
    void tick() {
        if (inside) return;
        inside = true;
        if (![NSApp modalWindow] || is_asking()) session.enter([&] { session.host().idle(); });
        after();
        inside = false;
    }
};

@implementation Ticker
- (void)tick:(NSTimer*)__attribute__((unused))timer {
    static_cast<Ticking*>(_work)->tick();
}
@end

namespace minihost {

struct Show::State {
    ShowOptions options;
    DeskWindow* window = nil;
    Desk* desk = nil;

    // While it runs.
    std::optional<Workbench> bench;
    Workbench::Look shown;
    std::size_t frames_before = 0;

    bool has_all_frames() const {
        return options.frames > 0 &&
               NSFramesDrawn() >= frames_before + static_cast<std::size_t>(options.frames);
    }

    // Draws what may look different now.
    void refresh() {
        const Workbench::Look now = bench->look();
        if (!(now == shown)) {
            shown = now;
            [desk lookChanged];
        }
        const NSRect view = [[desk compositionView] bounds];
        const int percent = static_cast<int>(
            bench->view.magnification(bench->scene(), NSWidth(view), NSHeight(view)) * 100 + 0.5);
        [desk setStatus:bench->status() + "   " + std::to_string(percent) + " %"];
        NSString* title = look::string(bench->title());
        if (![[window title] isEqualToString:title]) [window setTitle:title];
    }
};

Show::Show(const ShowOptions& options) : _state(std::make_unique<State>()) {
    const AutoreleasePool pool;
    _state->options = options;
    const NSSize size = NSMakeSize(options.width, options.height);
    if (!NSUseWindowDisplay(@"minihost", size, options.scale,
                            NSMakeSize(least_window_width, least_window_height)))
        throw ActionError("show: there is no desktop to open a window on");
    look::use(options.palette);
    NSUseLightAppearance(options.palette == Palette::Light);
    [NSApplication sharedApplication];
    _state->window = [[DeskWindow alloc] initWithContentRect:[[NSScreen mainScreen] visibleFrame]
                                                   styleMask:NSBorderlessWindowMask
                                                     backing:NSBackingStoreBuffered
                                                       defer:YES];
    claim_window(_state->window);
    [_state->window setReleasedWhenClosed:NO];
    [_state->window setLevel:NSNormalWindowLevel - 1];
    [_state->window zoom:nil];
    _state->desk = [[Desk alloc] initWithFrame:NSZeroRect];
    [_state->window setContentView:_state->desk];
    [_state->desk release];
}

Show::~Show() {
    const AutoreleasePool pool;
    [_state->desk setWorkbench:nullptr];
    disclaim_window(_state->window);
    [_state->window close];
    [_state->window release];
    NSUseLightAppearance(NO);
    NSUseHeadlessDisplay(NSMakeSize(1440, 900), 1);
}

std::unique_ptr<Screen> Show::make_screen() {
    Desk* desk = _state->desk;
    return minihost::make_screen([=] { return make_docked_panel(desk); });
}

void Show::run(Session& session) {
    const AutoreleasePool pool;
    State& state = *_state;
    state.bench.emplace(session, state.options.scene);
    [state.desk setWorkbench:&*state.bench];
    Commands* commands = [[Commands alloc] initWithWorkbench:&*state.bench];
    [NSApp setDelegate:commands];
    [NSApp setMainMenu:[commands menuBar]];
    [state.window makeKeyAndOrderFront:nil];
    [state.window makeFirstResponder:[state.desk layerList]];
    try {
        run_action(session, parse_action({"open"}, "show"));
    } catch (const std::exception& error) {
        session.host().report(error.what());
    }
    state.frames_before = NSFramesDrawn();
    Ticking work{session, [&] {
                     state.refresh();
                     // Frames that are counted come whether anything changes or not.
                     if (state.options.frames > 0) [state.window setViewsNeedDisplay:YES];
                 }};
    Ticker* ticker = [[Ticker alloc] init];
    ticker->_work = &work;
    NSTimer* timer = [NSTimer timerWithTimeInterval:seconds_between_idle_calls
                                             target:ticker
                                           selector:@selector(tick:)
                                           userInfo:nil
                                            repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSRunLoopCommonModes];
    state.refresh();
    while (![commands isFinished] && !state.has_all_frames()) {
        session.enter([&] {
            NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                                untilDate:[NSDate dateWithTimeIntervalSinceNow:0.25]
                                                   inMode:NSDefaultRunLoopMode
                                                  dequeue:YES];
            try {
                [NSApp sendEvent:event];
                [commands finishWhatWaits];
            } catch (const std::exception& error) {
                tell("This could not be done", error.what());
            }
        });
        state.refresh();
    }
    NSPicture picture = NSRenderScreen();
    [timer invalidate];
    [ticker release];
    [NSApp setMainMenu:nil];
    [NSApp setDelegate:nil];
    [commands release];
    [state.desk setWorkbench:nullptr];
    state.bench.reset();
    if (state.options.screenshot.empty()) return;
    try {
        write_file(state.options.screenshot,
                   encode_png({picture.width, picture.height, std::move(picture.rgba)}));
    } catch (const std::exception& error) {
        throw ActionError(error.what());
    }
}

} // namespace minihost
