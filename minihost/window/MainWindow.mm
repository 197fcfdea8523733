#include "minihost/window/MainWindow.h"

#include "minihost/actions/Actions.h"
#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/HostWindow.h"
#include "minihost/dialog/Picture.h"
#include "minihost/model/OutputFile.h"
#include "minihost/window/CompositionView.h"
#include "minihost/window/DockedPanel.h"
#include "minihost/window/LayerListView.h"
#include "minihost/window/MainView.h"
#include "minihost/window/MenuCommands.h"
#include "minihost/window/Prompts.h"
#include "minihost/window/WindowLayout.h"
#include "minihost/window/WindowStyle.h"

#include <AppKit/NSDisplayStandIn.h>
#include <optional>

namespace {

// More often than ten times a second, even if handling an event delays one.
constexpr double seconds_between_idle_calls = 0.085;

} // namespace

struct TimerTask {
    virtual void run() = 0;

  protected:
    ~TimerTask() = default;
};

// Runs a task whenever a timer fires.
@interface TimerTarget : NSObject {
  @public
    struct TimerTask* _task; // not owned
}
- (void)timerFired:(NSTimer*)timer;
@end

@implementation TimerTarget
- (void)timerFired:(NSTimer*)__attribute__((unused))timer {
    _task->run();
}
@end

namespace minihost {

struct MainWindow::State : TimerTask {
    MainWindowOptions options;
    HostWindow* window = nil;
    MainView* main_view = nil;

    // While it runs.
    std::optional<SceneEditor> editor;
    SceneEditor::DisplayState shown;
    std::size_t frames_before = 0;
    bool is_in_tick = false;

    bool has_drawn_all_frames() const {
        return options.frames > 0 &&
               NSFramesDrawn() >= frames_before + static_cast<std::size_t>(options.frames);
    }

    // Redraws what may look different now.
    void refresh() {
        const SceneEditor::DisplayState now = editor->display_state();
        if (!(now == shown)) {
            shown = now;
            [main_view contentsChanged];
        }
        const NSSize size = [[main_view compositionView] bounds].size;
        const double magnification =
            editor->viewpoint.magnification(editor->scene(), size.width, size.height);
        const int percent = static_cast<int>(magnification * 100 + 0.5);
        [main_view setStatus:editor->status() + "   " + std::to_string(percent) + " %"];
        NSString* title = style::printable_string(editor->title());
        if (![[window title] isEqualToString:title]) [window setTitle:title];
    }

    // An idle call, unless the plug-in itself waits for the user; not within another tick.
    void run() override {
        if (is_in_tick) return;
        is_in_tick = true;
        Session& session = editor->session();
        if (![NSApp modalWindow] || prompt_is_open()) session.enter([&] { session.host().idle(); });
        refresh();
        // The frames that are counted are drawn even if nothing changes.
        if (options.frames > 0) [window setViewsNeedDisplay:YES];
        is_in_tick = false;
    }

    void handle_events(MenuCommands* commands) {
        while (![commands hasQuit] && !has_drawn_all_frames()) {
            editor->session().enter([&] {
                NSEvent* event =
                    [NSApp nextEventMatchingMask:NSAnyEventMask
                                       untilDate:[NSDate dateWithTimeIntervalSinceNow:0.25]
                                          inMode:NSDefaultRunLoopMode
                                         dequeue:YES];
                try {
                    [NSApp sendEvent:event];
                    [commands quitIfWanted];
                } catch (const std::exception& error) {
                    show_error("This could not be done", error.what());
                }
            });
            refresh();
        }
    }
};

MainWindow::MainWindow(const MainWindowOptions& options) : _state(std::make_unique<State>()) {
    const AutoreleasePool pool;
    _state->options = options;
    const NSSize size = NSMakeSize(options.width, options.height);
    if (!NSUseWindowDisplay(@"minihost", size, options.scale,
                            NSMakeSize(least_window_width, least_window_height)))
        throw ActionError("show: there is no desktop to open a window on");
    style::use_palette(options.palette);
    NSUseLightAppearance(options.palette == Palette::Light);
    [NSApplication sharedApplication];
    _state->window = [[HostWindow alloc] initWithContentRect:[[NSScreen mainScreen] visibleFrame]
                                                   styleMask:NSBorderlessWindowMask];
    // Behind whatever the plug-in opens.
    [_state->window setLevel:NSNormalWindowLevel - 1];
    [_state->window zoom:nil];
    _state->main_view = [[MainView alloc] initWithFrame:NSZeroRect];
    [_state->window setContentView:_state->main_view];
    [_state->main_view release];
}

MainWindow::~MainWindow() {
    const AutoreleasePool pool;
    [_state->main_view setEditor:nullptr];
    [_state->window close];
    [_state->window release];
    NSUseLightAppearance(NO);
    NSUseHeadlessDisplay(NSMakeSize(1440, 900), 1);
}

std::unique_ptr<DialogDriver> MainWindow::make_dialog_driver() {
    MainView* main_view = _state->main_view;
    return minihost::make_dialog_driver([=] { return make_docked_panel(main_view); });
}

void MainWindow::run(Session& session) {
    const AutoreleasePool pool;
    State& state = *_state;
    state.editor.emplace(session, state.options.scene);
    [state.main_view setEditor:&*state.editor];
    MenuCommands* commands = [[MenuCommands alloc] initWithEditor:&*state.editor];
    [NSApp setDelegate:commands];
    [NSApp setMainMenu:[commands menuBar]];
    [state.window makeKeyAndOrderFront:nil];
    [state.window makeFirstResponder:[state.main_view layerList]];
    try {
        run_action(session, parse_action({"open"}, "show"));
    } catch (const std::exception& error) {
        session.host().report(error.what());
    }

    state.frames_before = NSFramesDrawn();
    TimerTarget* target = [[TimerTarget alloc] init];
    target->_task = &state;
    NSTimer* timer = [NSTimer timerWithTimeInterval:seconds_between_idle_calls
                                             target:target
                                           selector:@selector(timerFired:)
                                           userInfo:nil
                                            repeats:YES];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSRunLoopCommonModes];
    state.refresh();
    state.handle_events(commands);
    NSPicture picture = NSRenderScreen();
    [timer invalidate];
    [target release];
    [NSApp setMainMenu:nil];
    [NSApp setDelegate:nil];
    [commands release];
    [state.main_view setEditor:nullptr];
    state.editor.reset();

    if (state.options.screenshot.empty()) return;
    try {
        write_file(state.options.screenshot,
                   encode_png({picture.width, picture.height, std::move(picture.rgba)}));
    } catch (const std::exception& error) {
        throw ActionError(error.what());
    }
}

} // namespace minihost
